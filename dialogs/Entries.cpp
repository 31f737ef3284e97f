// Text entries. What the user types must be held by EUC-JP and fit into the record's field;
// anything else is refused before it shows, so that entry and record never differ.
#include <cstring>
#include <string>

#include "dialogs/Cells.h"
#include "dialogs/Kit.h"
#include "support/Text.h"

GtkWidget* Dlg_EditBox_Parent = nullptr;

namespace {

constexpr const gchar* WarningIcon = "dialog-warning-symbolic";
constexpr const gchar* HintKey = "varnix-hint";
constexpr const gchar* NotEncodable = "日本語 EUC にない文字は入力できません。";
constexpr const gchar* TooLong = "文字数の上限を超えるため入力できません。";

// The tooltip of an entry that refuses nothing: how much it takes.
void ShowHint(GtkWidget* entry) {
  gtk_widget_set_tooltip_text(
      entry, static_cast<const gchar*>(g_object_get_data(G_OBJECT(entry), HintKey)));
}

void SetHint(GtkWidget* entry, const DLG_EDITBOX& row) {
  if (row.edit != 0) return;
  const gint size = MAX(row.size, 0);
  g_object_set_data_full(
      G_OBJECT(entry), HintKey,
      g_strdup_printf("半角 %d 文字、全角 %d 文字まで (%d バイト)", size, size / 2, size), g_free);
  ShowHint(entry);
}

void MarkRefused(GtkWidget* entry, const gchar* reason) {
  gtk_style_context_add_class(gtk_widget_get_style_context(entry), GTK_STYLE_CLASS_ERROR);
  gtk_entry_set_icon_from_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, WarningIcon);
  gtk_entry_set_icon_tooltip_text(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, reason);
  gtk_widget_set_tooltip_text(entry, reason);
}

// Says at the entry why the text was refused; the next accepted change takes it away.
void ShowRefusal(GtkWidget* entry, const gchar* reason) {
  MarkRefused(entry, reason);
  gtk_widget_error_bell(entry);
}

bool IsRefused(GtkWidget* entry) {
  return gtk_entry_get_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY) != nullptr;
}

void ClearRefusal(GtkWidget* entry) {
  if (!IsRefused(entry)) return;
  gtk_style_context_remove_class(gtk_widget_get_style_context(entry), GTK_STYLE_CLASS_ERROR);
  gtk_entry_set_icon_from_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, nullptr);
  ShowHint(entry);
}

// Why the entry cannot take `text`, null when it can.
const gchar* ReasonToRefuse(const std::string& text, gint size) {
  const auto euc = EucFromUtf8(text);
  if (!euc) return NotEncodable;
  return euc->size() > static_cast<gsize>(MAX(size, 0)) ? TooLong : nullptr;
}

// A change takes the mark of a refusal away, but not the deletion that makes room for a refused
// text, which comes before it.
void Dlg_EditBox_Delete(GtkEditable* entry, gint /*start*/, gint /*end*/, gpointer /*data*/) {
  ClearRefusal(GTK_WIDGET(entry));
}

void Dlg_EditBox_Insert(GtkEditable* entry, const gchar* text, gint length, const gint* position,
                        const DLG_EDITBOX* row) {
  std::string whole = gtk_entry_get_text(GTK_ENTRY(entry));
  const auto at = g_utf8_offset_to_pointer(whole.c_str(), *position) - whole.c_str();
  const gsize bytes = length < 0 ? std::strlen(text) : static_cast<gsize>(length);
  whole.insert(static_cast<gsize>(at), text, bytes);
  if (const gchar* reason = ReasonToRefuse(whole, row->size)) {
    g_signal_stop_emission_by_name(entry, "insert-text");
    ShowRefusal(GTK_WIDGET(entry), reason);
  } else {
    ClearRefusal(GTK_WIDGET(entry));
  }
}

// Shows again what the record holds, under the mark of the refusal.
void PutBack(GtkWidget* entry, const DLG_EDITBOX* row) {
  gchar* reason = gtk_entry_get_icon_tooltip_text(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY);
  const std::string text(FieldText(row->text, static_cast<gsize>(MAX(row->size, 0)) + 1));
  ShowRecordText(entry, text.c_str());
  gtk_editable_set_position(GTK_EDITABLE(entry), -1);
  MarkRefused(entry, reason);
  g_free(reason);
}

// Stored bytes that are no text show escaped and may then be longer than the field; until they are
// shortened to what fits, the record keeps what it holds.
void Dlg_EditBox_Entry(GtkEditable* entry, const DLG_EDITBOX* row) {
  // A refused text changes nothing by itself: it was to replace another one, which is gone already.
  if (IsRefused(GTK_WIDGET(entry))) {
    PutBack(GTK_WIDGET(entry), row);
    return;
  }
  const gchar* text = gtk_entry_get_text(GTK_ENTRY(entry));
  if (const gchar* reason = ReasonToRefuse(text, row->size)) {
    ShowRefusal(GTK_WIDGET(entry), reason);
    return;
  }
  CopyText(row->text, static_cast<gsize>(MAX(row->size, 0)) + 1, EucFromUtf8(text).value_or(""));
}

}  // namespace

void ShowRecordText(GtkWidget* entry, const gchar* text) {
  const auto block = [entry](bool on) {
    for (GCallback handler : {G_CALLBACK(Dlg_EditBox_Insert), G_CALLBACK(Dlg_EditBox_Entry)}) {
      const gpointer function = reinterpret_cast<gpointer>(handler);
      if (on)
        g_signal_handlers_block_matched(entry, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, function,
                                        nullptr);
      else
        g_signal_handlers_unblock_matched(entry, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, function,
                                          nullptr);
    }
  };
  block(true);
  gtk_entry_set_text(GTK_ENTRY(entry), DisplayText(text).c_str());
  block(false);
  ClearRefusal(entry);
}

void ShowChoice(DLG_EDITBOX* row, const std::string& text) {
  CopyText(row->text, static_cast<gsize>(row->size) + 1, text);
  if (row->entry != nullptr) ShowRecordText(row->entry, row->text);
}

void Dlg_EditBox(GtkWidget* parent, GtkWidget* table, DLG_EDITBOX* rows) {
  Dlg_EditBox_Parent = parent;
  ForEachRow(rows, [table](DLG_EDITBOX& row) {
    GtkWidget* entry = gtk_entry_new();
    const gsize size = static_cast<gsize>(MAX(row.size, 0));
    gtk_entry_set_text(GTK_ENTRY(entry), DisplayText(FieldText(row.text, size + 1)).c_str());
    gtk_editable_set_position(GTK_EDITABLE(entry), 0);
    gtk_editable_set_editable(GTK_EDITABLE(entry), row.edit == 0);
    g_object_set(entry, "truncate-multiline", TRUE, nullptr);
    SetHint(entry, row);
    gtk_entry_set_activates_default(GTK_ENTRY(entry), TRUE);
    g_signal_connect(entry, "delete-text", G_CALLBACK(Dlg_EditBox_Delete), nullptr);
    g_signal_connect(entry, "insert-text", G_CALLBACK(Dlg_EditBox_Insert), &row);
    g_signal_connect(entry, "changed", G_CALLBACK(Dlg_EditBox_Entry), &row);
    KeepWidget(&row.entry, entry);
    PlaceControl(table, entry, row);
  });
}
