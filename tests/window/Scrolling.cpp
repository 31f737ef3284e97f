#include "Constant.h"
#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "window/Widgets.h"
#include "window/WindowTest.h"

namespace {
enum { Zoom500, Zoom200, Zoom100, Zoom75, Zoom50 };

GtkAdjustment* Bar(bool horizontal) {
  auto* scrolled = GTK_SCROLLED_WINDOW(gtk_widget_get_ancestor(PtrnDraw, GTK_TYPE_SCROLLED_WINDOW));
  return horizontal ? gtk_scrolled_window_get_hadjustment(scrolled)
                    : gtk_scrolled_window_get_vadjustment(scrolled);
}
gint X() {
  return static_cast<gint>(gtk_adjustment_get_value(Bar(true)));
}
gint Y() {
  return static_cast<gint>(gtk_adjustment_get_value(Bar(false)));
}
gint Seen(bool horizontal) {
  return static_cast<gint>(gtk_adjustment_get_page_size(Bar(horizontal)));
}
void ScrollTo(gint x, gint y) {
  gtk_adjustment_set_value(Bar(true), x);
  gtk_adjustment_set_value(Bar(false), y);
}
bool StandsAt(gint x, gint y) {
  return WaitFor([=] { return X() == x && Y() == y; });
}

class Scrolling : public WindowTest {
 protected:
  Scrolling() {
    OpenWindow();
    CopyText(ProjPath, Program.Path());
    ProjFlag = 1;
  }
  void Show(const gchar* name, gint zoomIndex = Zoom100) {
    CopyText(PtrnName, name);
    ShowLayout(3000, 2500, zoomIndex);
    FinishFrame(PtrnDraw);
  }
  static void Close() {
    PtrnFlag = 0;
    SizeRequest(0, 0, 0, 0);
    FinishFrame(PtrnDraw);
  }
};

TEST_F(Scrolling, EachLayoutStandsWhereItWasLeft) {
  Show("one");
  EXPECT_TRUE(StandsAt(0, 0));
  ScrollTo(300, 211);
  Close();
  Show("two");
  EXPECT_TRUE(StandsAt(0, 0));
  ScrollTo(17, 1000);
  Close();
  Show("one");
  EXPECT_TRUE(StandsAt(300, 211));
  Close();
  Show("two");
  EXPECT_TRUE(StandsAt(17, 1000));
}

TEST_F(Scrolling, ALayoutOfAnotherProjectIsAnother) {
  Show("one");
  ScrollTo(300, 200);
  Close();
  const TempFolder other;
  CopyText(ProjPath, other.Path());
  Show("one");
  EXPECT_TRUE(StandsAt(0, 0));
}

TEST_F(Scrolling, AnotherZoomKeepsTheMiddle) {
  Show("one");
  ScrollTo(500, 400);
  gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(PtrnZoom1[Zoom200]), TRUE);
  EXPECT_TRUE(StandsAt(1000 + (Seen(true) + 1) / 2, 800 + (Seen(false) + 1) / 2));
  gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(PtrnZoom1[Zoom100]), TRUE);
  EXPECT_TRUE(StandsAt(500, 400));
}

TEST_F(Scrolling, TheArrowAndPageKeysScroll) {
  Show("one");
  // The toolkit moves there in some frames.
  SendKey(GDK_KEY_Right);
  EXPECT_TRUE(WaitFor([] { return X() > 0 && Y() == 0; }));
  SendKey(GDK_KEY_Left);
  EXPECT_TRUE(StandsAt(0, 0));
  SendKey(GDK_KEY_Down);
  EXPECT_TRUE(WaitFor([] { return X() == 0 && Y() > 0; }));
  SendKey(GDK_KEY_Up);
  EXPECT_TRUE(StandsAt(0, 0));
  SendKey(GDK_KEY_Page_Down);
  EXPECT_TRUE(WaitFor([] { return X() == 0 && Y() > Seen(false) / 2; }));
  SendKey(GDK_KEY_Page_Down, GDK_CONTROL_MASK);
  EXPECT_TRUE(WaitFor([] { return X() > Seen(true) / 2; }));
  SendKey(GDK_KEY_End);
  EXPECT_TRUE(WaitFor([] { return Y() == 2500 - Seen(false); }));
  SendKey(GDK_KEY_Home);
  EXPECT_TRUE(WaitFor([] { return X() > Seen(true) / 2 && Y() == 0; }));
}

TEST_F(Scrolling, TheWheelScrollsAndWithShiftSideways) {
  Show("one");
  SendWheel(GDK_SCROLL_DOWN, 100, 100);
  EXPECT_GT(Y(), 0);
  EXPECT_EQ(X(), 0);
  SendWheel(GDK_SCROLL_UP, 100, 100);
  EXPECT_EQ(Y(), 0);
  SendWheel(GDK_SCROLL_DOWN, 100, 100, GDK_SHIFT_MASK);
  EXPECT_GT(X(), 0);
  EXPECT_EQ(Y(), 0);
}

TEST_F(Scrolling, TheWheelZoomsWithControlUnlessSomethingIsEdited) {
  Show("one");
  SendWheel(GDK_SCROLL_UP, 100, 100, GDK_CONTROL_MASK);
  EXPECT_EQ(+PtrnHedr.Parm2[ViewSlot::Zoom], Zoom200);
  SendWheel(GDK_SCROLL_DOWN, 100, 100, GDK_CONTROL_MASK);
  SendWheel(GDK_SCROLL_DOWN, 100, 100, GDK_CONTROL_MASK);
  EXPECT_EQ(+PtrnHedr.Parm2[ViewSlot::Zoom], Zoom75);
  PtrnType = TypeRectangle;
  SendWheel(GDK_SCROLL_UP, 100, 100, GDK_CONTROL_MASK);
  EXPECT_EQ(+PtrnHedr.Parm2[ViewSlot::Zoom], Zoom75);
  EXPECT_EQ(gint{PtrnType}, TypeRectangle);
  PtrnType = 0;
  for (gint i = 0; i < 9; i++) SendWheel(GDK_SCROLL_DOWN, 100, 100, GDK_CONTROL_MASK);
  EXPECT_EQ(+PtrnHedr.Parm2[ViewSlot::Zoom], Zoom50);
}

TEST_F(Scrolling, WithoutALayoutKeysAndWheelDoNothing) {
  SendKey(GDK_KEY_Right);
  SendWheel(GDK_SCROLL_DOWN, 100, 100);
  SendWheel(GDK_SCROLL_UP, 100, 100, GDK_CONTROL_MASK);
  EXPECT_EQ(X(), 0);
  EXPECT_EQ(Y(), 0);
  EXPECT_EQ(PtrnDraw_Mode, 0);
}
}  // namespace
