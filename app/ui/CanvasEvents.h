// Mouse events of the canvas.
#pragma once

#include <gtk/gtk.h>

// Connects every handler of the canvas.
void ConnectCanvas(GtkWidget* canvas);
