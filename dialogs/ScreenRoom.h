// Keeping dialogs on the screen: one that is too high for it scrolls.
#pragma once

#include <gtk/gtk.h>

#include "Types.h"

// Adds to the window's vertical box the box that the dialog is filled into.
GtkWidget* AddScrollableContent(GtkWidget* window, GtkWidget* box);
// Makes a filled dialog no higher than the screen.
void FitToScreen(GtkWidget* window);
// Where the window lies whole on the screen, as near to `place` as can be.
POINT PlaceOnScreen(GtkWidget* window, const POINT& place);
