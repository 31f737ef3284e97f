// Where the canvas is scrolled to, and the keys and wheel that move it.
#pragma once

#include <gtk/gtk.h>

// Has the canvas, which lies in it, scrolled by the arrow keys of `window` too and zoomed by the
// wheel with Control held.
void ConnectScroll(GtkWidget* window, GtkWidget* scrolled);
// Notes where the layout on the canvas stands. Called before another takes its place or its size
// changes.
void KeepScrollPlace();
// Brings the layout that the canvas now shows to where it stood last, its middle staying the middle
// in another zoom; to its top left corner when it is new.
void RestoreScrollPlace();
