// Notes in the project which layout is its start screen and which its exit screen.
#include "layout/ItemSlots.h"
#include "layout/LayoutSettings.h"
#include "layout/ProjectRecord.h"
#include "layout/Store.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

// The project's screen becomes this layout when it is marked as such, and nothing when it was this
// layout and is not marked any more.
void RenewScreen(gint marked, gchar (&screen)[82]) {
  if (marked != 0) {
    CopyText(screen, FieldText(EditHedr.PtrnName1));
  } else if (FieldText(screen) == FieldText(EditHedr.PtrnName1)) {
    CopyText(screen, "");
  }
}

}  // namespace

gint EditPtrnData_Renew() {
  RenewScreen(EditHedr.Parm2[ViewSlot::StartScreen], ProjData.PtrnStart);
  RenewScreen(EditHedr.Parm2[ViewSlot::StopScreen], ProjData.PtrnStop);
  PROJFILE file;
  const gint read = FileRead(ProjPath, ProjName, "prj", &file, sizeof file, 0);
  if (read != 1) return read;
  CopyText(file.Data.PtrnStart, FieldText(ProjData.PtrnStart));
  CopyText(file.Data.PtrnStop, FieldText(ProjData.PtrnStop));
  return FileWrite(ProjPath, ProjName, "prj", &file, sizeof file, 0);
}
