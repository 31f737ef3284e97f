// Dialogs told by a description: what a window shows, its buttons, and what they answer.
#pragma once

#include <functional>
#include <vector>

#include "dialogs/frame/DialogWindow.h"

struct DialogButton {
  const gchar* Label = "";
  // Called with the button; without it a press closes the dialog with `Answer`.
  std::function<void(GtkWidget* button)> Pressed = {};
  gint Answer = 0;
  bool Sensitive = true;        // at first
  bool Default = false;         // Return in an entry presses it
  GtkWidget** Shown = nullptr;  // the button for as long as it lives, then null
};

// Closes a dialog with answer 0.
DialogButton CancelButton(const gchar* label = " 取消 ");

struct DialogFrame {
  const gchar* Title = "";
  // Fills the content; the buttons are there already.
  std::function<void(const DialogWindow& dialog)> Build = {};
  std::vector<DialogButton> Buttons = {};  // none = neither line nor row of buttons
  bool Resizable = false;
  GtkWindowPosition Place = GTK_WIN_POS_CENTER;
  bool Modal = true;
  gint Otherwise = 0;            // the answer when it is closed without a button
  GtkWidget** Window = nullptr;  // the window for as long as it lives, then null
};

// Builds the dialog over `parent`, runs it and returns its answer.
gint RunDialog(GtkWidget* parent, DialogFrame frame);
