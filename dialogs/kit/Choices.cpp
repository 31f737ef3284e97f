// Radio buttons, check buttons and drop-down lists.
#include <cstring>

#include "dialogs/Kit.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/Wheel.h"

GtkWidget* Dlg_RadioButn_Parent = nullptr;
GtkWidget* Dlg_CheckButn_Parent = nullptr;
GtkWidget* Dlg_ComboBox_Parent = nullptr;

namespace {

constexpr const gchar* CheckRowKey = "varnix-check-row";

void Dlg_RadioButn_Slct(GtkToggleButton* button, const DLG_RADIOBUTN* row) {
  if (gtk_toggle_button_get_active(button)) StoreInt(row->data, row->code);
}

void Dlg_CheckButn_Slct(GtkToggleButton* button, const DLG_CHECKBUTN* row) {
  StoreInt(row->data, gtk_toggle_button_get_active(button) ? 1 : 0);
}

void ShowCheck(GtkWidget* widget, gpointer /*data*/) {
  const auto* row =
      static_cast<const DLG_CHECKBUTN*>(g_object_get_data(G_OBJECT(widget), CheckRowKey));
  if (row != nullptr) {
    const gpointer write = reinterpret_cast<gpointer>(Dlg_CheckButn_Slct);
    g_signal_handlers_block_matched(widget, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, write, nullptr);
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(widget), LoadInt(row->data) == 1);
    g_signal_handlers_unblock_matched(widget, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, write, nullptr);
  }
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), ShowCheck, nullptr);
}

// Entries up to the empty text that ends the list.
gint ListCount(const gchar* const* list) {
  gint count = 0;
  while (list != nullptr && list[count] != nullptr && *list[count] != '\0') ++count;
  return count;
}

void Dlg_ComboBox_Slct(GtkComboBox* combo, const DLG_COMBOBOX* row) {
  gchar* text = gtk_combo_box_text_get_active_text(GTK_COMBO_BOX_TEXT(combo));
  if (text == nullptr) return;
  const gint count = ListCount(row->list);
  for (gint index = 0; index < count; ++index) {
    if (std::strcmp(text, row->list[index]) == 0) {
      StoreInt(row->item, index);
      break;
    }
  }
  g_free(text);
}

GtkWidget* NewCombo(DLG_COMBOBOX& row, gint count) {
  GtkWidget* combo = row.edit != 0 ? gtk_combo_box_text_new_with_entry() : gtk_combo_box_text_new();
  for (gint index = 0; index < count; ++index) {
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(combo), row.list[index]);
  }
  // An index equal to the count shows an empty text: only a greater one falls back to the first.
  gint shown = LoadInt(row.item);
  if (shown > count) shown = 0;
  gtk_combo_box_set_active(GTK_COMBO_BOX(combo), shown >= 0 && shown < count ? shown : -1);
  g_signal_connect(combo, "changed", G_CALLBACK(Dlg_ComboBox_Slct), &row);
  KeepFromWheel(combo);
  gtk_widget_show(combo);
  return combo;
}

}  // namespace

void Dlg_RadioButn(GtkWidget* parent, GtkWidget* table, DLG_RADIOBUTN* rows) {
  Dlg_RadioButn_Parent = parent;
  GtkRadioButton* group = nullptr;
  const DLG_RADIOBUTN* previous = nullptr;
  ForEachRow(rows, [&](DLG_RADIOBUTN& row) {
    if (previous != nullptr && previous->data != row.data) group = nullptr;
    previous = &row;
    GtkWidget* button = gtk_radio_button_new_with_label_from_widget(group, row.text);
    group = GTK_RADIO_BUTTON(button);
    if (LoadInt(row.data) == row.code) {
      gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), TRUE);
    }
    g_signal_connect(button, "toggled", G_CALLBACK(Dlg_RadioButn_Slct), &row);
    PlaceControl(table, button, row);
  });
}

void Dlg_CheckButn(GtkWidget* parent, GtkWidget* table, DLG_CHECKBUTN* rows) {
  Dlg_CheckButn_Parent = parent;
  ForEachRow(rows, [table](DLG_CHECKBUTN& row) {
    GtkWidget* button = gtk_check_button_new_with_label(row.text);
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), LoadInt(row.data) == 1);
    g_signal_connect(button, "toggled", G_CALLBACK(Dlg_CheckButn_Slct), &row);
    g_object_set_data(G_OBJECT(button), CheckRowKey, &row);
    PlaceControl(table, button, row);
  });
}

void ShowChecks(GtkWidget* root) {
  ShowCheck(root, nullptr);
}

void Dlg_ComboBox(GtkWidget* parent, GtkWidget* table, DLG_COMBOBOX* rows) {
  Dlg_ComboBox_Parent = parent;
  ForEachRow(rows, [table](DLG_COMBOBOX& row) {
    GtkWidget* box = NewCaptionBox(row.text, 0, 5);
    if (const gint count = ListCount(row.list); count > 0) {
      gtk_box_pack_start(GTK_BOX(box), NewCombo(row, count), TRUE, TRUE, 0);
    }
    PlaceControl(table, box, row);
  });
}
