#include "app/Menus.h"
#include "dialogs/kit/LatePress.h"

namespace {

GtkWidget* Append(GtkWidget* shell, GtkWidget* entry) {
  gtk_menu_shell_append(GTK_MENU_SHELL(shell), entry);
  gtk_widget_show(entry);
  return entry;
}

GtkWidget* Opening(GtkWidget* shell, const gchar* label) {
  GtkWidget* menu = gtk_menu_new();
  GtkWidget* entry = Append(shell, gtk_menu_item_new_with_label(label));
  gtk_menu_item_set_submenu(GTK_MENU_ITEM(entry), menu);
  return menu;
}

}  // namespace

GtkWidget* CreateTopMenu(GtkWidget* bar, const gchar* label) {
  return Opening(bar, label);
}

GtkWidget* CreateSubMenu(GtkWidget* menu, const gchar* label) {
  return Opening(menu, label);
}

GtkWidget* CreateMenuItem(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data) {
  GtkWidget* entry = Append(menu, NewMenuEntry(label));
  g_signal_connect(entry, "activate", G_CALLBACK(callback), GINT_TO_POINTER(data));
  return entry;
}

GtkWidget* CreateCheckMenu(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data) {
  GtkWidget* entry = Append(menu, gtk_check_menu_item_new_with_label(label));
  g_signal_connect(entry, "toggled", G_CALLBACK(callback), GINT_TO_POINTER(data));
  return entry;
}

void CreateSeparator(GtkWidget* menu) {
  Append(menu, gtk_separator_menu_item_new());
}
