// Every screen function has a stand-in here, those of the drawing resources included, while the
// rest of editing and rendering is the real one: that this program links shows that each can be
// replaced by itself. The main window's variable is not defined here, for the libraries bring it.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "PtrnMisc.h"
#include "tests/common/TempFolder.h"

GtkWidget* ToolBox;

namespace {

std::vector<std::string> Calls;
gint Dialogs;

gint Asked() {
  ++Dialogs;
  return 0;
}

}  // namespace

void SetDrawColr() {
  Calls.emplace_back("SetDrawColr");
}

void SetDrawFont() {
  Calls.emplace_back("SetDrawFont");
}

void SetDrawMark() {
  Calls.emplace_back("SetDrawMark");
}

void SetCursor(gint /*no*/) {}
void DrawRequest(gint /*mode*/) {}
void SizeRequest(gint /*mode*/, gint /*width*/, gint /*height*/, gint /*zoom*/) {}
void SetWindTitle(const gchar* /*projname*/, const gchar* /*ptrnname*/) {}
void SetMainMenu() {}
void SetMenuActive1() {}
void SetMenuActive2(gint /*flags*/) {}
void Dlg_ToolBox(GtkWidget* /*parent*/, gint /*type*/) {}
void SaveToolBox() {}
void SetToolBoxPoint() {}
void SetToolBoxCursor() {}
void SetToolBoxButton(gint /*mode*/) {}
gint Dlg_MessageBox(GtkWidget* /*parent*/, const gchar* title, const gchar* mesg1,
                    const gchar* mesg2, gint butn) {
  Calls.push_back(std::string(title) + "|" + mesg1 + "|" + mesg2 + "|" + std::to_string(butn));
  return 1;
}

gint Dlg_Copy_Move(GtkWidget* /*parent*/, gint mode, const gchar* title, DLGPARM* parm) {
  Calls.push_back(title + std::string(" ") + std::to_string(mode));
  return parm->code;
}

gint EditPtrnData(GtkWidget* /*parent*/) {
  return Asked();
}

gint PtrnFileOpen(GtkWidget* /*parent*/) {
  return Asked();
}

gint PtrnFileClose(GtkWidget* /*parent*/) {
  return Asked();
}

gint EditProjData(GtkWidget* /*parent*/, const gchar* /*title*/) {
  return Asked();
}

gint ProjFileOpen(GtkWidget* /*parent*/) {
  return Asked();
}

namespace {

class SeamTest : public testing::Test {
 protected:
  void SetUp() override {
    std::strcpy(PathName, folder_.Path().c_str());
    std::strcpy(ProjPath, folder_.Path().c_str());
    Calls.clear();
  }
  void TearDown() override { PathName[0] = ProjPath[0] = '\0'; }

  TempFolder folder_;
};

TEST_F(SeamTest, TheLoadersCallWhateverRebuildsTheResources) {
  FontDataInit(0);
  LoadColrFile();
  LoadMarkFile();
  SaveColrFile();
  SaveMarkFile();
  EXPECT_EQ(Calls, (std::vector<std::string>{"SetDrawFont", "SetDrawColr", "SetDrawMark",
                                             "SetDrawColr", "SetDrawMark"}));
}

TEST_F(SeamTest, RenderingAndHitTestsStandBesideTheStandIns) {
  InitDrawData();
  Drawable picture(8, 8);
  DrawGc gc;
  PtrnHedr = {};
  IntPtrnData();
  DrawWindow1(&picture, &gc);
  PTRNDATA item{};
  item.Type = TypeMark;
  const POINT outside = {100, 100};
  EXPECT_EQ(SearchPtrnData(&outside, &item), 0);
  ExtPtrnData();
}

TEST_F(SeamTest, CommandsAskThroughTheOneCopyAndMoveDialog) {
  DLGPARM parm = {1, 2, 3, 4};
  EXPECT_EQ(Dlg_ToolCopy(nullptr, &parm), 4);
  EXPECT_EQ(Dlg_AreaCopy(nullptr, &parm), 4);
  EXPECT_EQ(Dlg_AreaMove(nullptr, &parm), 4);
  EXPECT_EQ(Calls,
            (std::vector<std::string>{"描画情報複写 0", "描画情報複写 0", "描画情報移動 1"}));
}

TEST_F(SeamTest, CommandsAndChecksRunWithoutAWindow) {
  EXPECT_EQ(PtrnWnd, nullptr);
  PtrnDataNew(nullptr, GINT_TO_POINTER(2));
  PtrnDataOpen(nullptr, nullptr);
  ProjDataOpen(nullptr, nullptr);
  EXPECT_EQ(Dialogs, 3);
  EditHedr = {};
  EXPECT_EQ(EditPtrnData_Check(), 0);
  EXPECT_EQ(Calls.back(), "入力エラー|タイトルが設定されていません。||1");
  EditData = {};
  EditName[0] = '\0';
  EXPECT_EQ(CheckProjData(), 0);
  EXPECT_EQ(Calls.back(), "入力エラー|プロジェクト名が設定されていません。||1");
}

}  // namespace
