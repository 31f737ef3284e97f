// What a tool box window is made of.
#pragma once

#include "dialogs/ToolBox.h"

// Builds the page of an item type, for the display language and the project's colour systems, into
// the window's content box.
void BuildToolBoxPage(GtkWidget* window, gint type);
// The box under a tool box window that takes the page.
GtkWidget* ToolBoxContent(GtkWidget* window);
void SetToolBoxContent(GtkWidget* window, GtkWidget* content);
