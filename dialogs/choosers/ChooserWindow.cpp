#include "dialogs/choosers/ChooserWindow.h"

#include "dialogs/frame/Accessible.h"

gint RunChooser(GtkWidget* parent, const Chooser& chooser) {
  return RunDialog(parent, {.Title = chooser.Title,
                            .Build =
                                [&chooser](const DialogWindow& dialog) {
                                  gtk_widget_set_size_request(dialog.Window, 600, 400);
                                  chooser.Build(dialog);
                                },
                            .Buttons = {{.Label = " 選択 ",
                                         .Pressed = chooser.Choose,
                                         .Sensitive = false,
                                         .Default = true,
                                         .Shown = chooser.ChooseButton},
                                        CancelButton()},
                            .Resizable = true});
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
