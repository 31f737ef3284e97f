// Spin buttons.
#include "dialogs/Cells.h"
#include "dialogs/Kit.h"

GtkWidget* Dlg_NumrBox_Parent = nullptr;

namespace {

void Dlg_NumrBox_Change(GtkAdjustment* adjustment, const DLG_NUMRBOX* row) {
  StoreInt(row->data, static_cast<gint>(gtk_adjustment_get_value(adjustment)));
}

}  // namespace

void Dlg_NumrBox(GtkWidget* parent, GtkWidget* table, DLG_NUMRBOX* rows) {
  Dlg_NumrBox_Parent = parent;
  ForEachRow(rows, [table](DLG_NUMRBOX& row) {
    GtkAdjustment* adjustment =
        gtk_adjustment_new(LoadInt(row.data), row.min, row.max, 1.0, 5.0, 0.0);
    GtkWidget* spin = gtk_spin_button_new(adjustment, 0.0, 0);
    gtk_spin_button_set_wrap(GTK_SPIN_BUTTON(spin), FALSE);
    gtk_spin_button_set_numeric(GTK_SPIN_BUTTON(spin), TRUE);
    gtk_entry_set_activates_default(GTK_ENTRY(spin), TRUE);
    g_signal_connect(adjustment, "value-changed", G_CALLBACK(Dlg_NumrBox_Change), &row);
    ShowRange(spin, "設定範囲", row.min, row.max);
    gtk_widget_show(spin);

    GtkWidget* box = NewCaptionBox(row.text, 5, 0);
    gtk_box_pack_start(GTK_BOX(box), spin, TRUE, TRUE, 0);
    KeepWidget(&row.spin, spin);
    PlaceControl(table, box, row);
  });
}
