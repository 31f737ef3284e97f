// Checking the project settings.
#include <cstring>

#include "layout/Parameters.h"
#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "layout/Screen.h"
#include "project/ProjectCommands.h"

GtkWidget* EditProj = nullptr;

namespace {

const gchar* MissingText() {
  if (EditName[0] == '\0') return "プロジェクト名が設定されていません。";
  if (EditPath[0] == '\0') return "プロジェクトデータを格納するフォルダーが設定されていません。";
  if (EditData.ProgPath[0] == '\0') {
    return "ロジックデータを格納するフォルダーが設定されていません。";
  }
  if (EditData.Parm2[ParentSlot::LogoShown] != 0 && EditData.LogoName[0] == '\0') {
    return "ロゴマーク名称が設定されていません。";
  }
  return nullptr;
}

template <std::size_t Size>
const gchar* BrokenLimitText(std::span<const Parameter> parameters, const gint (&list)[Size]) {
  std::array<gint, Size> values;
  std::memcpy(values.data(), list, sizeof values);
  const Limit* limit = FindBrokenLimit(parameters, values).By;
  return limit == nullptr ? nullptr : limit->Text;
}

const gchar* FirstError() {
  if (const gchar* text = MissingText()) return text;
  if (const gchar* text = BrokenLimitText(ParentParameters(), EditData.Parm2)) return text;
  return BrokenLimitText(ChildParameters(), EditData.Parm3);
}

}  // namespace

gint CheckProjData() {
  const gchar* message = FirstError();
  if (message == nullptr) return 1;
  Dlg_MessageBox(EditProj, "入力エラー", message, "", 1);
  return 0;
}
