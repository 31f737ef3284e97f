// The control tables of one grid, built together.
#pragma once

#include "dialogs/Kit.h"

// Tables that a grid does not have are null.
struct ControlTables {
  DLG_STRING* String = nullptr;
  DLG_EDITBOX* Edit = nullptr;
  DLG_NUMRBOX* Numr = nullptr;
  DLG_COMBOBOX* Combo = nullptr;
  DLG_RADIOBUTN* Radio = nullptr;
  DLG_CHECKBUTN* Check = nullptr;
  DLG_COLRDATA* Colr = nullptr;
  DLG_MARKDATA* Mark = nullptr;
};

// A shown, empty grid with a border, its rows 5 dots apart.
GtkWidget* NewControlGrid(guint columnSpacing);
// Builds the controls of all tables, table by table.
void BuildControls(GtkWidget* parent, GtkWidget* table, const ControlTables& tables);
