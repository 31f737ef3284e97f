// Text entries. What the user types must be held by EUC-JP, and goes in as far as it fits into the
// record's field; the rest never shows, so that entry and record never differ.
#include <string>

#include "dialogs/Kit.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/EntryLook.h"
#include "support/Text.h"

GtkWidget* Dlg_EditBox_Parent = nullptr;

namespace {

constexpr const gchar* RefusedKey = "varnix-refused";
constexpr const gchar* NotEncodable = "日本語 EUC にない文字は入力できません。";

// Whether the latest text that was to go into an entry did not, or not whole.
bool LeftOut = false;

gsize Limit(const DLG_EDITBOX& row) {
  return static_cast<gsize>(MAX(row.size, 0));
}

void SetHint(GtkWidget* entry, const DLG_EDITBOX& row) {
  if (row.edit != 0) return;
  const gsize size = Limit(row);
  SetEntryHint(entry, "半角 " + std::to_string(size) + " 文字、全角 " + std::to_string(size / 2) +
                          " 文字まで (" + std::to_string(size) + " バイト)");
}

bool IsRefused(GtkWidget* entry) {
  return g_object_get_data(G_OBJECT(entry), RefusedKey) != nullptr;
}

void ClearRefusal(GtkWidget* entry) {
  g_object_set_data(G_OBJECT(entry), RefusedKey, nullptr);
  UnmarkEntry(entry);
}

// Says at the entry what became of the text; the next change takes it away.
void Complain(GtkWidget* entry, const gchar* reason) {
  LeftOut = true;
  MarkEntry(entry, reason);
  gtk_widget_error_bell(entry);
}

void Refuse(GtkWidget* entry, const gchar* reason) {
  Complain(entry, reason);
  g_object_set_data(G_OBJECT(entry), RefusedKey, entry);
}

// A change takes the mark of a refusal away, but not the deletion that makes room for a refused
// text, which comes before it.
void Dlg_EditBox_Delete(GtkEditable* entry, gint /*start*/, gint /*end*/, gpointer /*data*/) {
  ClearRefusal(GTK_WIDGET(entry));
}

// The whole characters at the front of `text` that `room` bytes of EUC-JP hold.
std::string Fitting(const std::string& text, std::string_view euc, gsize room) {
  const std::string taken = Utf8FromEuc(CutEuc(euc, room)).value_or("");
  const glong count = g_utf8_strlen(taken.c_str(), -1);
  return text.substr(
      0, static_cast<gsize>(g_utf8_offset_to_pointer(text.c_str(), count) - text.c_str()));
}

// Enters the part that fits. The caller's position moves on with it, as an input method and a paste
// expect.
void Dlg_EditBox_Insert(GtkEditable* entry, const gchar* text, gint length, gint* position,
                        const DLG_EDITBOX* row) {
  GtkWidget* widget = GTK_WIDGET(entry);
  const std::string added =
      length < 0 ? std::string(text) : std::string(text, static_cast<gsize>(length));
  const auto held = EucFromUtf8(gtk_entry_get_text(GTK_ENTRY(entry)));
  const auto euc = EucFromUtf8(added);
  const gsize limit = Limit(*row);
  const gsize room = held && held->size() < limit ? limit - held->size() : 0;
  if (held && euc && euc->size() <= room) {
    LeftOut = false;
    ClearRefusal(widget);
    return;
  }
  g_signal_stop_emission_by_name(entry, "insert-text");
  if (!held || !euc) return Refuse(widget, NotEncodable);
  const std::string part = Fitting(added, *euc, room);
  if (part.empty()) return Refuse(widget, EntryTakesNoMore);
  gtk_editable_insert_text(entry, part.c_str(), static_cast<gint>(part.size()), position);
  Complain(widget, EntryTookAPart);
}

// Text dragged out of an entry stays there unless all of it has gone where it was dropped.
void Dlg_EditBox_Moved(GtkWidget* entry, GdkDragContext* /*context*/, gpointer /*data*/) {
  if (LeftOut) g_signal_stop_emission_by_name(entry, "drag-data-delete");
}

void Dlg_EditBox_Drag(GtkWidget* /*entry*/, GdkDragContext* /*context*/, gpointer /*data*/) {
  LeftOut = false;
}

// Shows again what the record holds, under the mark of the refusal.
void PutBack(GtkWidget* entry, const DLG_EDITBOX* row) {
  gchar* reason = gtk_entry_get_icon_tooltip_text(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY);
  const std::string text(FieldText(row->text, Limit(*row) + 1));
  ShowRecordText(entry, text.c_str());
  gtk_editable_set_position(GTK_EDITABLE(entry), -1);
  MarkEntry(entry, reason);
  g_free(reason);
}

// Stored bytes that are no text show escaped and may then be longer than the field; until they are
// shortened to what fits, the record keeps what it holds.
void Dlg_EditBox_Entry(GtkEditable* entry, const DLG_EDITBOX* row) {
  GtkWidget* widget = GTK_WIDGET(entry);
  // A refused text changes nothing by itself: it was to replace another one, which is gone already.
  if (IsRefused(widget)) return PutBack(widget, row);
  const auto euc = EucFromUtf8(gtk_entry_get_text(GTK_ENTRY(entry)));
  if (!euc) return Refuse(widget, NotEncodable);
  if (euc->size() > Limit(*row)) return Refuse(widget, EntryTakesNoMore);
  CopyText(row->text, Limit(*row) + 1, *euc);
}

}  // namespace

void ShowRecordText(GtkWidget* entry, const gchar* text) {
  const auto block = [entry](bool on) {
    for (GCallback handler : {G_CALLBACK(Dlg_EditBox_Insert), G_CALLBACK(Dlg_EditBox_Entry)}) {
      const gpointer function = reinterpret_cast<gpointer>(handler);
      if (on) {
        g_signal_handlers_block_matched(entry, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, function,
                                        nullptr);
      } else {
        g_signal_handlers_unblock_matched(entry, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, function,
                                          nullptr);
      }
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
    gtk_entry_set_text(GTK_ENTRY(entry), DisplayText(FieldText(row.text, Limit(row) + 1)).c_str());
    gtk_editable_set_position(GTK_EDITABLE(entry), 0);
    if (row.edit != 0) MakeReadOnly(entry);
    g_object_set(entry, "truncate-multiline", TRUE, nullptr);
    SetHint(entry, row);
    gtk_entry_set_activates_default(GTK_ENTRY(entry), TRUE);
    g_signal_connect(entry, "delete-text", G_CALLBACK(Dlg_EditBox_Delete), nullptr);
    g_signal_connect(entry, "insert-text", G_CALLBACK(Dlg_EditBox_Insert), &row);
    g_signal_connect(entry, "changed", G_CALLBACK(Dlg_EditBox_Entry), &row);
    g_signal_connect(entry, "drag-begin", G_CALLBACK(Dlg_EditBox_Drag), nullptr);
    g_signal_connect(entry, "drag-data-delete", G_CALLBACK(Dlg_EditBox_Moved), nullptr);
    KeepWidget(&row.entry, entry);
    PlaceControl(table, entry, row);
  });
}
