// Checking the layout settings, and noting the start and exit screen in the project.
#include <cstring>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutSettingsPages.h"

GtkWidget* EditLayoutWindow = nullptr;

namespace {

bool TitleMissing() {
  return EditHedr.PtrnName1[0] == '\0' || (Language >= 1 && EditHedr.PtrnName2[0] == '\0') ||
         (Language >= 2 && EditHedr.PtrnName3[0] == '\0');
}

// Adds the debug switch and a colour instead of the two heights; that is the rule users know.
bool AreasTooLarge() {
  return static_cast<gint64>(EditHedr.Parm1[HedrSlot::DebugScreen]) +
             EditHedr.Parm1[HedrSlot::TitleAreaColour] >=
         EditHedr.Parm1[HedrSlot::Height];
}

const gchar* FirstError() {
  const auto parm1 = [](gint slot) { return EditHedr.Parm1[slot]; };
  const struct {
    bool Broken;
    const gchar* Message;
  } rules[] = {
      {TitleMissing(), "タイトルが設定されていません。"},
      {parm1(HedrSlot::Width) < 1, "Ｘ方向 領域の大きさ"},
      {parm1(HedrSlot::Height) < 1, "Ｙ方向 領域の大きさ"},
      {parm1(HedrSlot::WindowX) < 0, "Ｘ方向 表示開始位置"},
      {parm1(HedrSlot::WindowY) < 0, "Ｙ方向 表示開始位置"},
      {parm1(HedrSlot::TitleHeight) < 0, "タイトル領域の高さ"},
      {parm1(HedrSlot::ButtonAreaHeight) < 0, "ボタン領域の高さ"},
      {AreasTooLarge(), "タイトル領域/ボタン領域 が大きすぎます。"},
  };
  for (const auto& rule : rules)
    if (rule.Broken) return rule.Message;
  return nullptr;
}

// The project's screen becomes this layout when it is marked as such, and nothing when it was this
// layout and is not marked any more.
void RenewScreen(gint marked, gchar (&screen)[82]) {
  if (marked != 0)
    CopyText(screen, FieldText(EditHedr.PtrnName1));
  else if (FieldText(screen) == FieldText(EditHedr.PtrnName1))
    CopyText(screen, "");
}

}  // namespace

gint EditPtrnData_Check() {
  const gchar* message = FirstError();
  if (message == nullptr) return 1;
  Dlg_MessageBox(EditLayoutWindow, "入力エラー", message, "", 1);
  return 0;
}

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
