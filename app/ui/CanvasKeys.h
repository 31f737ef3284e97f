// Keys that act on what is being edited on the canvas.
#pragma once

#include <gtk/gtk.h>

// Delete removes the selected item or the items in the area, Return registers the item in hand,
// Escape gives up what is begun. Keys of the main window, TRUE when taken.
gboolean CanvasKey(GtkWidget* widget, GdkEventKey* event, gpointer data);
