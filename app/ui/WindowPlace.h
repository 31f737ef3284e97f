// The main window's size from one run to the next.
#pragma once

#include <gtk/gtk.h>

#include "Types.h"

// The saved size, 800 x 600 when there is none.
SIZE SavedWindowSize();
// Keeps the main window's size in memory; a handler of its allocations.
void RememberWindowSize(GtkWidget* widget, GdkRectangle* allocation, gpointer data);
