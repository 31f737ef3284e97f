#include "app/ui/MenuRows.h"

#include "app/ui/Holders.h"

namespace {

GtkWidget* AddCheck(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data) {
  GtkWidget* entry = CreateCheckMenu(menu, label, callback, data);
  g_signal_connect(entry, "toggled", G_CALLBACK(MarkToggled), nullptr);
  return entry;
}

void AddType(GtkWidget* menu, const MenuRow& row, const ItemTypeRow& type) {
  const gint no = type.Type - 1;
  KeepWidget(&row.Slot[no], AddCheck(menu, type.Label, row.Callback, no));
}

void AddTypes(GtkWidget* menu, const MenuRow& row) {
  for (const ItemTypeRow& type : ItemTypes()) AddType(menu, row, type);
}

void AddFamilies(GtkWidget* menu, const MenuRow& row) {
  for (const ItemFamily family : ItemFamilies) {
    if (family != ItemFamilies[0]) CreateSeparator(menu);
    for (const ItemTypeRow& type : ItemTypes()) {
      if (type.Family == family) AddType(menu, row, type);
    }
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
  if (key == GDK_KEY_Delete) {
    gtk_widget_add_accelerator(entry, "activate", keys, GDK_KEY_KP_Delete, modifiers,
                               GtkAccelFlags{});
  }
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
        AddTypes(menu, row);
        break;
      case RowKind::GroupedTypes:
        AddFamilies(menu, row);
        break;
    }
  }
}
