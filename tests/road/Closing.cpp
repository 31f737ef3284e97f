#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

class Closing : public RoadTest {
 protected:
  void PlayWithABox(const std::function<void()>& part) {
    Play([&] {
      NewLayout(640, 480);
      Look([] {
        const PTRNDATA box = BoxItem(40, 40, 120, 100, 8);
        AddPtrnData(&box);
        DrawRequest(1);
      });
      Settle();
      part();
    });
  }
};

// The window manager's key for closing the window that has the keyboard.
void CloseByManager() {
  PressManagersKey(GDK_KEY_F4, {GDK_KEY_Alt_L});
}

TEST_F(Closing, AnOpenToolBoxKeepsTheMainWindow) {
  PlayWithABox([] {
    ClickCanvas(60, 40);
    ASSERT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_TRUE(See([] { return gtk_window_is_active(GTK_WINDOW(PtrnWnd)) != FALSE; }));
    CloseByManager();
    Settle();
    EXPECT_NE(Look([] { return PtrnWnd; }), nullptr);
    EXPECT_NE(Look([] { return ToolBox; }), nullptr);
    EXPECT_EQ(Look([] { return PtrnMode; }), ModeSelected);
  });
}

TEST_F(Closing, TheToolBoxGivesTheEditUp) {
  PlayWithABox([this] {
    ClickCanvas(60, 40);
    const Panel panel("矩形");
    panel.Enter(Cell{"線幅"}, 9);
    EXPECT_TRUE(See([&] { return gtk_window_is_active(GTK_WINDOW(panel.Window())) != FALSE; }));
    CloseByManager();
    EXPECT_TRUE(See([] { return ToolBox == nullptr && PtrnMode == ModeIdle && PtrnType == 0; }));
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][15], 1);
  });
}

TEST_F(Closing, CancellingTheQuestionKeepsTheLayout) {
  PlayWithABox([] {
    CloseByManager();
    const Panel question("レイアウトデータ保存確認");
    PressKey(GDK_KEY_Escape);
    EXPECT_TRUE(SeeGone("レイアウトデータ保存確認"));
    EXPECT_EQ(Look([] { return PtrnFlag; }), 2);
    EXPECT_NE(Look([] { return PtrnWnd; }), nullptr);
    EXPECT_EQ(Look([] { return GetPtrnCount(); }), 1);
  });
}

TEST_F(Closing, SavesWhenAskedToAndGoes) {
  PlayWithABox([] {
    CloseByManager();
    Panel("レイアウトデータ保存確認").Press(" はい ");
    Panel("レイアウトを閉じる").Press(" 保存 ");
    EXPECT_TRUE(See([] { return PtrnWnd == nullptr; }));
  });
  EXPECT_EQ(Saved(LayoutName)["DataCount"], 1);
}

}  // namespace
