#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFiles.h"
#include "project/edit/ShownProject.h"
#include "project/model/KnownProjects.h"
#include "render/FontTable.h"
#include "render/Marks.h"
#include "support/Text.h"

namespace {

bool OpenLastProject() {
  const KnownProject last = ReadLastProject();
  if (last.Name.empty() || last.Folder.empty() || !last.Whole ||
      ProjFileRead(last.Folder.c_str(), last.Name.c_str()) == 0) {
    return false;
  }
  EnterReadProject(last.Folder, last.Name);
  return true;
}

void BeginWithoutProject() {
  ProjFlag = 0;
  CopyText(ProjName, "");
  CopyText(ProjPath, "");
  ForgetLastProject();
}

}  // namespace

void ProjDataInit() {
  PtrnFlag = 0;
  if (!OpenLastProject()) BeginWithoutProject();
  ReadKnownProjects();
  FontDataInit(1);
  ShowProject();
}
