#include "layout/LayoutCommands.h"
#include "layout/Screen.h"
#include "layout/Store.h"

namespace {

enum Answer { AnswerCancel, AnswerSave, AnswerDiscard };

// Results of the question and of the close dialog alike.
Answer ToAnswer(gint result) {
  constexpr gint Yes = 1;
  constexpr gint No = 2;
  return result == Yes ? AnswerSave : result == No ? AnswerDiscard : AnswerCancel;
}

Answer AskToSave() {
  const Answer answer =
      ToAnswer(Dlg_MessageBox(PtrnWnd, "レイアウトデータ保存確認",
                              "レイアウトデータが変更されています。", "保存しますか ？", 2));
  return answer == AnswerSave ? ToAnswer(PtrnFileClose(PtrnWnd)) : answer;
}

}  // namespace

gint SavePtrnData() {
  if (PtrnFlag == 2) {
    const Answer answer = AskToSave();
    if (answer == AnswerCancel) return 0;
    // A layout that could not be saved is not released.
    if (answer == AnswerSave && !SaveLayout()) return 0;
  }
  PtrnFlag = 0;
  ExtPtrnData();
  PtrnSaveExit();
  return 1;
}
