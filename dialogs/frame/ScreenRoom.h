// Keeping dialogs on the screen: one that is too high for it scrolls.
#pragma once

#include <gtk/gtk.h>

#include "Types.h"

// Tells which child of a vertical box in the window scrolls where the screen is too low for all.
void SetDialogContent(GtkWidget* window, GtkWidget* content);
// Makes a filled dialog no higher than the screen.
void FitToScreen(GtkWidget* window);
// Where the window lies whole on the screen, as near to `place` as can be.
POINT PlaceOnScreen(GtkWidget* window, const POINT& place);
// Scrolls what the control stands in, if that scrolls, until this part of the control is seen.
void ScrollTo(GtkWidget* control, const GdkRectangle& part);
