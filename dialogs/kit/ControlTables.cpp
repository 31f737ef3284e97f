#include "dialogs/kit/ControlTables.h"

GtkWidget* NewControlGrid(guint columnSpacing) {
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  gtk_grid_set_row_spacing(GTK_GRID(table), 5);
  gtk_grid_set_column_spacing(GTK_GRID(table), columnSpacing);
  gtk_widget_show(table);
  return table;
}

void BuildControls(GtkWidget* parent, GtkWidget* table, const ControlTables& tables) {
  Dlg_String(parent, table, tables.String);
  Dlg_EditBox(parent, table, tables.Edit);
  Dlg_NumrBox(parent, table, tables.Numr);
  Dlg_ComboBox(parent, table, tables.Combo);
  Dlg_RadioButn(parent, table, tables.Radio);
  Dlg_CheckButn(parent, table, tables.Check);
  Dlg_ColrData(parent, table, tables.Colr);
  Dlg_MarkData(parent, table, tables.Mark);
}
