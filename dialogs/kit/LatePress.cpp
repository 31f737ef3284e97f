#include "dialogs/kit/LatePress.h"

namespace {

struct LateButton {
  GtkButton Parent;
};
struct LateButtonClass {
  GtkButtonClass Parent;
};
struct LateButtonAccessible {
  GtkButtonAccessible Parent;
};
struct LateButtonAccessibleClass {
  GtkButtonAccessibleClass Parent;
};
struct LateMenuEntry {
  GtkMenuItem Parent;
};
struct LateMenuEntryClass {
  GtkMenuItemClass Parent;
};
struct LateMenuEntryAccessible {
  GtkMenuItemAccessible Parent;
};
struct LateMenuEntryAccessibleClass {
  GtkMenuItemAccessibleClass Parent;
};

G_DEFINE_TYPE(LateButton, late_button, GTK_TYPE_BUTTON)
G_DEFINE_TYPE_WITH_CODE(LateButtonAccessible, late_button_accessible, GTK_TYPE_BUTTON_ACCESSIBLE,
                        G_IMPLEMENT_INTERFACE(ATK_TYPE_ACTION, PressLater))
G_DEFINE_TYPE(LateMenuEntry, late_menu_entry, GTK_TYPE_MENU_ITEM)
G_DEFINE_TYPE_WITH_CODE(LateMenuEntryAccessible, late_menu_entry_accessible,
                        GTK_TYPE_MENU_ITEM_ACCESSIBLE,
                        G_IMPLEMENT_INTERFACE(ATK_TYPE_ACTION, PressLater))

void late_button_class_init(LateButtonClass* type) {
  gtk_widget_class_set_accessible_type(GTK_WIDGET_CLASS(type), late_button_accessible_get_type());
}

void late_button_init(LateButton* /*button*/) {}
void late_button_accessible_class_init(LateButtonAccessibleClass* /*type*/) {}
void late_button_accessible_init(LateButtonAccessible* /*accessible*/) {}

void late_menu_entry_class_init(LateMenuEntryClass* type) {
  gtk_widget_class_set_accessible_type(GTK_WIDGET_CLASS(type),
                                       late_menu_entry_accessible_get_type());
}

void late_menu_entry_init(LateMenuEntry* /*entry*/) {}
void late_menu_entry_accessible_class_init(LateMenuEntryAccessibleClass* /*type*/) {}
void late_menu_entry_accessible_init(LateMenuEntryAccessible* /*accessible*/) {}

// A modal window keeps the mouse from the controls of all others; so it does a press over the bus.
bool CanBePressed(GtkWidget* widget) {
  GtkWidget* modal = gtk_grab_get_current();
  return widget != nullptr && gtk_widget_is_sensitive(widget) &&
         (!GTK_IS_WINDOW(modal) || gtk_widget_get_toplevel(widget) == modal);
}

void Press(GtkWidget* widget) {
  if (GTK_IS_BUTTON(widget)) {
    gtk_button_clicked(GTK_BUTTON(widget));
  } else if (GTK_IS_MENU_ITEM(widget) && gtk_widget_get_mapped(widget)) {
    gtk_menu_shell_activate_item(GTK_MENU_SHELL(gtk_widget_get_parent(widget)), widget, TRUE);
  } else {
    gtk_widget_activate(widget);
  }
}

gboolean PressWhenIdle(gpointer accessible) {
  GtkWidget* widget = gtk_accessible_get_widget(GTK_ACCESSIBLE(accessible));
  if (CanBePressed(widget)) Press(widget);
  return G_SOURCE_REMOVE;
}

gboolean DoAction(AtkAction* accessible, gint action) {
  if (action != 0 || !CanBePressed(gtk_accessible_get_widget(GTK_ACCESSIBLE(accessible)))) {
    return FALSE;
  }
  g_idle_add_full(G_PRIORITY_DEFAULT, PressWhenIdle, g_object_ref(accessible), g_object_unref);
  return TRUE;
}

GtkWidget* Labelled(GType type, const gchar* label) {
  return static_cast<GtkWidget*>(g_object_new(type, "label", label, nullptr));
}

}  // namespace

GtkWidget* NewButton(const gchar* label) {
  return Labelled(late_button_get_type(), label);
}

GtkWidget* NewMenuEntry(const gchar* label) {
  return Labelled(late_menu_entry_get_type(), label);
}

void PressLater(AtkActionIface* actions) {
  actions->do_action = DoAction;
}
