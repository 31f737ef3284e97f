// The running program as a screen reader finds it: every control that can be used has a name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Constant.h"
#include "window/Program.h"
#include "window/Reader.h"
#include "window/Widgets.h"

namespace {

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
  for (const ReadControl& control : controls)
    if (control.Usable && control.Name.empty()) roles.push_back(control.Role);
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
    PressKeys({"Tab", "space", "Tab", "Tab", "Tab", "space"});
    std::string title;
    EXPECT_TRUE(WaitFor([&title] {
      title = XDoTool({"getactivewindow", "getwindowname"});
      return title.rfind("レイアウト作成  [WaterWorks / ", 0) == 0;
    }));
    return title;
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
