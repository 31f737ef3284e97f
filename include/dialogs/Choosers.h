// Folder and file choosers. The results are module storage, valid until the next call.
#pragma once

#include <string>

#include "Types.h"
#include "dialogs/Kit.h"

// An existing folder (made on request), "" when cancelled.
gchar* Dlg_FolderSelect(GtkWidget* parent, const gchar* title);
// Full path of a file: type 0 projects, 1 layouts, 2 pictures; "" when cancelled.
gchar* Dlg_FileSelect(GtkWidget* parent, const gchar* title, gint type);
// Copies a chosen picture into the project's bitmap folder, unless that is not known yet, and
// enters the name it has there, extension included, into the row and its entry. The name becomes
// EUC-JP, as records store it; one that EUC-JP cannot hold keeps its bytes. False for a name that
// the row cannot hold: a message says so, and nothing is copied. `folder`, if given, takes the
// picture's own folder; while the settings of a new project are shown nothing is copied then, for
// the caller does once that project has a folder.
bool TakePicture(const gchar* chosen, DLG_EDITBOX* row, std::string* folder = nullptr);
