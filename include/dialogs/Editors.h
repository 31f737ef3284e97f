// Palette, mark and grid editors.
#pragma once

#include <gtk/gtk.h>

#include "dialogs/Kit.h"
#include "dialogs/Pickers.h"
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

// Picks the mark to copy from among the working copies: its number, -1 when closed without a
// choice. What a swatch opens is declared in dialogs/Pickers.h.
gint Dlg_MarkSearch(GtkWidget* parent, const MARKBOX* markbox);
// Editors of one entry of a set of working copies: 1 = the entry was changed.
gint MakeColrData(GtkWidget* parent, gint colrno, COLRBOX* colrbox);
gint MakeMarkData(GtkWidget* parent, gint markno, MARKBOX* markbox);
