// Palette, mark and grid editors and the pickers of the swatches.
#pragma once

#include <gtk/gtk.h>

#include "support/Resource.h"

// A swatch's drawing area and its working copy.
struct COLRBOX {
  GtkWidget* box;
  COLRDATA colr;
};
struct MARKBOX {
  GtkWidget* box;
  MARKDATA mark;
};

// Menu commands.
void EditColrData(GtkWidget* parent, gpointer data);
void EditMarkData(GtkWidget* parent, gpointer data);
void PtrnGridSet(GtkWidget* parent, gpointer data);

// Pickers: the number chosen, -1 when closed without a choice. Those of a swatch begin
// at `current`.
gint Dlg_ColrSelect(GtkWidget* parent, gint current = 0);
gint Dlg_MarkSelect(GtkWidget* parent, gint current = 0);
gint Dlg_MarkSearch(GtkWidget* parent, const MARKBOX* markbox);
// Editors of one entry of a set of working copies: 1 = the entry was changed.
gint MakeColrData(GtkWidget* parent, gint colrno, COLRBOX* colrbox);
gint MakeMarkData(GtkWidget* parent, gint markno, MARKBOX* markbox);

// Paint a swatch.
void DrawColrData(GtkWidget* colrbox, cairo_t* cairo, gint colrno, COLRDATA colrdata);
void DrawMarkData(GtkWidget* markbox, cairo_t* cairo, gint markno, const MARKDATA& markdata);
// Have assistive technology read the number that a swatch shows.
void TellColour(GtkWidget* swatch, gint colrno);
void TellMark(GtkWidget* swatch, gint markno);
