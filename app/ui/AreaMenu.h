// The area that is spanned while its pop-up menu, or another of the canvas, is open.
#pragma once

#include <gtk/gtk.h>

// Gives the area up, if there is one, as the entry of its menu does.
void GiveUpArea();
// Has the area given up when this menu is left without a choice, in whatever way.
void GiveUpAreaWith(GtkWidget* menu);
// Callback of the area menu's entries: runs the command, which ends the area by itself.
void ChooseAreaCommand(GtkWidget* entry, gpointer command);
