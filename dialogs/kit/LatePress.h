// Presses that assistive technology asks for. Who asks waits for the answer, and what is pressed
// may open a dialog: so the answer is given at once, and the press follows when the program is
// idle.
#pragma once

#include <gtk/gtk-a11y.h>
#include <gtk/gtk.h>

// A button and a menu entry that are pressed so.
GtkWidget* NewButton(const gchar* label);
GtkWidget* NewMenuEntry(const gchar* label);

// Begins the actions of an accessible's type whose first action is to press the widget.
void PressLater(AtkActionIface* actions);
