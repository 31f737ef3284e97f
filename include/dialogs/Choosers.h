// Folder and file choosers. The results are module storage, valid until the next call.
#pragma once

#include "Types.h"

// An existing folder (made on request), "" when cancelled.
gchar* Dlg_FolderSelect(GtkWidget* parent, const gchar* title);
// Full path of a file: type 0 projects, 1 layouts, 2 pictures; "" when cancelled.
gchar* Dlg_FileSelect(GtkWidget* parent, const gchar* title, gint type);
