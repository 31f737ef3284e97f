#include "support/ProfileFile.h"

#include "PtrnMisc.h"
#include "support/FileTools.h"

namespace {

// Far above any profile; keeps a foreign file from being searched for keys.
constexpr std::size_t ProfileLimit = 16u << 20;

}  // namespace

std::string ProfilePath(const gchar* profname) {
  return *profname == '\0' ? JoinPath(PathName, "VarnixMaster", "ini") : std::string(profname);
}

std::optional<std::string> LoadProfile(const std::string& path) {
  if (FileSize(path.c_str(), "", "") < 1) return std::string();
  return ReadWholeFile(path, ProfileLimit);
}

std::string NumberedKey(const gchar* keyname, gint no) {
  return keyname + std::to_string(no);
}
