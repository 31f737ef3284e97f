// Folder and file choosers. The results are module storage, valid until the next call.
#pragma once

#include <string>

#include "Types.h"

// An existing folder (made on request), "" when cancelled.
gchar* Dlg_FolderSelect(GtkWidget* parent, const gchar* title);
// Full path of a file: type 0 projects, 1 layouts, 2 pictures; "" when cancelled.
gchar* Dlg_FileSelect(GtkWidget* parent, const gchar* title, gint type);
// Copies a chosen picture into the project's bitmap folder, unless that is not known yet, and
// returns the name it has there, extension included. The name becomes EUC-JP, as records store it;
// one that EUC-JP cannot hold keeps its bytes. `folder`, if given, takes the picture's own folder.
std::string CopyToBitmapFolder(const gchar* chosen, std::string* folder = nullptr);
