#include "dialogs/choosers/ChooserWindow.h"

#include "dialogs/frame/Accessible.h"

DialogWindow NewChooserWindow(const gchar* title, GCallback choose, GCallback cancel,
                              GtkWidget** chooseButton) {
  const DialogWindow dialog = NewDialogWindow(title);
  gtk_widget_set_size_request(dialog.Window, 600, 400);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  *chooseButton = AddDialogButton(dialog, " 選択 ", choose, dialog.Window);
  gtk_widget_set_sensitive(*chooseButton, FALSE);
  SetDefaultButton(*chooseButton);
  AddDialogButton(dialog, " 取消 ", cancel, dialog.Window);
  return dialog;
}

GtkWidget* NewScrolled(GtkWidget* child, GtkPolicyType horizontal) {
  GtkWidget* scrolled = gtk_scrolled_window_new(nullptr, nullptr);
  gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), horizontal, GTK_POLICY_AUTOMATIC);
  // The keyboard goes to what is in it.
  gtk_widget_set_can_focus(scrolled, FALSE);
  NameScrollBars(scrolled);
  gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scrolled), GTK_SHADOW_IN);
  gtk_container_add(GTK_CONTAINER(scrolled), child);
  gtk_widget_show(scrolled);
  return scrolled;
}

std::string HomeFolder() {
  const gchar* home = g_getenv("HOME");
  return home != nullptr && *home != '\0' ? home : g_get_home_dir();
}
