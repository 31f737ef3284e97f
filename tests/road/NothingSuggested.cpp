// What the shipped profile leaves to the user: names and folders of new projects and layouts.
#include <glib.h>
#include <gtest/gtest.h>

#include "ProjData.h"
#include "PtrnData.h"
#include "tests/road/ProjectHands.h"
#include "tests/road/RoadTest.h"

namespace {

class NothingSuggested : public RoadTest {};

constexpr const gchar* SettingsTitle = "プロジェクトの新規作成";

// What the folder chooser of a row of the settings begins with.
std::string StartOf(const Panel& settings, const std::string& row, const std::string& chooser) {
  settings.Page("全般").Press(Cell{row, 4});
  const Panel folders(chooser);
  const std::string start = Look([&] {
    GtkWidget* entry = FindKind(folders.Window(), GTK_TYPE_ENTRY);
    return std::string(gtk_entry_get_text(GTK_ENTRY(entry)));
  });
  folders.Press(" 取消 ");
  EXPECT_TRUE(SeeGone(chooser));
  return start;
}

TEST_F(NothingSuggested, ANewProjectAsksForNameAndFolders) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの新規作成"});
    const Panel settings(SettingsTitle);
    settings.Press(" 登録 ");
    RefuseInput("プロジェクト名が設定されていません。");
    settings.Page("全般").Enter(Cell{"プロジェクト名"}, "試験計画");
    settings.Press(" 登録 ");
    RefuseInput("プロジェクトデータを格納するフォルダーが設定されていません。");
    const std::string home = g_get_home_dir();
    EXPECT_EQ(StartOf(settings, "プロジェクト情報格納先フォルダー", "プロジェクト領域へのパス"),
              home);
    EXPECT_EQ(StartOf(settings, "ロジック情報格納先フォルダー", "プログラム領域へのパス"), home);
    Look([] { g_strlcpy(EditPath, "/somewhere", sizeof EditPath); });
    settings.Press(" 登録 ");
    RefuseInput("ロジックデータを格納するフォルダーが設定されていません。");
    settings.Press(" 取消 ");
    EXPECT_TRUE(SeeGone(SettingsTitle));
  });
}

// The space bar is the default button's where no control takes it.
TEST_F(NothingSuggested, SpaceOnAFolderThatIsOnlyReadRegistersNothing) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの新規作成"});
    const Panel settings(SettingsTitle);
    settings.Page("全般").Enter(Cell{"プロジェクト名"}, "試験計画");
    PressKey(GDK_KEY_Tab);
    EXPECT_TRUE(Look([&] {
      GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(settings.Window()));
      return GTK_IS_ENTRY(focus) && gtk_editable_get_editable(GTK_EDITABLE(focus)) == FALSE;
    }));
    PressKey(GDK_KEY_space);
    EXPECT_EQ(Look([] { return FindWindow("入力エラー"); }), nullptr);
    settings.Press(" 取消 ");
    EXPECT_TRUE(SeeGone(SettingsTitle));
  });
}

TEST_F(NothingSuggested, ANewLayoutAsksForItsTitle) {
  Play([] {
    for (const gchar* kind : {"親ウィンドウ", "子ウィンドウ", "その他"}) {
      ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", kind});
      const std::string title = "レイアウト情報の設定［" + std::string(kind) + "］";
      const Panel settings(title);
      settings.Press(" 設定 ");
      RefuseInput("タイトルが設定されていません。");
      settings.Press(" 取消 ");
      EXPECT_TRUE(SeeGone(title));
    }
  });
}

}  // namespace
