// What the folder and the file chooser have in common.
#pragma once

#include <functional>
#include <string>

#include "dialogs/frame/DialogFrame.h"

struct Chooser {
  const gchar* Title = "";
  std::function<void(const DialogWindow& dialog)> Build = {};
  std::function<void(GtkWidget* button)> Choose = {};  // " 選択 " is pressed
  GtkWidget** ChooseButton = nullptr;                  // shows it; insensitive at first
};

// Runs a dialog of 600 x 400 dots that can grow and returns its answer.
gint RunChooser(GtkWidget* parent, const Chooser& chooser);
// The widget in a shown scrolled window.
GtkWidget* NewScrolled(GtkWidget* child, GtkPolicyType horizontal);
// The user's home folder.
std::string HomeFolder();
