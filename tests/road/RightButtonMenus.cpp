#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

class RightButtonMenus : public RoadTest {};

// Which of the three menus is open, 0 = none.
gint OpenMenu() {
  Settle();
  return Look([] {
    for (gint no = 0; no < 3; no++) {
      if (gtk_widget_get_mapped(PopupMenu[no])) return no + 1;
    }
    return 0;
  });
}

gint OpenedBy(gint x, gint y) {
  ClickCanvas(x, y, RightButton);
  const gint open = OpenMenu();
  if (open != 0) PressKey(GDK_KEY_Escape);
  EXPECT_EQ(OpenMenu(), 0);
  return open;
}

// Which item commands can be used, as "11111" for register, delete, cancel, copy, redraw.
std::string Usable() {
  return Look([] {
    std::string states;
    for (GtkWidget* entry : ToolBoxMenu) states += gtk_widget_get_sensitive(entry) ? '1' : '0';
    return states;
  });
}

TEST_F(RightButtonMenus, FollowTheState) {
  Play([this] {
    // The start picture has none.
    EXPECT_EQ(OpenedBy(300, 300), 0);
    NewLayout(640, 480);
    EXPECT_EQ(OpenedBy(300, 300), 1);

    ClickCanvas(300, 300, RightButton);
    ChooseMenu(PopupMenu[0], {"矩形"});
    EXPECT_NE(SeeWindow("矩形"), nullptr);
    EXPECT_EQ(OpenedBy(300, 300), 1);

    PointAt(PtrnDraw, 100, 100);
    ButtonDown(LeftButton);
    PointAt(PtrnDraw, 180, 160);
    EXPECT_EQ(OpenedBy(180, 160), 0);
    ButtonUp(LeftButton);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "10101");
    EXPECT_EQ(OpenedBy(300, 300), 2);

    ClickCanvas(300, 300, RightButton);
    ChooseMenu(PopupMenu[1], {" 登録   "});
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1 && PtrnMode == ModeIdle; }));
    EXPECT_EQ(Usable(), "00001");
    EXPECT_EQ(OpenedBy(300, 300), 1);

    ClickCanvas(120, 100);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "11111");
    EXPECT_EQ(OpenedBy(300, 300), 2);

    ClickCanvas(300, 300, RightButton);
    ChooseMenu(PopupMenu[1], {" 再表示 "});
    EXPECT_TRUE(See([] { return ToolBox == nullptr && PtrnType == 0; }));
    EXPECT_EQ(OpenedBy(300, 300), 1);
  });
}

TEST_F(RightButtonMenus, ANumberJustTypedIsRegistered) {
  Play([this] {
    NewLayout(640, 480);
    ChooseMenu(MenuBar(), {"編集", "矩形"});
    DragOnCanvas(100, 100, 180, 160);
    const Panel panel("矩形");
    GtkWidget* spin = panel.Control({"線幅"}, GTK_TYPE_SPIN_BUTTON);
    PointAt(spin, 12, 12);
    ClickHere(LeftButton);
    EXPECT_TRUE(See([&] { return gtk_widget_has_focus(spin) != FALSE; }));
    PressKey(GDK_KEY_a, {GDK_KEY_Control_L});
    TypeText("7");
    // No Tab, no Return: straight to the canvas.
    ClickCanvas(300, 300, RightButton);
    ChooseMenu(PopupMenu[1], {" 登録   "});
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][15], 7);
  });
}

// Where a menu stands on the screen, from where the canvas does.
POINT PlaceOf(GtkWidget* menu) {
  POINT canvas{0, 0};
  POINT place{0, 0};
  gdk_window_get_origin(gtk_widget_get_window(PtrnDraw), &canvas.x, &canvas.y);
  gdk_window_get_origin(gtk_widget_get_window(menu), &place.x, &place.y);
  return {place.x - canvas.x, place.y - canvas.y};
}

// The key opens the menu there or some dots beside, as the theme frames it.
void ExpectMenuAt(gint no, gint x, gint y) {
  constexpr gint Frame = 12;
  PressKey(GDK_KEY_F10, {GDK_KEY_Shift_L});
  EXPECT_TRUE(See([no] { return gtk_widget_get_mapped(PopupMenu[no]) != FALSE; }));
  const POINT place = Look([no] { return PlaceOf(PopupMenu[no]); });
  EXPECT_NEAR(place.x, x, Frame);
  EXPECT_NEAR(place.y, y, Frame);
  PressKey(GDK_KEY_Escape);
  EXPECT_EQ(OpenMenu(), 0);
}

TEST_F(RightButtonMenus, AKeyOpensThemAtThePointerOrWhereTheWorkIs) {
  Play([this] {
    NewLayout(640, 480);
    Look([] {
      const PTRNDATA box = BoxItem(200, 120, 320, 200, 8);
      AddPtrnData(&box);
      DrawRequest(1);
    });
    Settle();
    PointAt(PtrnDraw, 410, 90);
    ExpectMenuAt(0, 410, 90);
    PointAway();
    ExpectMenuAt(0, 0, 0);
    ClickCanvas(230, 120);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    ExpectMenuAt(1, 230, 120);
    PointAway();
    ExpectMenuAt(1, 200, 200);
    PressKey(GDK_KEY_Return);
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle && PtrnFlag == 2; }));
    PressKey(GDK_KEY_Escape);
    Look([] {
      PtrnMode = ModeArea;
      AreaPoint1 = {300, 240};
      AreaPoint2 = {80, 80};
    });
    ExpectMenuAt(2, 80, 240);
    EXPECT_EQ(Look([] { return PtrnMode; }), ModeIdle);
  });
}

}  // namespace
