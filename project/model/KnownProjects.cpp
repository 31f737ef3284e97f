#include "project/model/KnownProjects.h"

#include <algorithm>
#include <optional>

#include "layout/ProjectRecord.h"
#include "project/ProjectFiles.h"
#include "support/FileTools.h"
#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"

namespace {

constexpr gint KnownCount = 100;
// Sections that hold keys of the same name: the list's are numbered.
constexpr gchar ListName[] = "PROJNAME";
constexpr gchar LastName[] = "PROJECT";

bool IsWhole(const std::string& value) {
  const std::string_view name = ProfileField(value, 0);
  const std::string_view path = ProfileField(value, 1);
  if (name.size() >= sizeof ProjName || path != ProfileTextField(value, 1)) return false;
  const std::string rest = value.substr(std::min(name.size() + 1, value.size()));
  return rest == path || IsMissing(JoinPath(rest, name, "prj"));
}

std::string ProjectValue(std::string_view profile, std::string_view section, std::string_view key) {
  return ProfileSearch(profile, section, key).value_or("");
}

std::string NameOf(const std::string& value) {
  return std::string(ProfileTextField(value, 0));
}

std::string FolderOf(const std::string& value) {
  return std::string(ProfileTextField(value, 1));
}

void EnterInList(std::string& profile, const std::string& value) {
  // A profile line cannot hold every name and path. What it gives back is what can be found again.
  std::string line;
  SetProfileValue(line, LastName, LastName, value);
  const std::string entered = ProjectValue(line, LastName, LastName);

  std::optional<std::string> place;
  for (gint no = 0; no < KnownCount; ++no) {
    const std::string key = NumberedKey(ListName, no);
    const std::string known = ProjectValue(profile, ListName, key);
    if (NameOf(known).empty()) {
      if (!place) place = key;
    } else if (NameOf(known) == NameOf(entered) && FolderOf(known) == FolderOf(entered)) {
      return;
    }
  }
  if (place) SetProfileValue(profile, ListName, *place, value);
}

}  // namespace

void ProfileRenew(const gchar* path, const gchar* name) {
  const std::string value = std::string(name) + "," + path;
  ChangeProfile(ProfilePath(""), [&value](std::string& profile) {
    EnterInList(profile, value);
    SetProfileValue(profile, LastName, LastName, value);
    return true;
  });
}

std::vector<KnownProject> ReadKnownProjects() {
  std::vector<KnownProject> projects;
  const std::string profile = LoadProfile(ProfilePath("")).value_or("");
  for (gint no = 0; no < KnownCount; ++no) {
    const std::string value = ProjectValue(profile, ListName, NumberedKey(ListName, no));
    const std::string name = NameOf(value);
    const std::string folder = FolderOf(value);
    if (name.empty() || folder.empty()) continue;
    if (IsMissing(JoinPath(folder, name, "prj"))) {
      ProfileDelete2("", ListName, ListName, no);
    } else {
      projects.push_back({name, folder, IsWhole(value)});
    }
  }
  return projects;
}

KnownProject ReadLastProject() {
  const std::string profile = LoadProfile(ProfilePath("")).value_or("");
  const std::string value = ProjectValue(profile, LastName, LastName);
  return {NameOf(value), FolderOf(value), IsWhole(value)};
}

void ForgetLastProject() {
  ProfileDelete1("", LastName, LastName);
}
