#include "support/FolderList.h"

#include <sys/stat.h>

std::optional<std::vector<std::string>> RegularFileNames(const std::string& folder) {
  const FolderHandle open(opendir(folder.c_str()));
  if (!open) return std::nullopt;
  std::vector<std::string> names;
  while (const dirent* entry = readdir(open.get())) {
    struct stat status;
    if (fstatat(dirfd(open.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode)) {
      names.emplace_back(entry->d_name);
    }
  }
  return names;
}
