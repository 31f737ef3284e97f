#include "support/FolderList.h"

#include <sys/stat.h>

#include <cerrno>

namespace {

// What an entry that cannot be looked at may be without anything being wrong with the system.
bool IsOrdinary(int error) {
  return error == ENOENT || error == ELOOP || error == EACCES || error == ENOTDIR;
}

}  // namespace

std::optional<std::vector<std::string>> RegularFileNames(const std::string& folder) {
  const FolderHandle open(opendir(folder.c_str()));
  if (!open) return std::nullopt;
  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = readdir(open.get())) {
    struct stat status;
    if (fstatat(dirfd(open.get()), entry->d_name, &status, 0) != 0) {
      if (!IsOrdinary(errno)) return std::nullopt;
    } else if (S_ISREG(status.st_mode)) {
      names.emplace_back(entry->d_name);
    }
    errno = 0;
  }
  if (errno != 0) return std::nullopt;
  return names;
}
