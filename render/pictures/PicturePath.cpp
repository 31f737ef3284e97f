#include <cstdlib>
#include <map>
#include <memory>
#include <utility>

#include "render/pictures/PictureFiles.h"
#include "support/FileTools.h"

namespace {

// The path without links and dots, "" when there is no such entry.
std::string RealPath(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                         &std::free);
  return real ? real.get() : "";
}

std::string LookUp(const std::string& folder, const std::string& name) {
  if (name.empty() || name.front() == '/') return "";
  std::string inside = RealPath(folder.empty() ? "." : folder);
  if (inside.empty()) return "";
  if (inside.back() != '/') inside += '/';
  // Without links, so that what is opened is what was looked at.
  const std::string path = RealPath(JoinPath(folder, name, ""));
  return path.starts_with(inside) ? path : "";
}

gint keepers;
// By folder and name.
std::map<std::pair<std::string, std::string>, std::string> kept;

}  // namespace

KeptPicturePaths::KeptPicturePaths() {
  ++keepers;
}

KeptPicturePaths::~KeptPicturePaths() {
  if (--keepers == 0) kept.clear();
}

std::string PicturePathInside(const std::string& folder, const std::string& name) {
  if (keepers == 0) return LookUp(folder, name);
  const auto [entry, isNew] = kept.try_emplace({folder, name});
  if (isNew) entry->second = LookUp(folder, name);
  return entry->second;
}
