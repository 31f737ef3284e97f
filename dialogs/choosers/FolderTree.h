// The tree of folders below a root, filled as it is unfolded.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>

// Called with the selected folder, "" when none is selected any more.
using FolderSelected = std::function<void(const std::string& path)>;

// A shown tree whose root stands for `root`; the root itself cannot be selected. Hidden folders do
// not appear; a folder reached twice through links is unfolded once.
GtkWidget* CreateFolderTree(const std::string& root, FolderSelected selected);
