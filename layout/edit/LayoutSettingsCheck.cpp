// Checking the layout settings.
#include <algorithm>
#include <cstring>

#include "layout/ItemSlots.h"
#include "layout/LayoutSettings.h"
#include "layout/Parameters.h"
#include "layout/Screen.h"
#include "layout/ShownTexts.h"
#include "layout/Store.h"
#include "support/Resource.h"

GtkWidget* EditLayoutWindow = nullptr;

namespace {

bool TitleMissing() {
  for (gint language = 0; language <= std::clamp(Language, 0, 2); ++language) {
    if (TitleOf(EditHedr, language).empty()) return true;
  }
  return false;
}

// Kept: adds the debug switch and the title area's colour number instead of the two heights.
bool AreasTooLarge() {
  return static_cast<gint64>(EditHedr.Parm1[HedrSlot::DebugScreen]) +
             EditHedr.Parm1[HedrSlot::TitleAreaColour] >=
         EditHedr.Parm1[HedrSlot::Height];
}

const gchar* FirstError() {
  std::array<gint, sizeof(PTRNHEDR::Parm1) / sizeof(gint)> values;
  std::memcpy(values.data(), EditHedr.Parm1, sizeof values);
  if (TitleMissing()) return "タイトルが設定されていません。";
  if (const Limit* limit = FindBrokenLimit(HeaderParameters(), values).By) return limit->Text;
  return AreasTooLarge() ? "タイトル領域/ボタン領域 が大きすぎます。" : nullptr;
}

}  // namespace

gint EditPtrnData_Check() {
  const gchar* message = FirstError();
  if (message == nullptr) return 1;
  Dlg_MessageBox(EditLayoutWindow, "入力エラー", message, "", 1);
  return 0;
}
