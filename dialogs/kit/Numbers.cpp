// Spin buttons.
#include <algorithm>
#include <string>

#include "dialogs/Kit.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/Wheel.h"

GtkWidget* Dlg_NumrBox_Parent = nullptr;

namespace {

void Dlg_NumrBox_Change(GtkAdjustment* adjustment, const DLG_NUMRBOX* row) {
  StoreInt(row->data, static_cast<gint>(gtk_adjustment_get_value(adjustment)));
}

// A number out of the range stays for as long as nobody changes it; what is typed is brought into
// the range.
gint Dlg_NumrBox_Input(GtkSpinButton* spin, gdouble* /*value*/, const DLG_NUMRBOX* row) {
  const bool untouched = gtk_entry_get_text(GTK_ENTRY(spin)) == std::to_string(LoadInt(row->data));
  gtk_spin_button_set_update_policy(spin, untouched ? GTK_UPDATE_IF_VALID : GTK_UPDATE_ALWAYS);
  return FALSE;
}

// With the number as it is, even out of the range, where the user sees and may change it.
GtkAdjustment* NewAdjustment(const DLG_NUMRBOX& row) {
  const gint value = LoadInt(row.data);
  GtkAdjustment* adjustment =
      gtk_adjustment_new(value, std::min(value, row.min), std::max(value, row.max), 1.0, 5.0, 0.0);
  gtk_adjustment_set_lower(adjustment, row.min);
  gtk_adjustment_set_upper(adjustment, row.max);
  return adjustment;
}

// The toolkit sets a number to its limit for Control with the page keys, by which the pages of a
// dialog are turned: turning on would change the number that a page begins with.
void LeavePageKeysToPages() {
  static const bool left = [] {
    auto* type = static_cast<GObjectClass*>(g_type_class_ref(GTK_TYPE_SPIN_BUTTON));
    for (const guint key : {GDK_KEY_Page_Up, GDK_KEY_Page_Down}) {
      gtk_binding_entry_skip(gtk_binding_set_by_class(type), key, GDK_CONTROL_MASK);
    }
    g_type_class_unref(type);
    return true;
  }();
  static_cast<void>(left);
}

}  // namespace

void Dlg_NumrBox(GtkWidget* parent, GtkWidget* table, DLG_NUMRBOX* rows) {
  Dlg_NumrBox_Parent = parent;
  LeavePageKeysToPages();
  ForEachRow(rows, [table](DLG_NUMRBOX& row) {
    GtkAdjustment* adjustment = NewAdjustment(row);
    GtkWidget* spin = gtk_spin_button_new(adjustment, 0.0, 0);
    gtk_spin_button_set_wrap(GTK_SPIN_BUTTON(spin), FALSE);
    gtk_spin_button_set_numeric(GTK_SPIN_BUTTON(spin), TRUE);
    gtk_entry_set_activates_default(GTK_ENTRY(spin), TRUE);
    g_signal_connect(adjustment, "value-changed", G_CALLBACK(Dlg_NumrBox_Change), &row);
    g_signal_connect(spin, "input", G_CALLBACK(Dlg_NumrBox_Input), &row);
    KeepFromWheel(spin);
    ShowRange(spin, "設定範囲", row.min, row.max);
    gtk_widget_show(spin);

    GtkWidget* box = NewCaptionBox(row.text, 5, 0);
    gtk_box_pack_start(GTK_BOX(box), spin, TRUE, TRUE, 0);
    KeepWidget(&row.spin, spin);
    PlaceControl(table, box, row);
  });
}
