#include "layout/Screen.h"
#include "layout/Store.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFiles.h"
#include "project/ProjectRecord.h"
#include "render/FontTable.h"
#include "render/MarkFile.h"
#include "render/Palette.h"
#include "support/FileTools.h"
#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"
#include "support/Text.h"

namespace {

constexpr gint KnownProjectCount = 100;
// Capacity of a text field read from a profile.
constexpr gsize FieldSize = 100;

bool OpenLastProject() {
  gchar name[FieldSize];
  gchar path[FieldSize];
  ProfileRead1("", "PROJECT", "PROJECT", "ss", name, path);
  CopyText(ProjName, FieldText(name));
  CopyText(ProjPath, FieldText(path));
  return ProjName[0] != '\0' && ProjPath[0] != '\0' && IsKnownProjectWhole("PROJECT", "PROJECT") &&
         ProjFileRead(ProjPath, ProjName) != 0;
}

void ForgetLastProject() {
  ProjFlag = 0;
  PtrnFlag = 0;
  CopyText(ProjName, "");
  CopyText(ProjPath, "");
  ProfileDelete1("", "PROJECT", "PROJECT");
}

// Entries whose project file is gone go; their numbers stay free. A file that cannot be looked at
// is not gone.
void PruneKnownProjects() {
  const std::string profile = LoadProfile(ProfilePath("")).value_or("");
  for (gint no = 0; no < KnownProjectCount; ++no) {
    const std::string value =
        ProfileValue(profile, "PROJNAME", NumberedKey("PROJNAME", no)).value_or("");
    const std::string_view name = ProfileTextField(value, 0);
    const std::string_view path = ProfileTextField(value, 1);
    if (!name.empty() && !path.empty() && IsMissing(JoinPath(path, name, "prj"))) {
      ProfileDelete2("", "PROJNAME", "PROJNAME", no);
    }
  }
}

}  // namespace

void ProjDataInit() {
  if (OpenLastProject()) {
    ProjFlag = 1;
    PtrnFlag = 0;
    LoadColrFile();
    LoadMarkFile();
    SetBmapPath();
  } else {
    ForgetLastProject();
  }
  PruneKnownProjects();
  FontDataInit(1);
  SetMainMenu();
  SetWindTitle(ProjName, "");
}
