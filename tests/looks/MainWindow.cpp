#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "looks/Looks.h"

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
    ShowScreen("window-start", PtrnWnd);
    OpenLayout("全体監視");
    ShowScreen("window-layout", PtrnWnd);
    ShowMenu("menu-file", {"ファイル"});
    ShowMenu("menu-file-new", {"ファイル", "レイアウトの新規作成"});
    ShowMenu("menu-edit", {"編集"});
    ShowMenu("menu-view", {"表示"});
    for (const char* sub : {"ズーム", "非検出", "表示色", "言語"})
      ShowMenu(std::string("menu-view-") + sub, {"表示", sub});
  });
}

TEST_F(MainWindow, RightButtonMenus) {
  Play([this] {
    OpenSamples();
    ClickCanvas(20, 620, RightButton);
    EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[0]) != FALSE; }));
    ShowScreen("popup-view", PtrnWnd);
    PressKey(GDK_KEY_Escape);
    PickSample(3);
    Show("window-selected", PtrnWnd);
    ClickCanvas(20, 620, RightButton);
    EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[1]) != FALSE; }));
    ShowScreen("popup-item", PtrnWnd);
    PressKey(GDK_KEY_Escape);
  });
}
}  // namespace
