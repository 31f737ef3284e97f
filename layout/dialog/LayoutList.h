// The layouts of the open project, as the open and close dialogs list them.
#pragma once

#include <gtk/gtk.h>

#include "Types.h"

// Name chosen or typed in the open and close dialogs, EUC-JP.
extern gchar PtrnFileName[82];

// Fills a name list with the layouts of the project folder, named up to the first dot, in the
// folder's own order; `incomplete`: only those that hold incomplete items. One whose name
// PtrnFileName cannot hold is unusable.
void ListLayouts(GtkWidget* list, bool incomplete);
