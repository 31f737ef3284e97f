// Dialog controls built from tables. A row places one control in columns culm1..culm2 of row `line`
// of a grid and binds it to a variable, which the control writes on every change. A table ends with
// a row whose line is negative; a row whose culm1 is -1 is left out. Labels and captions are UTF-8;
// bound texts are record fields (EUC-JP).
#pragma once

#include <gtk/gtk.h>

#include "Types.h"
#include "support/Resource.h"

struct DLG_STRING {
  gint line, culm1, culm2;
  gint post;  // 0 left-aligned, else right-aligned
  const gchar* text;
  GtkWidget* label;
};

struct DLG_NUMERIC {
  gint line, culm1, culm2;
  gint post;
  gint size;  // field width
  gint data;
  GtkWidget* numeric;
};

struct DLG_EDITBOX {
  gint line, culm1, culm2;
  gint size;  // bytes of EUC-JP that fit
  gint edit;  // 0 editable, else read-only
  gchar* text;
  GtkWidget* entry;
};

struct DLG_NUMRBOX {
  gint line, culm1, culm2;
  gint size;  // digits of the largest value
  gint max;
  gint min;
  gint* data;
  const gchar* text;  // caption, "" for none
  GtkWidget* spin;
};

// Neighbouring rows that share `data` form one group.
struct DLG_RADIOBUTN {
  gint line, culm1, culm2;
  gint code;
  gint* data;
  const gchar* text;
};

struct DLG_CHECKBUTN {
  gint line, culm1, culm2;
  gint* data;
  const gchar* text;
};

struct DLG_COMBOBOX {
  gint line, culm1, culm2;
  gint edit;  // 0 = not editable
  gint* item;
  const gchar* const* list;  // ends with an empty text
  const gchar* text;         // caption, "" for none
};

struct DLG_COLRDATA {
  gint line, culm1, culm2;
  gint* colr;
  const gchar* text;  // caption, "" for none
};

struct DLG_MARKDATA {
  gint line, culm1, culm2;
  gint* mark;
};

// The builders: one control per row of the table, placed in the grid and shown.
void Dlg_String(GtkWidget* parent, GtkWidget* table, DLG_STRING* rows);
void Dlg_Numeric(GtkWidget* parent, GtkWidget* table, DLG_NUMERIC* rows);
void Dlg_EditBox(GtkWidget* parent, GtkWidget* table, DLG_EDITBOX* rows);
void Dlg_NumrBox(GtkWidget* parent, GtkWidget* table, DLG_NUMRBOX* rows);
void Dlg_RadioButn(GtkWidget* parent, GtkWidget* table, DLG_RADIOBUTN* rows);
void Dlg_CheckButn(GtkWidget* parent, GtkWidget* table, DLG_CHECKBUTN* rows);
void Dlg_ComboBox(GtkWidget* parent, GtkWidget* table, DLG_COMBOBOX* rows);
void Dlg_ColrData(GtkWidget* parent, GtkWidget* table, DLG_COLRDATA* rows);
void Dlg_MarkData(GtkWidget* parent, GtkWidget* table, DLG_MARKDATA* rows);

// Paint a swatch.
void DrawColrData(GtkWidget* colrbox, cairo_t* cairo, gint colrno, COLRDATA colrdata);
void DrawMarkData(GtkWidget* markbox, cairo_t* cairo, gint markno, const MARKDATA& markdata);
// Have assistive technology read the number that a swatch shows.
void TellColour(GtkWidget* swatch, gint colrno);
void TellMark(GtkWidget* swatch, gint markno);

// The parent window of the latest call of each builder; pickers of swatches open over theirs.
extern GtkWidget* Dlg_String_Parent;
extern GtkWidget* Dlg_Numeric_Parent;
extern GtkWidget* Dlg_EditBox_Parent;
extern GtkWidget* Dlg_NumrBox_Parent;
extern GtkWidget* Dlg_RadioButn_Parent;
extern GtkWidget* Dlg_CheckButn_Parent;
extern GtkWidget* Dlg_ComboBox_Parent;
extern GtkWidget* Dlg_ColrData_Parent;
extern GtkWidget* Dlg_MarkData_Parent;
