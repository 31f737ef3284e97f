// Checking the layout settings.
#include "layout/ItemSlots.h"
#include "layout/LayoutSettings.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "support/Resource.h"

GtkWidget* EditLayoutWindow = nullptr;

namespace {

bool TitleMissing() {
  return EditHedr.PtrnName1[0] == '\0' || (Language >= 1 && EditHedr.PtrnName2[0] == '\0') ||
         (Language >= 2 && EditHedr.PtrnName3[0] == '\0');
}

// Kept: adds the debug switch and the title area's colour number instead of the two heights.
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

}  // namespace

gint EditPtrnData_Check() {
  const gchar* message = FirstError();
  if (message == nullptr) return 1;
  Dlg_MessageBox(EditLayoutWindow, "入力エラー", message, "", 1);
  return 0;
}
