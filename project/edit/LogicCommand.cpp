#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "project/LogicGeneration.h"
#include "project/ProjectCommands.h"
#include "project/logic/Generation.h"

void LogicDataEdit([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  if (ProjData.ProgPath[0] == '\0') {
    Dlg_MessageBox(PtrnWnd, "ロジック編集", "プログラム領域へのパスが設定されていません。",
                   "プロジェクト修正／全般で設定してください", 1);
    return;
  }
  GenerateLogic();
}
