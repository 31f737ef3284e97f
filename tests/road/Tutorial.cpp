// The manual's tutorial, step by step, from the shipped profile to a project without findings.
#include <gtest/gtest.h>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "tests/common/TempFolder.h"
#include "tests/road/RoadTest.h"
#include "tests/tools/Tool.h"

namespace {

// The folder chooser waits with the home folder's path in its entry.
bool AwaitsTyping(GtkWidget* chooser) {
  return See([chooser] {
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(chooser));
    return gtk_window_is_active(GTK_WINDOW(chooser)) != FALSE && GTK_IS_ENTRY(focus) &&
           gtk_widget_has_focus(focus) != FALSE;
  });
}

void TypeBehindHome(const std::string& title, const std::string& folder) {
  const Panel chooser(title);
  ASSERT_TRUE(AwaitsTyping(chooser.Window())) << title;
  PressKey(GDK_KEY_End);
  TypeText("/" + folder);
  chooser.Press(" 選択 ");
  Panel("フォルダー選択").Press(" はい ");
  EXPECT_TRUE(SeeGone(title));
}

bool InHand(gint type) {
  return See([type] { return PtrnMode == ModeSelected && PtrnType == type; });
}

bool NothingInHand() {
  return See([] { return PtrnMode == ModeIdle; });
}

class Tutorial : public RoadTest {
 protected:
  Tutorial() {
    OldHome = g_getenv("HOME") != nullptr ? g_getenv("HOME") : "";
    g_setenv("HOME", Home.Path().c_str(), TRUE);
  }
  ~Tutorial() override { g_setenv("HOME", OldHome.c_str(), TRUE); }

  ToolRun Check() const { return RunTool({"check", Home.Path("Pump/Pump.prj")}); }

  static void MakeProject();
  static void MakeLayout();
  static void Draw();
  static void Pick();
  static void SaveAndClose();

  TempFolder Home;
  std::string OldHome;
};

void Tutorial::MakeProject() {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの新規作成"});
  const Panel settings("プロジェクトの新規作成");
  const Panel page = settings.Page("全般");
  page.Enter(Cell{"プロジェクト名"}, "Pump");
  page.Press(Cell{"プロジェクト情報格納先フォルダー", 4});
  TypeBehindHome("プロジェクト領域へのパス", "Pump");
  page.Press(Cell{"ロジック情報格納先フォルダー", 4});
  TypeBehindHome("プログラム領域へのパス", "PumpLogic");
  page.Tick("１ヶ国");
  settings.Press(" 登録 ");
  EXPECT_TRUE(SeeGone("プロジェクトの新規作成"));
}

void Tutorial::MakeLayout() {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "親ウィンドウ"});
  const Panel settings("レイアウト情報の設定［親ウィンドウ］");
  settings.Enter(Cell{"タイトル"}, "ポンプ場");
  settings.Tick("起動時画面");
  settings.Press(" 設定 ");
  ASSERT_TRUE(
      See([] { return PtrnFlag == 2 && gtk_widget_get_allocated_width(PtrnDraw) >= 1024; }));
  Settle();
}

void Tutorial::Draw() {
  ChooseMenu(MenuBar(), {"編集", "矩形"});
  const Panel rectangle("矩形");
  DragOnCanvas(40, 88, 224, 248);
  rectangle.PickColour({"領域色"}, 21);
  rectangle.Enter(Cell{"識別コード"}, "TANK");
  rectangle.Press(" 登録 ");
  EXPECT_TRUE(See([] { return GetPtrnCount() == 1 && PtrnType == TypeRectangle; }))
      << "the type stays chosen";
  ChooseMenu(MenuBar(), {"編集", "ボタン"});
  const Panel button("ボタン");
  DragOnCanvas(40, 320, 224, 368);
  button.Enter(Cell{"ボタンの文字"}, "起動");
  button.Choose(Cell{"処理種別"}, 1);
  button.Enter(Cell{"識別コード"}, "PUMP_START");
  button.Press(" 登録 ");
  EXPECT_TRUE(See([] { return GetPtrnCount() == 2; }));
  button.Press(" 再表示 ");
  EXPECT_TRUE(SeeGone("ボタン"));
}

// By the edges alone, and to another item with a second press.
void Tutorial::Pick() {
  ClickCanvas(128, 184);
  Settle();
  EXPECT_TRUE(Look([] { return PtrnType == 0; })) << "the inside of a filled rectangle";
  ClickCanvas(40, 128);
  EXPECT_TRUE(InHand(TypeRectangle));
  ClickCanvas(96, 320);
  EXPECT_TRUE(NothingInHand());
  ClickCanvas(96, 320);
  EXPECT_TRUE(InHand(TypeButton));
  PressKey(GDK_KEY_F5);
  EXPECT_TRUE(SeeGone("ボタン"));
}

void Tutorial::SaveAndClose() {
  SaveByKey();
  PressKey(GDK_KEY_w, {GDK_KEY_Control_L});
  EXPECT_TRUE(See([] { return PtrnFlag == 0 && PtrnDraw_Mode == 0; }));
}

TEST_F(Tutorial, EndsInAProjectWithoutFindings) {
  Play([this] {
    MakeProject();
    if (!HasFailure()) MakeLayout();
    if (!HasFailure()) Draw();
    if (!HasFailure()) Pick();
    if (HasFailure()) return;
    SaveAndClose();
    const ToolRun before = Check();
    EXPECT_EQ(before.Code, 1);
    EXPECT_NE(before.Out.find("[registry-behind]"), std::string::npos) << before.Out;
    EXPECT_EQ(before.Out.find("ポンプ場"), std::string::npos) << before.Out;
    PressKey(GDK_KEY_F9);
    Settle();
  });
  const ToolRun after = Check();
  EXPECT_EQ(after.Out, "");
  EXPECT_EQ(after.Code, 0) << after.Err;
  EXPECT_TRUE(Home.Exists("PumpLogic/Pump.cpp"));
}

}  // namespace
