#include <gtest/gtest.h>

#include "PtrnData.h"
#include "tests/looks/Looks.h"

namespace {

class ProjectDialogs : public LooksTest {};

const std::string Settings = "プロジェクトの新規作成";
const std::string OpenProject = "プロジェクトを開く";

TEST_F(ProjectDialogs, SettingsPages) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", Settings});
    for (const char* page :
         {"project-general", "project-parent", "project-child", "project-other"}) {
      Show(page, Settings);
      PressKey(GDK_KEY_Next, {GDK_KEY_Control_L});
    }
    EscapeFrom(Settings);
  });
}

TEST_F(ProjectDialogs, Open) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", OpenProject});
    ClickRow(SeeWindow(OpenProject), "WaterWorks");
    ShowAndLeave("project-open", OpenProject);
  });
}

TEST_F(ProjectDialogs, FolderChooser) {
  Play([] {
    const std::string title = "プロジェクト領域へのパス";
    ChooseMenu(MenuBar(), {"ファイル", Settings});
    Click(Panel(Settings).Control({"プロジェクト情報格納先フォルダー", 4}, GTK_TYPE_BUTTON));
    ClickRow(SeeWindow(title), "Projects");
    ShowAndLeave("folder-chooser", title);
    EscapeFrom(Settings);
  });
}

TEST_F(ProjectDialogs, FileChooser) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", OpenProject});
    GtkWidget* const dialog = SeeWindow(OpenProject);
    Panel(OpenProject).Press(" フォルダーより探す ");
    // The chooser bears the same title.
    EXPECT_TRUE(See([&] { return FindWindow(OpenProject) != dialog; }));
    GtkWidget* const chooser = SeeWindow(OpenProject);
    ClickRow(chooser, "Projects");
    PressKey(GDK_KEY_Right, {GDK_KEY_Shift_L});
    ClickRow(chooser, "WaterWorks");
    Show("file-chooser", chooser);
    PressKey(GDK_KEY_Escape);
    EXPECT_TRUE(See([&] { return FindWindow(OpenProject) == dialog; }));
    EscapeFrom(OpenProject);
  });
}

TEST_F(ProjectDialogs, MessageBox) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", Settings});
    const Panel settings(Settings);
    settings.Press(" 登録 ");
    ShowAndLeave("message-1", "入力エラー");
    EscapeFrom(Settings);
  });
}

}  // namespace
