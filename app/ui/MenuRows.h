// Menus as tables.
#pragma once

#include <span>

#include "app/Menus.h"

enum class RowKind { Item, Check, Separator, SubMenu, Types, GroupedTypes };

// One entry, or all item types (grouped: with separators between the families).
struct MenuRow {
  RowKind Kind = RowKind::Separator;
  const gchar* Label = nullptr;
  MenuCallback Callback = nullptr;
  gint Data = 0;
  GtkWidget** Slot = nullptr;
  const gchar* Key = nullptr;  // as gtk_accelerator_parse takes it
  std::span<const MenuRow> Rows = {};
};

constexpr MenuRow Item(const gchar* label, MenuCallback callback, gint data, GtkWidget** slot,
                       const gchar* key = nullptr) {
  return {RowKind::Item, label, callback, data, slot, key};
}
constexpr MenuRow Check(const gchar* label, MenuCallback callback, gint data, GtkWidget** slot,
                        const gchar* key = nullptr) {
  return {RowKind::Check, label, callback, data, slot, key};
}
constexpr MenuRow SubMenu(const gchar* label, std::span<const MenuRow> rows) {
  return {RowKind::SubMenu, label, nullptr, 0, nullptr, nullptr, rows};
}
constexpr MenuRow Types(RowKind kind, MenuCallback callback, GtkWidget** slots) {
  return {kind, nullptr, callback, 0, slots};
}
inline constexpr MenuRow Separator;

// A group for the keys of a menu or menu bar, which owns it.
GtkAccelGroup* NewKeys(GtkWidget* menu);

// Appends the rows' entries to a menu. Their keys are entered in the group and shown.
void BuildMenu(GtkWidget* menu, std::span<const MenuRow> rows, GtkAccelGroup* keys);

// Puts every mark back to what it stands for; runs after an entry's own callback.
void MarkToggled(GtkWidget* widget, gpointer data);
