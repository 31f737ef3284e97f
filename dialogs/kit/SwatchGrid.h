// Moving through a grid of many controls with the keyboard.
#pragma once

#include <gtk/gtk.h>

// Makes the grid one stop of the Tab key, as buttons after it could hardly be reached otherwise.
// Tab comes to the control that had the keyboard last; the arrow keys move within the grid.
void MakeOneTabStop(GtkWidget* grid);
// The control that Tab comes to first.
void SetTabStop(GtkWidget* grid, GtkWidget* control);
