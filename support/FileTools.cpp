#include "support/FileTools.h"

#include <fnmatch.h>
#include <sys/stat.h>

#include <cerrno>
#include <new>
#include <stdexcept>

#include "support/FileHandle.h"
#include "support/FolderList.h"

std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t limit) try {
  const FileHandle file = FileHandle::OpenToRead(path.c_str());
  struct stat status;
  if (!file || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  if (static_cast<std::size_t>(status.st_size) > limit) return std::nullopt;
  std::string content(static_cast<std::size_t>(status.st_size), '\0');
  const ssize_t count = file.ReadAt(content.data(), content.size(), 0);
  if (count < 0) return std::nullopt;
  content.resize(static_cast<std::size_t>(count));
  return content;
} catch (const std::bad_alloc&) {
  return std::nullopt;
} catch (const std::length_error&) {
  return std::nullopt;
}

bool IsMissing(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

bool VisitFiles(const std::string& folder, const char* pattern,
                const std::function<void(const std::string& name)>& visit) {
  const auto names = RegularFileNames(folder);
  if (!names) return false;
  for (const std::string& name : *names) {
    if (!name.starts_with('.') && fnmatch(pattern, name.c_str(), 0) == 0) visit(name);
  }
  return true;
}
