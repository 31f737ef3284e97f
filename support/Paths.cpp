#include <string>
#include <string_view>

#include "support/FileTools.h"
#include "support/Files.h"

namespace {

// Paths are the file system's bytes, so the cut knows no characters.
void CopyPath(gchar* target, std::string_view text) {
  target[text.copy(target, PathSize - 1)] = '\0';
}

// "." without a "/", "/" for an entry of the root; several "/" count as one.
std::string_view FolderPart(std::string_view full) {
  const std::size_t slash = full.rfind('/');
  if (slash == std::string_view::npos) return ".";
  const std::size_t last = full.find_last_not_of('/', slash);
  return last == std::string_view::npos ? "/" : full.substr(0, last + 1);
}

}  // namespace

std::string JoinPath(std::string_view path, std::string_view name, std::string_view ext) {
  std::string full(path);
  if (!full.empty() && full.back() != '/' && !name.empty()) full += '/';
  full += name;
  if (!ext.empty() && ext.front() != '.') full += '.';
  full += ext;
  return full;
}

void MakePath(gchar* full, const gchar* path, const gchar* name, const gchar* ext) {
  CopyPath(full, JoinPath(path, name, ext));
}

void SplitPath(const gchar* full, gchar* path, gchar* name, gchar* ext) {
  const std::string text = full;  // a copy: an output may be the input's own buffer
  const std::string_view whole = text;
  const std::string_view file = whole.substr(whole.rfind('/') + 1);
  const std::size_t point = file.find('.');
  std::string_view rest;
  if (point != std::string_view::npos) rest = file.substr(point + 1);
  if (rest.starts_with('.')) rest.remove_prefix(1);
  if (path != nullptr) CopyPath(path, FolderPart(whole));
  if (name != nullptr) CopyPath(name, file.substr(0, point));
  if (ext != nullptr) CopyPath(ext, rest);
}
