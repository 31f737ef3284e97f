#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

// The canvas goes on beside a layout that is smaller than the window.
class OutsideTheLayout : public RoadTest {};

gint Mode() {
  Settle();
  return Look([] { return PtrnMode; });
}

TEST_F(OutsideTheLayout, AnItemWaitsForAReleaseInside) {
  Play([this] {
    NewLayout(640, 480);
    ChooseMenu(MenuBar(), {"編集", "矩形"});
    DragOnCanvas(200, 200, 700, 300);
    EXPECT_EQ(Mode(), ModeCreating);
    // No menu while the item is on its way, and no second start.
    ClickCanvas(300, 300, RightButton);
    EXPECT_EQ(Mode(), ModeCreating);
    ClickCanvas(320, 280);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Look([] { return gint{PtrnData.Point1.x}; }), 200);
    EXPECT_EQ(Look([] { return gint{PtrnData.Point2.x}; }), 320);
  });
}

TEST_F(OutsideTheLayout, AnAreaEndsAtTheLastPointInside) {
  Play([this] {
    NewLayout(640, 480);
    DragOnCanvas(300, 300, 700, 380);
    EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[2]) != FALSE; }));
    EXPECT_EQ(Mode(), ModeArea);
    EXPECT_EQ(Look([] { return gint{AreaPoint2.x}; }), 500);
    EXPECT_EQ(Look([] { return gint{AreaPoint2.y}; }), 340);
    ChooseMenu(PopupMenu[2], {" 取消 "});
    EXPECT_EQ(Mode(), ModeIdle);
  });
}

TEST_F(OutsideTheLayout, APressDoesNothing) {
  Play([this] {
    NewLayout(640, 480);
    // The right and the lower edge are outside.
    for (const POINT at : {POINT{640, 100}, POINT{100, 480}, POINT{700, 300}}) {
      ClickCanvas(at.x, at.y);
      EXPECT_EQ(Mode(), ModeIdle);
    }
    ChooseMenu(MenuBar(), {"編集", "矩形"});
    DragOnCanvas(700, 300, 400, 300);
    EXPECT_EQ(Mode(), ModeIdle);
    EXPECT_EQ(Look([] { return GetPtrnCount(); }), 0);
  });
}

TEST_F(OutsideTheLayout, ADragOfAnItemStopsThere) {
  Play([this] {
    NewLayout(640, 480);
    Look([] {
      const PTRNDATA box = BoxItem(500, 100, 580, 180, 8);
      AddPtrnData(&box);
      DrawRequest(1);
    });
    ClickCanvas(510, 100);
    EXPECT_EQ(Mode(), ModeSelected);
    DragOnCanvas(510, 100, 690, 100);
    EXPECT_EQ(Mode(), ModeDragging);
    EXPECT_EQ(Look([] { return gint{PtrnData.Point1.x}; }), 590);
    ClickCanvas(520, 110);
    EXPECT_EQ(Mode(), ModeSelected);
    Panel("矩形").Press(" 取消 ");
    EXPECT_EQ(Mode(), ModeIdle);
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][0], 500);
  });
}

}  // namespace
