#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

using nlohmann::json;

bool MenuOpen() {
  return gtk_widget_get_mapped(PopupMenu[2]) != FALSE;
}

// A layout with a grid of 8 x 8 dots; two items lie in the area (80, 80) - (300, 240), one reaches
// out of it.
class AreaCommands : public RoadTest {
 protected:
  void PlayWithItems(const std::function<void()>& part) {
    Play([&] {
      NewLayout(640, 480);
      Look([] {
        for (const PTRNDATA& item : {BoxItem(100, 100, 140, 140, 8), BoxItem(200, 120, 260, 200, 9),
                                     BoxItem(280, 160, 340, 220, 12)}) {
          AddPtrnData(&item);
        }
        DrawRequest(1);
      });
      Settle();
      part();
    });
  }

  static void SpanArea() {
    DragOnCanvas(300, 240, 80, 80);
    EXPECT_TRUE(See(MenuOpen));
  }

  // The corners of all items as they are saved, in store order.
  json SavedCorners() {
    SaveByKey();
    const json layout = Saved(LayoutName);
    json corners = json::array();
    for (const json& item : layout["Items"]) {
      const json& parm = item["Parm"];
      corners.push_back({parm[0], parm[1], parm[2], parm[3]});
    }
    return corners;
  }
};

TEST_F(AreaCommands, AnAreaOfAGridStepOrLessIsDropped) {
  PlayWithItems([] {
    for (const POINT to : {POINT{28, 28}, POINT{28, 90}, POINT{90, 28}}) {
      DragOnCanvas(20, 20, to.x, to.y);
      Settle();
      EXPECT_FALSE(Look(MenuOpen)) << to.x << ", " << to.y;
      EXPECT_EQ(Look([] { return PtrnMode; }), ModeIdle);
    }
    DragOnCanvas(20, 20, 29, 29);
    EXPECT_TRUE(See(MenuOpen));
    ChooseMenu(PopupMenu[2], {" 取消 "});
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
  });
}

TEST_F(AreaCommands, DeletesWhatLiesInside) {
  PlayWithItems([this] {
    SpanArea();
    ChooseMenu(PopupMenu[2], {" 削除 "});
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    EXPECT_EQ(SavedCorners(), json::parse("[[280,160,340,220]]"));
  });
}

TEST_F(AreaCommands, MovesWhatLiesInside) {
  PlayWithItems([this] {
    SpanArea();
    ChooseMenu(PopupMenu[2], {" 移動 "});
    const Panel dialog("描画情報移動");
    dialog.Enter(Cell{"Ｘ方向ドット数"}, 40);
    dialog.Enter(Cell{"Ｙ方向ドット数"}, 100);
    dialog.Press(" 移動 ");
    EXPECT_TRUE(SeeGone("描画情報移動"));
    EXPECT_EQ(SavedCorners(),
              json::parse("[[140,200,180,240],[240,220,300,300],[280,160,340,220]]"));
  });
}

TEST_F(AreaCommands, CopiesWhatLiesInsideInARow) {
  PlayWithItems([this] {
    SpanArea();
    ChooseMenu(PopupMenu[2], {" 複写 "});
    const Panel dialog("描画情報複写");
    dialog.Enter(Cell{"複写箇数"}, 2);
    dialog.Enter(Cell{"Ｘ方向ドット数"}, 0);
    dialog.Enter(Cell{"Ｙ方向ドット数"}, 120);
    dialog.Press(" 複写 ");
    EXPECT_TRUE(SeeGone("描画情報複写"));
    EXPECT_EQ(SavedCorners(), json::parse("[[100,100,140,140],[200,120,260,200],[280,160,340,220],"
                                          " [100,220,140,260],[100,340,140,380],"
                                          " [200,240,260,320],[200,360,260,440]]"));
  });
}

TEST_F(AreaCommands, AnAreaLetGoOutsideTakesWhatLiesInside) {
  PlayWithItems([this] {
    // The last point inside the layout is (420, 240), half way.
    DragOnCanvas(180, 80, 660, 400);
    EXPECT_TRUE(See(MenuOpen));
    ChooseMenu(PopupMenu[2], {" 移動 "});
    const Panel dialog("描画情報移動");
    dialog.Enter(Cell{"Ｘ方向ドット数"}, 8);
    dialog.Enter(Cell{"Ｙ方向ドット数"}, 16);
    dialog.Press(" 移動 ");
    EXPECT_TRUE(SeeGone("描画情報移動"));
    EXPECT_EQ(SavedCorners(),
              json::parse("[[100,100,140,140],[208,136,268,216],[288,176,348,236]]"));
  });
}

TEST_F(AreaCommands, KeysCancelAndDeleteInTheMenu) {
  PlayWithItems([] {
    SpanArea();
    PressKey(GDK_KEY_Escape);
    EXPECT_TRUE(See([] { return !MenuOpen() && PtrnMode == ModeIdle; }));
    EXPECT_EQ(Look([] { return GetPtrnCount(); }), 3);
    SpanArea();
    PressKey(GDK_KEY_Delete);
    EXPECT_TRUE(See([] { return !MenuOpen() && PtrnMode == ModeIdle; }));
    EXPECT_EQ(Look([] { return GetPtrnCount(); }), 1);
  });
}

TEST_F(AreaCommands, AClickElsewhereGivesTheAreaUp) {
  PlayWithItems([] {
    for (const Button button : {LeftButton, RightButton}) {
      SpanArea();
      // The same click does nothing else.
      ClickCanvas(600, 400, button);
      EXPECT_TRUE(See([] { return !MenuOpen() && PtrnMode == ModeIdle; }));
      DragTo(PtrnDraw, 500, 300);
      EXPECT_EQ(Look([] { return PtrnMode; }), ModeIdle);
      EXPECT_EQ(Look([] { return gint{AreaPoint2.x}; }), 80);
      EXPECT_EQ(Look([] { return GetPtrnCount(); }), 3);
    }
  });
}

TEST_F(AreaCommands, CancellingTheDialogMovesNothing) {
  PlayWithItems([this] {
    SpanArea();
    ChooseMenu(PopupMenu[2], {" 移動 "});
    const Panel dialog("描画情報移動");
    dialog.Enter(Cell{"Ｘ方向ドット数"}, 77);
    dialog.Press(" 取消 ");
    EXPECT_TRUE(SeeGone("描画情報移動"));
    EXPECT_EQ(SavedCorners(),
              json::parse("[[100,100,140,140],[200,120,260,200],[280,160,340,220]]"));
  });
}

}  // namespace
