#include "dialogs/kit/ControlTables.h"

GtkWidget* NewControlGrid(guint columnSpacing) {
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  gtk_grid_set_row_spacing(GTK_GRID(table), 5);
  gtk_grid_set_column_spacing(GTK_GRID(table), columnSpacing);
  gtk_widget_show(table);
  return table;
}

// A builder without a table is not called: it would take this window for the one of its controls.
void BuildControls(GtkWidget* parent, GtkWidget* table, const ControlTables& tables) {
  const auto build = [parent, table](auto* builder, auto* rows) {
    if (rows != nullptr) builder(parent, table, rows);
  };
  build(Dlg_String, tables.String);
  build(Dlg_EditBox, tables.Edit);
  build(Dlg_NumrBox, tables.Numr);
  build(Dlg_ComboBox, tables.Combo);
  build(Dlg_RadioButn, tables.Radio);
  build(Dlg_CheckButn, tables.Check);
  build(Dlg_ColrData, tables.Colr);
  build(Dlg_MarkData, tables.Mark);
}
