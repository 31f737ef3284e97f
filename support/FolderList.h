// Open folders and the files in them.
#pragma once

#include <dirent.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct FolderCloser {
  void operator()(DIR* folder) const { closedir(folder); }
};
using FolderHandle = std::unique_ptr<DIR, FolderCloser>;

// Names of all regular files, hidden ones included, in the folder's own order; nothing when it
// cannot be read to its end. The list is complete before anybody acts on it: a folder that changes
// while it is being read may show an entry twice.
std::optional<std::vector<std::string>> RegularFileNames(const std::string& folder);
