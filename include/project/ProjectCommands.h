// Project commands of the menus (callbacks) and the check of the project's settings.
#pragma once

#include "Types.h"

// Reopens the last project at start-up.
void ProjDataInit();
void ProjDataNew(GtkWidget* widget, gpointer data);
void ProjDataOpen(GtkWidget* widget, gpointer data);
void ProjDataEdit(GtkWidget* widget, gpointer data);
// Generates the logic of the open project.
void LogicDataEdit(GtkWidget* widget, gpointer data);
// Checks the working copies and tells the first thing that is wrong; 1 when all is well.
gint CheckProjData();
