// Menus as tables.
#pragma once

#include <array>
#include <span>

#include "app/Menus.h"
#include "layout/Guards.h"

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
// The zooms, with the slots of their entries.
constexpr std::array<MenuRow, ZoomCode::Count> ZoomRowsOf(MenuCallback zoom, GtkWidget** slots) {
  using namespace ZoomCode;
  return {Check("500%", zoom, Percent500, slots + Percent500, "<Control>5"),
          Check("200%", zoom, Percent200, slots + Percent200, "<Control>2"),
          Check("100%", zoom, Percent100, slots + Percent100, "<Control>1"),
          Check(" 75%", zoom, Percent75, slots + Percent75, "<Control>7"),
          Check(" 50%", zoom, Percent50, slots + Percent50, "<Control>0")};
}

// A group for the keys of a menu or menu bar, which owns it.
GtkAccelGroup* NewKeys(GtkWidget* menu);

// Appends the rows' entries to a menu. Their keys are entered in the group and shown.
void BuildMenu(GtkWidget* menu, std::span<const MenuRow> rows, GtkAccelGroup* keys);

// Puts every mark back to what it stands for; runs after an entry's own callback.
void MarkToggled(GtkWidget* widget, gpointer data);
