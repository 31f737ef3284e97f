// Checking the project settings.
#include "layout/ProjectSlots.h"
#include "layout/Screen.h"
#include "project/ProjectCommands.h"
#include "project/ProjectRecord.h"

GtkWidget* EditProj = nullptr;

gint CheckProjData() {
  const struct {
    bool Broken;
    const gchar* Message;
  } rules[] = {
      {EditName[0] == '\0', "プロジェクト名が設定されていません。"},
      {EditPath[0] == '\0', "プロジェクトデータを格納するフォルダーが設定されていません。"},
      {EditData.ProgPath[0] == '\0', "ロジックデータを格納するフォルダーが設定されていません。"},
      {EditData.Parm2[ParentSlot::LogoShown] != 0 && EditData.LogoName[0] == '\0',
       "ロゴマーク名称が設定されていません。"},
      {EditData.Parm2[ParentSlot::TitleHeight] < 0 || EditData.Parm2[ParentSlot::TitleHeight] > 99,
       "タイトル領域の高さ (設定範囲 0 〜 99)"},
      {EditData.Parm2[ParentSlot::ButtonAreaHeight] < 0 ||
           EditData.Parm2[ParentSlot::ButtonAreaHeight] > 99,
       "ボタン領域の高さ (設定範囲 0 〜 99)"},
      {EditData.Parm3[ChildSlot::TitleHeight] < 0 || EditData.Parm3[ChildSlot::TitleHeight] > 99,
       "タイトル領域の高さ (設定範囲 0 〜 99)"},
      {EditData.Parm3[ChildSlot::FrameWidth] < 0 || EditData.Parm3[ChildSlot::FrameWidth] > 99,
       "外形枠幅 (設定範囲 0 〜 99)"},
  };
  for (const auto& rule : rules)
    if (rule.Broken) {
      Dlg_MessageBox(EditProj, "入力エラー", rule.Message, "", 1);
      return 0;
    }
  return 1;
}
