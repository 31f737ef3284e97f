#include <gtest/gtest.h>

#include "app/Menus.h"
#include "app/Window.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

class CanvasEvents : public WindowTest {
 protected:
  void SetUp() override {
    OpenWindow();
    IntPtrnData();
    const PTRNDATA box = BoxItem(100, 100, 160, 140, 1);
    AddPtrnData(&box);
    ShowLayout(400, 300, 2);
  }
};

bool Open(GtkWidget* menu) {
  return gtk_widget_get_visible(menu) != FALSE;
}

bool AnyOpen() {
  return Open(PopupMenu[0]) || Open(PopupMenu[1]) || Open(PopupMenu[2]);
}

void CloseMenus() {
  for (GtkWidget* menu : PopupMenu) gtk_menu_popdown(GTK_MENU(menu));
}

void RightPress(gint x, gint y) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_SECONDARY, x, y);
}

TEST_F(CanvasEvents, LeftButtonPicksAndSelects) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, 115, 100);
  EXPECT_EQ(PtrnMode, ModePicked);
  EXPECT_EQ(PtrnNo, 0);
  SendButton(GDK_BUTTON_RELEASE, GDK_BUTTON_PRIMARY, 115, 100);
  EXPECT_EQ(PtrnMode, ModeSelected);
}

TEST_F(CanvasEvents, OtherButtonsDoNotEdit) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_MIDDLE, 115, 100);
  EXPECT_EQ(PtrnMode, ModeIdle);
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, 115, 100);
  SendButton(GDK_BUTTON_RELEASE, GDK_BUTTON_MIDDLE, 115, 100);
  EXPECT_EQ(PtrnMode, ModePicked);
}

TEST_F(CanvasEvents, TheNoticeOfADoubleClickIsNoPress) {
  SendButton(GDK_2BUTTON_PRESS, GDK_BUTTON_PRIMARY, 115, 100);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(CanvasEvents, TheStartPictureTakesNoMouse) {
  SizeRequest(0, 0, 0, 0);
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, 115, 100);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(CanvasEvents, MotionDragsTheSelectedItem) {
  Drag(115, 100, 115, 100);
  Drag(115, 100, 135, 105);
  EXPECT_EQ(gint{PtrnData.Point1.x}, 120);
  EXPECT_EQ(gint{PtrnData.Point1.y}, 105);
  EXPECT_EQ(gint{PtrnData.Point2.x}, 180);
  EXPECT_EQ(gint{PtrnData.Point2.y}, 145);
}

TEST_F(CanvasEvents, RightPressOpensTheViewMenuWhileNothingIsEdited) {
  RightPress(20, 20);
  EXPECT_TRUE(Open(PopupMenu[0]));
  EXPECT_FALSE(Open(PopupMenu[1]));
  CloseMenus();
  // A type chosen, nothing begun.
  PtrnType = TypeLine;
  PtrnMode = ModeIdle;
  RightPress(20, 20);
  EXPECT_TRUE(Open(PopupMenu[0]));
  CloseMenus();
}

TEST_F(CanvasEvents, RightPressOpensTheItemMenuOverASelectedItem) {
  Drag(115, 100, 115, 100);
  ASSERT_EQ(PtrnMode, ModeSelected);
  RightPress(115, 100);
  EXPECT_FALSE(Open(PopupMenu[0]));
  EXPECT_TRUE(Open(PopupMenu[1]));
  CloseMenus();
}

TEST_F(CanvasEvents, RightPressOpensNothingWhileAnItemIsPlaced) {
  PtrnType = TypeLine;
  for (const gint mode : {ModeCreating, ModePicked, ModeDragging}) {
    PtrnMode = mode;
    RightPress(20, 20);
    EXPECT_FALSE(AnyOpen()) << mode;
  }
}

TEST_F(CanvasEvents, RightPressOpensNothingWithoutALayout) {
  PtrnFlag = 0;
  RightPress(20, 20);
  EXPECT_FALSE(AnyOpen());
}

TEST_F(CanvasEvents, AnAreaOpensItsMenu) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 10 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 7;  // 16 dots
  Drag(200, 200, 211, 217);
  EXPECT_EQ(PtrnMode, ModeArea);
  EXPECT_TRUE(Open(PopupMenu[2]));
  CloseMenus();
}

TEST_F(CanvasEvents, AnAreaWithinOneGridStepIsDropped) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;
  PtrnHedr.Parm2[ViewSlot::GridY] = 7;
  for (const POINT end : {POINT{210, 260}, POINT{260, 216}, POINT{190, 150}, POINT{200, 200}}) {
    Drag(200, 200, end.x, end.y);
    EXPECT_EQ(PtrnMode, ModeIdle) << end.x << ", " << end.y;
    EXPECT_FALSE(AnyOpen());
  }
}

TEST_F(CanvasEvents, DeleteRemovesTheSelectedItem) {
  Drag(115, 100, 115, 100);
  SendKey(GDK_KEY_Delete);
  EXPECT_EQ(GetPtrnCount(), 0);
}

TEST_F(CanvasEvents, DeleteLeavesAnItemThatIsNotStoredYet) {
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  Drag(200, 200, 260, 250);
  ASSERT_EQ(PtrnMode, ModeSelected);
  SendKey(GDK_KEY_Delete);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_EQ(GetPtrnCount(), 1);
}

TEST_F(CanvasEvents, DeleteAndEscapeWithNothingInHandDoNothing) {
  SendKey(GDK_KEY_Delete);
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(CanvasEvents, EscapeGivesUpStepByStep) {
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  Drag(200, 200, 260, 250);
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(PtrnType, TypeRectangle);
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(ToolBox, nullptr);
}

TEST_F(CanvasEvents, ReturnRegistersTheItemInHand) {
  gint x = 200;
  for (const guint key : {GDK_KEY_Return, GDK_KEY_KP_Enter, GDK_KEY_ISO_Enter}) {
    const gint before = GetPtrnCount();
    DispToolBox(0, TypeRectangle);
    PtrnType = TypeRectangle;
    Drag(x, 200, x + 40, 250);
    x += 60;
    PtrnData.Parm[ShapeSlot::Filled] = 1;
    SendKey(key);
    EXPECT_EQ(GetPtrnCount(), before + 1);
    EXPECT_EQ(PtrnMode, ModeIdle);
    SendKey(GDK_KEY_Escape);
  }
}

TEST_F(CanvasEvents, ReturnWithNothingInHandDoesNothing) {
  SendKey(GDK_KEY_Return);
  DispToolBox(0, TypeRectangle);
  PtrnType = TypeRectangle;
  SendKey(GDK_KEY_Return);
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, 200, 200);
  SendKey(GDK_KEY_Return);
  EXPECT_EQ(PtrnMode, ModeCreating);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnFlag, 1);
}

TEST_F(CanvasEvents, KeysActOnTheArea) {
  PtrnMode = ModeArea;
  AreaPoint1 = {90, 90};
  AreaPoint2 = {200, 200};
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 1);
  PtrnMode = ModeArea;
  SendKey(GDK_KEY_Delete);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 0);
}

}  // namespace
