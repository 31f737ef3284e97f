#include <algorithm>
#include <iterator>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "project/edit/KeptResources.h"

namespace {

enum SettingsResult {
  SettingsCancelled = 0,
  SettingsRegistered = 1,
};

// Shows the settings until they are registered or cancelled; restoring the defaults reopens them.
// The title is that of a new project for a project that is edited, too.
bool SettingsConfirmed() {
  for (;;) {
    switch (EditProjData(PtrnWnd, "プロジェクトの新規作成")) {
      case SettingsCancelled:
        return false;
      case SettingsRegistered:
        return true;
      default:
        break;
    }
  }
}

void ClearResources() {
  std::fill(std::begin(ColrData), std::end(ColrData), COLRDATA{});
  std::fill(std::begin(MarkData), std::end(MarkData), MARKDATA{});
}

// The working copies become the project.
void TakeSettings() {
  ProjData = EditData;
  CopyText(ProjName, FieldText(EditName));
  CopyText(ProjPath, FieldText(EditPath));
}

void SaveResources() {
  SaveColrFile();
  SaveMarkFile();
}

void ShowProject() {
  SetBmapPath();
  SetMainMenu();
  SetWindTitle(ProjName, "");
}

}  // namespace

void ProjDataNew([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  CopyText(EditName, ProfileReadAsc1("", "PROJDATA", "NAME"));
  CopyText(EditPath, ProfileReadAsc1("", "PROJDATA", "PTRN"));
  // The palette editor of the dialog writes into the project that is still open.
  const KeptResources kept;
  ClearResources();
  ProjSetDefault();
  const bool confirmed = SettingsConfirmed();
  kept.RestoreFile();
  if (!confirmed) {
    kept.Restore();
    return;
  }
  ProjFlag = 1;
  PtrnFlag = 0;
  TakeSettings();
  ProjFileWrite(ProjPath, ProjName);
  ProjFileCopy1(ProjPath);
  ProjFileRenew(ProjPath);  // the layouts that came from the templates
  SaveResources();
  ShowProject();
}

void ProjDataOpen([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  if (ProjFileOpen(PtrnWnd) != 1) {
    return;
  }
  ProjFlag = 1;
  CopyText(ProjPath, FieldText(EditPath));
  CopyText(ProjName, FieldText(EditName));
  ProjFileRead(ProjPath, ProjName);
  LoadColrFile();
  LoadMarkFile();
  ShowProject();
}

void ProjDataEdit([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  EditData = ProjData;
  CopyText(EditName, FieldText(ProjName));
  CopyText(EditPath, FieldText(ProjPath));
  const KeptResources kept;
  if (!SettingsConfirmed()) {
    // Restored defaults go; a palette that its own editor saved stays.
    if (!kept.FileRewritten()) {
      kept.Restore();
    }
    return;
  }
  ProjFileCopy2(ProjPath, EditPath);
  ProjFileCopy3(ProjData.ProgPath, EditData.ProgPath);
  TakeSettings();
  ProjFileWrite(ProjPath, ProjName);
  SaveResources();
  ShowProject();
}
