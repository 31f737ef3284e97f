#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "dialogs/ToolBox.h"
#include "tests/looks/Looks.h"

namespace {

class MainWindow : public LooksTest {
 protected:
  // Opens a menu, shows the screen with it, and closes it.
  static void ShowMenu(const std::string& name, const Path& path) {
    ChooseMenu(MenuBar(), path);
    Settle();
    ShowScreen(name, PtrnWnd);
    for (gsize i = 0; i < path.size(); ++i) PressKey(GDK_KEY_Escape);
  }
};

TEST_F(MainWindow, Menus) {
  Play([this] {
    EXPECT_TRUE(See([] { return gtk_window_is_active(GTK_WINDOW(PtrnWnd)) != FALSE; }));
    ShowScreen("window-start", PtrnWnd);
    OpenLayout("全体監視");
    ShowScreen("window-layout", PtrnWnd);
    ShowMenu("menu-file", {"ファイル"});
    ShowMenu("menu-file-new", {"ファイル", "レイアウトの新規作成"});
    ShowMenu("menu-edit", {"編集"});
    ShowMenu("menu-view", {"表示"});
    ShowMenu("menu-zoom", {"表示", "ズーム"});
    ShowMenu("menu-unpickable", {"表示", "非検出"});
    ShowMenu("menu-colour", {"表示", "表示色"});
    ShowMenu("menu-language", {"表示", "言語"});
  });
}

// The README's picture: a bar graph of the sample in hand, its panel beside the window.
TEST_F(MainWindow, AtWork) {
  Play([this] {
    for (POINT& place : ToolBox_PointData) place = {1060, 130};
    OpenLayout("全体監視");
    const SIZE layout = Look([] {
      const SIZE size = PtrnDraw_Size2;
      gtk_window_move(GTK_WINDOW(PtrnWnd), 16, 16);
      gtk_window_resize(GTK_WINDOW(PtrnWnd), size.cx,
                        size.cy + gtk_widget_get_allocated_height(MenuBar()));
      return size;
    });
    EXPECT_TRUE(See([&] { return gtk_widget_get_allocated_width(PtrnWnd) == layout.cx; }));
    Settle();
    ClickCanvas(250, 200);
    ShowBeside("window", {PtrnWnd, SeeWindow("棒グラフ")});
  });
}

TEST_F(MainWindow, RightButtonMenus) {
  Play([this] {
    // Panels go as far to the right as the screen allows.
    for (POINT& place : ToolBox_PointData) place = {9999, 60};
    OpenSamples();
    Show("window-samples", PtrnWnd);
    ClickCanvas(200, 120, RightButton);
    EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[0]) != FALSE; }));
    ShowScreen("popup-view", PtrnWnd);
    PressKey(GDK_KEY_Escape);
    PickSample(3);
    Show("window-selected", PtrnWnd);
    ClickCanvas(60, 480, RightButton);
    EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[1]) != FALSE; }));
    ShowScreen("popup-item", PtrnWnd);
    PressKey(GDK_KEY_Escape);
  });
}

}  // namespace
