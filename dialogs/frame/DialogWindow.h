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
// Adds a label to the content.
void AddDialogLabel(const DialogWindow& dialog, const gchar* text);
// Takes line and row away from a dialog without buttons.
void LeaveOutActions(const DialogWindow& dialog);
// Return in an entry of the dialog presses this button.
void SetDefaultButton(GtkWidget* button);
// Keeps `window` above the window that `parent` lies in; nothing happens without one.
void SetDialogParent(GtkWidget* window, GtkWidget* parent);
// Shows the window, holds the grab and returns when the window has been destroyed: the answer that
// CloseDialog gave, `otherwise` when it was closed in another way.
gint RunModal(GtkWidget* window, GtkWidget* parent, gint otherwise = 0);
// The same without the grab: the windows below stay usable.
gint RunModeless(GtkWidget* window, GtkWidget* parent, gint otherwise = 0);
// Destroys the dialog that `inside` lies in and has what runs it return `answer`.
void CloseDialog(GtkWidget* inside, gint answer);
