// Static labels and numbers shown as labels.
#include "dialogs/Kit.h"
#include "dialogs/kit/Cells.h"

GtkWidget* Dlg_String_Parent = nullptr;
GtkWidget* Dlg_Numeric_Parent = nullptr;

void Dlg_String(GtkWidget* parent, GtkWidget* table, DLG_STRING* rows) {
  Dlg_String_Parent = parent;
  ForEachRow(rows, [table](DLG_STRING& row) {
    KeepWidget(&row.label, NewLabel(row.text, row.post != 0));
    PlaceControl(table, row.label, row);
  });
}

void Dlg_Numeric(GtkWidget* parent, GtkWidget* table, DLG_NUMERIC* rows) {
  Dlg_Numeric_Parent = parent;
  ForEachRow(rows, [table](DLG_NUMERIC& row) {
    gchar text[64];
    g_snprintf(text, sizeof text, "%*d", CLAMP(row.size, 0, 60), row.data);
    KeepWidget(&row.numeric, NewLabel(text, row.post != 0));
    PlaceControl(table, row.numeric, row);
  });
}
