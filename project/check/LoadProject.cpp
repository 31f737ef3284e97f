// The open project's files as the rules take them.
#include <algorithm>

#include "layout/LayoutFile.h"
#include "layout/Registry.h"
#include "project/check/Check.h"
#include "project/model/LayoutNames.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Resource.h"

namespace {

CheckedLayout LoadLayout(const std::string& name) {
  CheckedLayout layout;
  layout.Name = name;
  // The result tells a layout without items from others; both are checked.
  ReadLayoutFile(ProjPath, name.c_str(), layout);
  layout.Dropped = layout.Header.DataCount - static_cast<gint>(layout.Items.size());
  return layout;
}

bool HasDots(const MARKDATA& mark) {
  return std::any_of(std::begin(mark.mark), std::end(mark.mark),
                     [](guint8 byte) { return byte != 0; });
}

void LoadLayouts(CheckedProject& project) {
  std::vector<std::string> names = LayoutNames(ProjPath);
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) {
    if (CheckPtrnFile(ProjPath, name.c_str()) == LayoutFileState::Whole) {
      project.Layouts.push_back(LoadLayout(name));
    } else {
      project.Unreadable.push_back(name);
    }
  }
}

void LoadResources(CheckedProject& project) {
  COLRDATA palette[ColrCount];
  // Colours and marks of files that are missing are zeros, as when the designer opens the project.
  FileRead(ProjPath, "PtrnColr", "", palette, sizeof palette, 0);
  std::copy(std::begin(palette), std::end(palette), project.Palette.begin());
  std::vector<MARKDATA> marks(MarkCount);
  FileRead(ProjPath, "PtrnMark", "", marks.data(),
           static_cast<gint>(marks.size() * sizeof(MARKDATA)), 0);
  std::transform(marks.begin(), marks.end(), project.MarkDrawn.begin(), HasDots);
}

}  // namespace

CheckedProject LoadCheckedProject() {
  CheckedProject project;
  project.Name = ProjName;
  project.Settings = ProjData;
  LoadLayouts(project);
  project.Registry = ReadPtrnCode();
  LoadResources(project);
  project.Surroundings = ProjectSurroundings();
  return project;
}
