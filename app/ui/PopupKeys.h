// The keyboard and the pop-up menus of the canvas.
#pragma once

#include <gtk/gtk.h>

// While `menu` is open, its keys, all in the group, choose its entries.
void UseKeysIn(GtkWidget* menu, GtkAccelGroup* keys);
// "popup-menu" of the canvas: opens the menu that belongs to the editing state at the pointer if
// that is over the canvas, else below what is being edited. FALSE = none belongs.
gboolean OpenMenuByKey(GtkWidget* canvas, gpointer data);
