#include "app/ui/MenuRows.h"

#include "Constant.h"
#include "app/ui/Holders.h"

namespace {
constexpr gint TypeCount = 15;

GtkWidget* AddCheck(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data) {
  GtkWidget* entry = CreateCheckMenu(menu, label, callback, data);
  g_signal_connect(entry, "toggled", G_CALLBACK(MarkToggled), nullptr);
  return entry;
}

void AddTypes(GtkWidget* menu, const MenuRow& row) {
  for (gint type = 0; type < TypeCount; type++) {
    KeepWidget(&row.Slot[type], AddCheck(menu, PtrnTypeList[type], row.Callback, type));
    // Areas and lines, texts, controls.
    if (row.Kind == RowKind::GroupedTypes && (type == 4 || type == 7)) CreateSeparator(menu);
  }
}

void FinishEntry(GtkWidget* entry, const MenuRow& row, GtkAccelGroup* keys) {
  if (row.Slot != nullptr) KeepWidget(row.Slot, entry);
  if (row.Key == nullptr) return;
  guint key = 0;
  GdkModifierType modifiers{};
  gtk_accelerator_parse(row.Key, &key, &modifiers);
  gtk_widget_add_accelerator(entry, "activate", keys, key, modifiers, GTK_ACCEL_VISIBLE);
  // The number pad's is the same key to the user.
  if (key == GDK_KEY_Delete)
    gtk_widget_add_accelerator(entry, "activate", keys, GDK_KEY_KP_Delete, modifiers,
                               GtkAccelFlags{});
}
}  // namespace

GtkAccelGroup* NewKeys(GtkWidget* menu) {
  GtkAccelGroup* keys = gtk_accel_group_new();
  g_object_set_data_full(G_OBJECT(menu), "varnix-keys", keys, g_object_unref);
  return keys;
}

void BuildMenu(GtkWidget* menu, std::span<const MenuRow> rows, GtkAccelGroup* keys) {
  for (const MenuRow& row : rows) {
    switch (row.Kind) {
      case RowKind::Item:
        FinishEntry(CreateMenuItem(menu, row.Label, row.Callback, row.Data), row, keys);
        break;
      case RowKind::Check:
        FinishEntry(AddCheck(menu, row.Label, row.Callback, row.Data), row, keys);
        break;
      case RowKind::Separator:
        CreateSeparator(menu);
        break;
      case RowKind::SubMenu:
        BuildMenu(CreateSubMenu(menu, row.Label), row.Rows, keys);
        break;
      case RowKind::Types:
      case RowKind::GroupedTypes:
        AddTypes(menu, row);
        break;
    }
  }
}
