#include <algorithm>
#include <string>
#include <string_view>

#include "ProjData.h"
#include "PtrnMisc.h"

namespace {

constexpr gint KnownCount = 100;
constexpr std::size_t FieldLimit = 99;

struct KnownProject {
  std::string Name;
  std::string Folder;
  bool operator==(const KnownProject&) const = default;
};

KnownProject ReadKnown(gint no) {
  gchar name[PathSize] = {};
  gchar folder[PathSize] = {};
  ProfileRead2("", "PROJNAME", "PROJNAME", no, "ss", name, folder);
  return {name, folder};
}

// What the profile gives back for a project. It differs from what was written where a line cannot
// hold it: fields are cut at their limit, "," and ";" end them.
KnownProject AsReadBack(std::string_view name, std::string_view path) {
  std::string line = std::string(name) + "," + std::string(path);
  line.resize(std::min(line.find(';'), line.size()));
  line.resize(line.find_last_not_of(" \t") + 1);
  const std::size_t first = line.find(',');
  if (first == std::string::npos) {
    return {line.substr(0, FieldLimit), ""};
  }
  const std::size_t second = std::min(line.find(',', first + 1), line.size());
  return {line.substr(0, std::min(first, FieldLimit)),
          line.substr(first + 1, std::min(second - first - 1, FieldLimit))};
}

void Enter(const gchar* path, const gchar* name) {
  const KnownProject project = AsReadBack(name, path);
  gint free = -1;
  for (gint no = 0; no < KnownCount; ++no) {
    const KnownProject known = ReadKnown(no);
    if (known.Name.empty()) {
      free = free < 0 ? no : free;
    } else if (known == project) {
      return;
    }
  }
  if (free >= 0) {
    ProfileWrite2("", "PROJNAME", "PROJNAME", free, "ss", name, path);
  }
}

}  // namespace

void ProfileRenew(const gchar* path, const gchar* name) {
  Enter(path, name);
  ProfileWrite1("", "PROJECT", "PROJECT", "ss", name, path);
}
