#include "project/edit/ShownProject.h"

#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "project/ProjectFiles.h"
#include "render/Marks.h"
#include "render/Palette.h"

void EnterReadProject(std::string_view folder, std::string_view name) {
  EnterProject(folder, name);
  LoadColrFile();
  LoadMarkFile();
}

void ShowProject() {
  SetMainMenu();
  SetWindTitle(ProjName, "");
}
