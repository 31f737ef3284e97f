#include <gtest/gtest.h>

#include "Constant.h"
#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

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

// Turns the wheel by one step with Control held over a point of what is seen.
void ZoomAt(gint x, gint y, GdkScrollDirection direction) {
  SendWheel(direction, X() + x, Y() + y, GDK_CONTROL_MASK);
  FinishFrame(PtrnDraw);
}

// Turns a fine wheel with Control held; the zoom that is then chosen.
gint ZoomAfter(gdouble steps) {
  SendFineWheel(steps, GDK_CONTROL_MASK);
  return PtrnHedr.Parm2[ViewSlot::Zoom];
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
  void Show(const gchar* name, gint zoomIndex = Zoom100, SIZE size = {3000, 2500}) {
    CopyText(PtrnName, name);
    ShowLayout(size.cx, size.cy, zoomIndex);
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

TEST_F(Scrolling, ThePointUnderThePointerStaysInALayoutSmallerThanTheWindow) {
  Show("small", Zoom100, {600, 400});
  ZoomAt(300, 200, GDK_SCROLL_UP);
  EXPECT_TRUE(StandsAt(300, 200));
  ZoomAt(300, 200, GDK_SCROLL_UP);
  EXPECT_TRUE(StandsAt(1200, 800));
  ZoomAt(300, 200, GDK_SCROLL_DOWN);
  EXPECT_TRUE(StandsAt(300, 200));
  ZoomAt(300, 200, GDK_SCROLL_DOWN);
  EXPECT_TRUE(StandsAt(0, 0));
}

TEST_F(Scrolling, StepsTurnedAtOnceKeepThePointTheUserSaw) {
  Show("small", Zoom100, {600, 400});
  SendWheel(GDK_SCROLL_UP, 300, 200, GDK_CONTROL_MASK);
  ZoomAt(300, 200, GDK_SCROLL_UP);
  EXPECT_TRUE(StandsAt(1200, 800));
}

// One direction: where it must be scrolled to for a dot at `seen` to stay there, as far as it can.
gint Expected(gdouble dot, gint zoomIndex, gint seen, bool horizontal) {
  const gint dots = PtrnHedr.Parm1[horizontal ? HedrSlot::Width : HedrSlot::Height];
  const gint zoom = ZoomFactorData[zoomIndex];
  const gint range = std::max(0, dots * zoom / 100 - Seen(horizontal));
  return std::clamp(static_cast<gint>(dot * zoom / 100) - seen, 0, range);
}

TEST_F(Scrolling, ThePointUnderThePointerStaysAtEveryZoomInEveryWindow) {
  for (const SIZE window : {SIZE{500, 400}, SIZE{1200, 900}}) {
    gtk_window_resize(GTK_WINDOW(PtrnWnd), window.cx, window.cy);
    ASSERT_TRUE(WaitFor([&] {
      return gtk_widget_get_allocated_width(PtrnWnd) == window.cx &&
             gtk_widget_get_allocated_height(PtrnWnd) == window.cy;
    }));
    for (const SIZE layout : {SIZE{90, 70}, SIZE{640, 480}, SIZE{3000, 200}}) {
      for (const POINT seen : {POINT{13, 17}, POINT{250, 180}, POINT{470, 330}}) {
        Show("", Zoom50, layout);
        for (const GdkScrollDirection turn : {GDK_SCROLL_UP, GDK_SCROLL_DOWN}) {
          for (gint step = 0; step < 4; step++) {
            const gdouble zoom = ZoomFactorData[PtrnHedr.Parm2[ViewSlot::Zoom]] / 100.0;
            const gdouble x = (X() + seen.x) / zoom;
            const gdouble y = (Y() + seen.y) / zoom;
            ZoomAt(seen.x, seen.y, turn);
            const gint index = PtrnHedr.Parm2[ViewSlot::Zoom];
            EXPECT_EQ(index, turn == GDK_SCROLL_UP ? 3 - step : step + 1);
            EXPECT_NEAR(X(), Expected(x, index, seen.x, true), 1)
                << layout.cx << " at " << seen.x << " zoom " << index << " in " << window.cx;
            EXPECT_NEAR(Y(), Expected(y, index, seen.y, false), 1)
                << layout.cy << " at " << seen.y << " zoom " << index << " in " << window.cy;
          }
        }
      }
    }
  }
}

TEST_F(Scrolling, PartsOfAWheelStepAddUp) {
  Show("one");
  EXPECT_EQ(ZoomAfter(-0.5), Zoom100);
  EXPECT_EQ(ZoomAfter(-0.25), Zoom100);
  EXPECT_EQ(ZoomAfter(-0.5), Zoom200);
  // A quarter is left.
  EXPECT_EQ(ZoomAfter(-0.5), Zoom200);
  EXPECT_EQ(ZoomAfter(-0.25), Zoom500);
  EXPECT_EQ(ZoomAfter(0.75), Zoom500);
  EXPECT_EQ(ZoomAfter(-0.75), Zoom500);
  EXPECT_EQ(ZoomAfter(0.75), Zoom500);
  EXPECT_EQ(ZoomAfter(0.25), Zoom200);
}

TEST_F(Scrolling, SeveralWheelStepsAtOnceCountOnce) {
  Show("one", Zoom500);
  EXPECT_EQ(ZoomAfter(2.5), Zoom100);
  EXPECT_EQ(ZoomAfter(0.25), Zoom100);
  EXPECT_EQ(ZoomAfter(0.25), Zoom75);
  // What goes beyond the last zoom is spent.
  EXPECT_EQ(ZoomAfter(40), Zoom50);
  EXPECT_EQ(ZoomAfter(-1), Zoom75);
  EXPECT_EQ(ZoomAfter(-40), Zoom500);
  EXPECT_EQ(ZoomAfter(1), Zoom200);
}

TEST_F(Scrolling, PartsTurnedWithoutZoomingDoNotCount) {
  Show("one");
  EXPECT_EQ(ZoomAfter(-0.75), Zoom100);
  SendFineWheel(-0.5);
  EXPECT_EQ(ZoomAfter(-0.5), Zoom100);
  PtrnType = TypeRectangle;
  EXPECT_EQ(ZoomAfter(-0.5), Zoom100);
  PtrnType = 0;
  EXPECT_EQ(ZoomAfter(-0.5), Zoom100);
  EXPECT_EQ(ZoomAfter(-0.5), Zoom200);
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
