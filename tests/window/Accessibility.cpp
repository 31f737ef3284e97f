// The running program as a screen reader finds it: every control that can be used has a name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Constant.h"
#include "PtrnData.h"
#include "tests/window/PopUps.h"
#include "tests/window/Program.h"
#include "tests/window/Reader.h"
#include "tests/window/Widgets.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::IsEmpty;

const std::string ProgramName = "VarnixMaster";
const std::string ProjectTitle = "レイアウト作成  [WaterWorks]";

std::vector<std::string> NamesIn(const std::vector<ReadControl>& controls) {
  std::vector<std::string> names;
  for (const ReadControl& control : controls) names.push_back(control.Name);
  return names;
}

std::vector<std::string> NamelessIn(const std::vector<ReadControl>& controls) {
  std::vector<std::string> roles;
  for (const ReadControl& control : controls) {
    if (control.Usable && control.Name.empty()) roles.push_back(control.Role);
  }
  return roles;
}

// The keyboard is in the window when the bus may not yet know of it.
std::vector<ReadControl> Read(const std::string& title) {
  std::vector<ReadControl> controls;
  EXPECT_TRUE(WaitFor([&] {
    controls = ReadWindow(ProgramName, title);
    return !controls.empty();
  })) << title;
  EXPECT_THAT(NamelessIn(controls), IsEmpty()) << title;
  return controls;
}

}  // namespace

class Accessibility : public testing::Test {
 protected:
  Accessibility() {
    g_unsetenv("NO_AT_BRIDGE");
    Program = std::make_unique<RunningProgram>(Folder);
    g_setenv("NO_AT_BRIDGE", "1", TRUE);
  }
  void SetUp() override { ASSERT_TRUE(WaitForTitle(ProjectTitle)); }

  // Opens a dialog with a key of the menu, reads it and leaves it with Escape.
  static std::vector<ReadControl> ReadDialog(const std::string& key, const std::string& title,
                                             const std::string& below) {
    PressKeys({key});
    EXPECT_TRUE(WaitForTitle(title));
    const std::vector<ReadControl> controls = Read(title);
    PressKeys({"Escape"});
    EXPECT_TRUE(WaitForTitle(below));
    return controls;
  }
  // Opens the panel of a type by the menu's keys; the first three entries are not types.
  static void OpenPanel(gint type) {
    std::vector<std::string> keys = {"alt+e", "Down", "Down", "Down"};
    keys.insert(keys.end(), static_cast<std::size_t>(type), "Down");
    keys.emplace_back("Return");
    PressKeys(keys);
  }
  // Opens the first layout of the list by keyboard; the main window's title then.
  static std::string OpenFirstLayout() {
    PressKeys({"ctrl+o"});
    EXPECT_TRUE(WaitForTitle("レイアウトを開く"));
    Read("レイアウトを開く");
    OpenFirstOfList();
    std::string title;
    EXPECT_TRUE(WaitFor([&title] {
      title = XDoTool({"getactivewindow", "getwindowname"});
      return title.rfind("レイアウト作成  [WaterWorks / ", 0) == 0;
    }));
    return title;
  }
  // Presses a control over the bus and reads the dialog that it opens.
  static void Open(const std::string& title, const std::string& control,
                   const std::string& opened) {
    ASSERT_TRUE(WaitFor([&] { return ActOn(ProgramName, title, control); })) << control;
    ASSERT_TRUE(WaitForTitle(opened)) << control;
    Read(opened);
  }
  static void Leave(const std::string& title, const std::string& below) {
    PressKeys({"Escape"});
    ASSERT_TRUE(WaitForTitle(below)) << title;
  }
  static void OpenAndLeave(const std::string& title, const std::string& control,
                           const std::string& opened) {
    Open(title, control, opened);
    Leave(opened, title);
  }
  // Leaves one layout in the project, an empty parent window.
  void KeepEmptyLayout() const {
    const std::string project = Folder.Path() + "/Sample";
    for (const fs::directory_entry& entry : fs::directory_iterator(project)) {
      if (entry.path().extension() == ".ptn") fs::remove(entry.path());
    }
    IntPtrnData();
    PtrnHedr = {};
    PtrnHedr.Parm1[HedrSlot::Width] = 640;
    PtrnHedr.Parm1[HedrSlot::Height] = 480;
    PtrnHedr.Parm2[ViewSlot::Zoom] = 2;
    PtrnFileWrite(project.c_str(), "empty");
  }
  // Drags on the canvas of the window that has the keyboard, near the layout's corner and beside
  // all panels.
  static void DragAt(const std::string& x, const std::string& y) {
    XDoTool({"mousemove", "--window", XDoTool({"getactivewindow"}), x, y});
    XDoTool({"mousedown", "1", "mousemove_relative", "--sync", "40", "30", "mousemove_relative",
             "--sync", "40", "30", "mouseup", "1"});
  }
  void EndsWell() {
    PressKeys({"ctrl+q"});
    EXPECT_EQ(Program->Wait(), 0);
    EXPECT_EQ(Program->Complaints(), "");
  }

  ProgramFolder Folder;
  std::unique_ptr<RunningProgram> Program;
};

TEST_F(Accessibility, OfTheProjectsWindows) {
  EXPECT_THAT(NamesIn(Read(ProjectTitle)),
              AllOf(Contains("ファイル"), Contains("プロジェクトを開く"), Contains("表示色設定"),
                    Contains("言語３"), Contains("レイアウト")));
  ReadDialog("ctrl+shift+o", "プロジェクトを開く", ProjectTitle);
  EXPECT_THAT(NamesIn(ReadDialog("ctrl+shift+e", "プロジェクトの新規作成", ProjectTitle)),
              AllOf(Contains("プロジェクト名"), Contains("作業領域 背景色 色番号 10")));
  ReadDialog("ctrl+l", "表示色設定", ProjectTitle);
  ReadDialog("ctrl+m", "マーク設定", ProjectTitle);
  EndsWell();
}

TEST_F(Accessibility, OfALayoutsWindows) {
  const std::string title = OpenFirstLayout();
  EXPECT_THAT(NamesIn(ReadDialog("ctrl+shift+g", "方眼設定", title)),
              AllOf(Contains("横"), Contains("縱")));
  OpenPanel(0);
  EXPECT_THAT(NamesIn(Read("矩形枠")),
              AllOf(Contains("始点"), Contains("終点"), Contains("画面名称 参照"),
                    Contains("識別番号"), Contains(" 再表示 ")));
  // A press that opens a dialog does not keep the reader waiting for the dialog's end.
  ASSERT_TRUE(ActOn(ProgramName, "矩形枠", "消去色 色番号"));
  ASSERT_TRUE(WaitForTitle("表示色選択"));
  EXPECT_THAT(NamesIn(Read("表示色選択")), Contains("色番号 99"));
  ASSERT_TRUE(ActOn(ProgramName, "表示色選択", "色番号 99"));
  EXPECT_TRUE(WaitFor([] {
    return testing::Value(NamesIn(ReadWindow(ProgramName, "矩形枠")), Contains("消去色 色番号 99"));
  }));
}

TEST_F(Accessibility, OfEachPanel) {
  OpenFirstLayout();
  for (gint type = 0; type < 15; type++) {
    OpenPanel(type);
    EXPECT_THAT(NamesIn(Read(PtrnTypeList[type])), Contains("消去色 色番号 10")) << type;
  }
}

// Presses that open a dialog do not keep the reader waiting for the dialog's end: menu entries,
// buttons and swatches.
TEST_F(Accessibility, OfTheProjectsSettings) {
  const std::string settings = "プロジェクトの新規作成";
  Open(ProjectTitle, "プロジェクトの修正", settings);
  const std::string folder = "プロジェクト領域へのパス";
  Open(settings, "プロジェクト情報格納先フォルダー 参照", folder);
  PressKeys({"ctrl+a", "x"});
  OpenAndLeave(folder, " 選択 ", "フォルダー選択");
  Leave(folder, settings);
  OpenAndLeave(settings, "ロジック情報格納先フォルダー 参照", "プログラム領域へのパス");
  OpenAndLeave(settings, "タイトル領域 ロゴマーク 参照", "ロゴマーク選択");
  OpenAndLeave(settings, " 表示色設定 ", "表示色設定");
  Leave(settings, ProjectTitle);
  EndsWell();
}

TEST_F(Accessibility, OfTheFileChooser) {
  const std::string opening = "プロジェクトを開く";
  Open(ProjectTitle, opening, opening);
  // The chooser bears the title of the dialog below it.
  ASSERT_TRUE(ActOn(ProgramName, opening, " フォルダーより探す "));
  ASSERT_TRUE(WaitFor([&] {
    return testing::Value(NamesIn(ReadWindow(ProgramName, opening)), Contains("ファイル"));
  }));
  Read(opening);
  PressKeys({"Escape", "Escape"});
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  EndsWell();
}

TEST_F(Accessibility, OfPaletteAndMarks) {
  Open(ProjectTitle, "表示色設定", "表示色設定");
  OpenAndLeave("表示色設定", "色番号 12", "表示色作成");
  Leave("表示色設定", ProjectTitle);
  // Out of a menu that is open, too.
  const int before = ShownPopUps();
  PressKeys({"alt+e"});
  ASSERT_TRUE(WaitFor([&] { return ShownPopUps() > before; }));
  Open(ProjectTitle, "マーク設定", "マーク設定");
  EXPECT_EQ(ShownPopUps(), before);
  Open("マーク設定", "マーク 100", "マーク作成");
  OpenAndLeave("マーク作成", "参照", "マーク選択");
  Leave("マーク作成", "マーク設定");
  Leave("マーク設定", ProjectTitle);
  EndsWell();
}

TEST_F(Accessibility, OfThePickers) {
  OpenFirstLayout();
  OpenPanel(5);
  const std::string texts = "固定文字列";
  OpenAndLeave(texts, "文字列 参照", "固定文字列 (言語１) 選択");
  OpenAndLeave(texts, "画面名称 参照", "画面名称選択");
  OpenAndLeave(texts, "識別コード 参照", "識別コード選択");
  OpenAndLeave(texts, "前景色 1", "表示色選択");
  OpenPanel(11);
  OpenAndLeave("ビットマップ", "ビットマップ名 参照", "画像ファイル選択");
  OpenPanel(12);
  OpenAndLeave("マーク", "マーク", "マーク選択");
}

// Each language adds a title to the settings and a text to four of the panels. The button beside
// the texts serves the first one in all languages.
TEST_F(Accessibility, OfTheFurtherLanguages) {
  KeepEmptyLayout();
  const std::string title = OpenFirstLayout();
  const std::string texts = "固定文字列";
  constexpr const char* Figures[] = {"２", "３"};
  for (gint further = 0; further < 2; further++) {
    const std::string figure = Figures[further];
    PressKeys({"ctrl+F" + std::to_string(further + 2)});
    ASSERT_TRUE(WaitForTitle(title));
    EXPECT_THAT(NamesIn(ReadDialog("ctrl+i", "レイアウト情報の設定［親ウィンドウ］", title)),
                Contains("タイトル" + figure));
    for (const gint type : {8, 9, 10}) {
      OpenPanel(type);
      EXPECT_THAT(NamesIn(Read(PtrnTypeList[type])), Contains("ボタンの文字" + figure)) << type;
    }
    OpenPanel(5);
    EXPECT_THAT(NamesIn(Read(texts)), Contains("フォント" + figure));
    OpenAndLeave(texts, "文字列 参照", "固定文字列 (言語１) 選択");
  }
}

TEST_F(Accessibility, OfTheOtherKindsOfLayout) {
  OpenAndLeave(ProjectTitle, "子ウィンドウ", "レイアウト情報の設定［子ウィンドウ］");
  OpenAndLeave(ProjectTitle, "その他", "レイアウト情報の設定［その他］");
  EndsWell();
}

TEST_F(Accessibility, OfTheLayoutsDialogs) {
  KeepEmptyLayout();
  const std::string title = OpenFirstLayout();
  OpenAndLeave(title, "レイアウト情報設定", "レイアウト情報の設定［親ウィンドウ］");
  OpenPanel(2);
  Read("矩形");
  DragAt("60", "100");
  ASSERT_TRUE(WaitFor([] { return ActOn(ProgramName, "矩形", " 登録 "); }));
  // The panel lets the new item go before a click can pick it.
  ASSERT_TRUE(WaitFor([] {
    XDoTool({"click", "1"});
    return ActOn(ProgramName, "矩形", " 複写 ");
  }));
  ASSERT_TRUE(WaitForTitle("描画情報複写"));
  Read("描画情報複写");
  Leave("描画情報複写", title);
  ASSERT_TRUE(ActOn(ProgramName, "矩形", " 再表示 "));
  const int before = ShownPopUps();
  DragAt("60", "250");
  ASSERT_TRUE(WaitFor([&] { return ShownPopUps() > before; }));
  PressKeys({"Down", "Down", "Down", "Return"});
  ASSERT_TRUE(WaitForTitle("描画情報移動"));
  Read("描画情報移動");
  Leave("描画情報移動", title);
  Open(title, "レイアウトを閉じる", "レイアウトを閉じる");
  OpenAndLeave("レイアウトを閉じる", " 保存 ", "レイアウト保存");
  Leave("レイアウトを閉じる", title);
}
