// The layouts of the open project, as the open and close dialogs list them.
#pragma once

#include <gtk/gtk.h>

#include "dialogs/frame/DialogWindow.h"

// Fills a name list with the layouts of the project folder, named up to the first dot, in the
// folder's own order; `incomplete`: only those that hold incomplete items. One whose name
// PtrnFileName cannot hold is unusable.
void ListLayouts(GtkWidget* list, bool incomplete);
// Adds the label "フォルダー" and the scrolled list to a dialog.
void AddLayoutList(const DialogWindow& dialog, GtkWidget* list);
