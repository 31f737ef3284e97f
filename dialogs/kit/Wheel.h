// The wheel over controls that it can change.
#pragma once

#include <gtk/gtk.h>

// The wheel changes the control only while it has the keyboard; else it scrolls what the control
// stands in.
void KeepFromWheel(GtkWidget* control);
