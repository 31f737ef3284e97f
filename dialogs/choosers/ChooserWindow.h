// What the folder and the file chooser have in common.
#pragma once

#include <string>

#include "dialogs/frame/DialogWindow.h"

// A dialog of 600 x 400 dots that can grow, with " 選択 " (insensitive at first) and " 取消 ".
DialogWindow NewChooserWindow(const gchar* title, GCallback choose, GCallback cancel,
                              GtkWidget** chooseButton);
// The widget in a shown scrolled window.
GtkWidget* NewScrolled(GtkWidget* child, GtkPolicyType horizontal);
// The user's home folder.
std::string HomeFolder();
