#include "project/ProjectCommands.h"

#include <algorithm>
#include <iterator>

#include "layout/LayoutCommands.h"
#include "layout/Mouse.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "project/ProjectFiles.h"
#include "project/edit/ShownProject.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "support/KeptResources.h"
#include "support/Profile.h"
#include "support/Resource.h"
#include "support/Text.h"

namespace {

enum SettingsResult {
  SettingsCancelled = 0,
  SettingsRegistered = 1,
};

// The title is that of a new project for a project that is edited, too.
constexpr const gchar* SettingsTitle = "プロジェクトの新規作成";

// While the settings are shown, the main window and its menu stay usable.
bool SettingsShown = false;

// The settings work on the copies that every command here fills; a second command only brings them
// to the front.
bool SettingsAreOpen() {
  if (SettingsShown) EditProjData(PtrnWnd, SettingsTitle);
  return SettingsShown;
}

// A layout may have been opened beside the settings. It belongs to the project as it was, and its
// store is needed for the renewal of the layouts.
bool LayoutReleased() {
  if (PtrnFlag == 0) return true;
  ClearToolBox();
  if (SavePtrnData() != 1) return false;
  PtrnDataExit();
  return true;
}

// Shows the settings until they are registered or cancelled; restoring the defaults reopens them,
// and so does a layout that is to stay open.
bool SettingsConfirmed() {
  // The menu offers no settings while a layout is open; one that is goes with its project.
  const bool openBefore = PtrnFlag != 0;
  SettingsShown = true;
  gint result = EditProjData(PtrnWnd, SettingsTitle);
  while (result != SettingsCancelled &&
         !(result == SettingsRegistered && (openBefore || LayoutReleased()))) {
    result = EditProjData(PtrnWnd, SettingsTitle);
  }
  SettingsShown = false;
  return result == SettingsRegistered;
}

void ClearResources() {
  std::fill(std::begin(ColrData), std::end(ColrData), COLRDATA{});
  std::fill(std::begin(MarkData), std::end(MarkData), MARKDATA{});
}

void RepaintLayout() {
  if (PtrnFlag != 0) DrawRequest(1);
}

// Shows the settings of a new project. Its palette and marks are in memory as long as they are
// shown, and stay there when they are registered.
bool NewProjectConfirmed() {
  KeptResources kept(SettingsOf::NewProject);
  ClearResources();
  ProjSetDefault();
  if (SettingsConfirmed()) return true;
  kept.RestorePalette();
  kept.RestoreMarks();
  SetDrawColr();
  SetDrawMark();
  RepaintLayout();
  return false;
}

// Shows the settings of the open project. Restored defaults go when they are cancelled.
bool ChangesConfirmed() {
  KeptResources kept(SettingsOf::OpenProject);
  if (SettingsConfirmed()) return true;
  if (kept.RestorePalette()) {
    SetDrawColr();
    RepaintLayout();
  }
  return false;
}

// The working copies become the project.
void TakeSettings() {
  PtrnFlag = 0;
  ProjData = EditData;
  EnterProject(FieldText(EditPath), FieldText(EditName));
}

void SaveResources() {
  SaveColrFile();
  SaveMarkFile();
}

}  // namespace

void ProjDataNew([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  if (SettingsAreOpen()) return;
  CopyText(EditName, ProfileReadAsc1("", "PROJDATA", "NAME"));
  CopyText(EditPath, ProfileReadAsc1("", "PROJDATA", "PTRN"));
  if (!NewProjectConfirmed()) return;
  TakeSettings();
  ProjFileWrite(ProjPath, ProjName);
  ProjFileCopy1(ProjPath);
  ProjFileRenew(ProjPath);  // the layouts that came from the templates
  SaveResources();
  ShowProject();
}

void ProjDataOpen([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  if (SettingsAreOpen()) return;
  if (ProjFileOpen(PtrnWnd) != 1) return;
  // A file that cannot be read leaves the settings of the project before.
  ProjFileRead(EditPath, EditName);
  EnterReadProject(FieldText(EditPath), FieldText(EditName));
  ShowProject();
}

void ProjDataEdit([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  if (SettingsAreOpen()) return;
  EditData = ProjData;
  CopyText(EditName, FieldText(ProjName));
  CopyText(EditPath, FieldText(ProjPath));
  if (!ChangesConfirmed()) return;
  ProjFileCopy2(ProjPath, EditPath);
  ProjFileCopy3(ProjData.ProgPath, EditData.ProgPath);
  TakeSettings();
  ProjFileWrite(ProjPath, ProjName);
  SaveResources();
  ShowProject();
}
