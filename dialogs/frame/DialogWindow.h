// The frame of a dialog: content above, a line, a row of buttons below.
#pragma once

#include <gtk/gtk.h>

struct DialogWindow {
  GtkWidget* Window;
  GtkWidget* Content;  // vertical box; scrolls where the screen is too low for it
  GtkWidget* Actions;  // horizontal box of the buttons
};

// A dialog of its own. Escape closes it as the window manager would.
DialogWindow NewDialogWindow(const gchar* title);
// Adds a shown button; `clicked` gets (button, data).
GtkWidget* AddDialogButton(const DialogWindow& dialog, const gchar* label, GCallback clicked,
                           gpointer data);
// Takes line and row away from a dialog without buttons.
void LeaveOutActions(const DialogWindow& dialog);
// Return in an entry of the dialog presses this button.
void SetDefaultButton(GtkWidget* button);
// Keeps `window` above the window that `parent` lies in; nothing happens without one.
void SetDialogParent(GtkWidget* window, GtkWidget* parent);
// Shows the window, holds the grab and returns when the window has been destroyed.
void RunModal(GtkWidget* window, GtkWidget* parent);
// The same without the grab: the windows below stay usable.
void RunModeless(GtkWidget* window, GtkWidget* parent);
