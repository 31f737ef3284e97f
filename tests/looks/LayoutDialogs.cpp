#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "support/Resource.h"
#include "tests/looks/Looks.h"

namespace {

class LayoutDialogs : public LooksTest {
 protected:
  // The settings of a new layout of each kind.
  void ShowSettings(const std::string& suffix) {
    constexpr struct {
      const char* Kind;
      const char* Name;
    } Kinds[] = {{"親ウィンドウ", "layout-parent"},
                 {"子ウィンドウ", "layout-child"},
                 {"その他", "layout-other"}};
    for (const auto& kind : Kinds) {
      ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", kind.Kind});
      ShowAndLeave(kind.Name + suffix, std::string("レイアウト情報の設定［") + kind.Kind + "］");
    }
  }
};

TEST_F(LayoutDialogs, Settings) {
  Play([this] { ShowSettings(""); });
}

TEST_F(LayoutDialogs, SettingsInThreeLanguages) {
  Play([this] {
    OpenSamples();
    PressKey(GDK_KEY_F3, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return Language == 2; }));
    ShowSettings("-3");
  });
}

TEST_F(LayoutDialogs, Open) {
  Play([] {
    ChooseMenu(MenuBar(), {"ファイル", "レイアウトを開く"});
    ClickRow(SeeWindow("レイアウトを開く"), "全体監視");
    Show("layout-open", "レイアウトを開く");
    Panel("レイアウトを開く").Press(" 未設定 ");
    ShowAndLeave("layout-open-incomplete", "レイアウトを開く [未設定]");
  });
}

TEST_F(LayoutDialogs, CloseAndOverwrite) {
  Play([this] {
    OpenSamples();
    PickSample(3);
    Panel("矩形").Enter(Cell{"線幅"}, 4);
    Panel("矩形").Press(" 登録 ");
    EXPECT_TRUE(See([] { return PtrnFlag == 2; }));
    PressKey(GDK_KEY_w, {GDK_KEY_Control_L});
    Show("layout-close", "レイアウトを閉じる");
    Panel("レイアウトを閉じる").Press(" 保存 ");
    ShowAndLeave("message-2", "レイアウト保存");
    EscapeFrom("レイアウトを閉じる");
    PressKey(GDK_KEY_o, {GDK_KEY_Control_L});
    ShowAndLeave("message-save", "レイアウトデータ保存確認");
    EXPECT_EQ(PtrnFlag, 2) << "leaving the question keeps the changed layout open";
  });
}

TEST_F(LayoutDialogs, Grid) {
  Play([this] {
    OpenSamples();
    ChooseMenu(MenuBar(), {"表示", "方眼設定"});
    ShowAndLeave("grid", "方眼設定");
  });
}

TEST_F(LayoutDialogs, CopyAndMove) {
  Play([this] {
    OpenSamples();
    PickSample(9);
    Panel("ボタン").Press(" 複写 ");
    ShowAndLeave("copy", "描画情報複写");
    Panel("ボタン").Press(" 再表示 ");
    EXPECT_TRUE(SeeGone("ボタン"));
    DragOnCanvas(430, 250, 660, 380);
    ShowScreen("popup-area", PtrnWnd);
    ChooseMenu(PopupMenu[2], {" 移動 "});
    ShowAndLeave("move", "描画情報移動");
  });
}

}  // namespace
