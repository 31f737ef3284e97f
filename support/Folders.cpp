#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "support/FileTools.h"
#include "support/Files.h"
#include "support/FolderList.h"

namespace {

bool CanOpenFolder(const char* folder) {
  return FolderHandle(opendir(folder)) != nullptr;
}

bool MakeOrFind(const std::string& folder) {
  return mkdir(folder.c_str(), 0777) == 0 || errno == EEXIST;
}

}  // namespace

gint FileCount(const gchar* path, const gchar* ptrn) {
  gint count = 0;
  VisitFiles(path, ptrn, [&count](const std::string&) { ++count; });
  return count;
}

gint CreateFolder(const gchar* folder) {
  const std::string full = folder;
  std::size_t end = 0;
  do {
    end = full.find('/', end + 1);
  } while (MakeOrFind(full.substr(0, end)) && end != std::string::npos);
  return CanOpenFolder(folder) ? 1 : 0;
}

gint CopyFolder(const gchar* folder1, const gchar* folder2) {
  const auto names = RegularFileNames(folder1);
  if (!names || CreateFolder(folder2) == 0) return 0;
  for (const std::string& name : *names) {
    if (FileCopy(folder1, name.c_str(), "", folder2, name.c_str(), "") == 0) return 0;
  }
  return 1;
}
