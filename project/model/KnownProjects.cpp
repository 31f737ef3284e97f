#include <algorithm>
#include <optional>
#include <string>

#include "project/ProjectFiles.h"
#include "project/ProjectRecord.h"
#include "support/FileTools.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"

namespace {

constexpr gint KnownCount = 100;
constexpr gchar ListName[] = "PROJNAME";
constexpr gchar CurrentName[] = "PROJECT";

struct KnownProject {
  std::string Name;
  std::string Folder;
  bool operator==(const KnownProject&) const = default;
};

KnownProject ReadProject(std::string_view profile, std::string_view section, std::string_view key) {
  const std::string value = ProfileValue(profile, section, key).value_or("");
  return {std::string(CheckedField(ProfileField(value, 0), FieldKind::Text)),
          std::string(CheckedField(ProfileField(value, 1), FieldKind::Text))};
}

void EnterInList(std::string& profile, const std::string& value) {
  // A profile line cannot hold every name and path. What it gives back is what can be found again.
  std::string line;
  SetProfileValue(line, CurrentName, CurrentName, value);
  const KnownProject project = ReadProject(line, CurrentName, CurrentName);

  std::optional<std::string> place;
  for (gint no = 0; no < KnownCount; ++no) {
    const std::string key = NumberedKey(ListName, no);
    const KnownProject known = ReadProject(profile, ListName, key);
    if (!known.Name.empty() && known == project) {
      return;
    }
    if (known.Name.empty() && !place) {
      place = key;
    }
  }
  if (place) {
    SetProfileValue(profile, ListName, *place, value);
  }
}

}  // namespace

void ProfileRenew(const gchar* path, const gchar* name) {
  const std::string value = std::string(name) + "," + path;
  ChangeProfile(ProfilePath(""), [&value](std::string& profile) {
    EnterInList(profile, value);
    SetProfileValue(profile, CurrentName, CurrentName, value);
    return true;
  });
}

bool IsKnownProjectWhole(const gchar* section, const gchar* key) {
  const std::string profile = LoadProfile(ProfilePath("")).value_or("");
  const std::string value = ProfileValue(profile, section, key).value_or("");
  const std::string_view name = ProfileField(value, 0);
  const std::string_view path = ProfileField(value, 1);
  if (name.size() >= sizeof ProjName || path != ProfileTextField(value, 1)) {
    return false;
  }
  const std::string rest = value.substr(std::min(name.size() + 1, value.size()));
  return rest == path || IsMissing(JoinPath(rest, name, "prj"));
}
