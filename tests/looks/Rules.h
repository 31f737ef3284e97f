// The rules of a good look that hold for every window, theme, scale and font size.
#pragma once

#include <gtk/gtk.h>

// Fails the test for each text that is cut, control that is squeezed or lies over another, and
// where the window reaches past the screen.
void CheckLook(GtkWidget* window);
// Fails the test where the Tab key leads upwards, or leftwards in a row.
void CheckTabOrder(GtkWidget* window);
