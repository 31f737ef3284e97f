#include <gtest/gtest.h>

#include "render/Pictures.h"
#include "tests/window/PointerImage.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

class Cursors : public WindowTest {
 protected:
  void SetUp() override {
    WriteProfile("[COLOR]\nCURSOR_FG=65535,0,0\nCURSOR_BG=0,0,65535\n");
    OpenWindow();
  }
};

// Moves the pointer to the window, wherever the window manager has put it by now.
void PointAtWindow() {
  GdkDisplay* display = gtk_widget_get_display(PtrnWnd);
  GdkDevice* pointer = gdk_seat_get_pointer(gdk_display_get_default_seat(display));
  gint x = 0;
  gint y = 0;
  gdk_window_get_origin(gtk_widget_get_window(PtrnWnd), &x, &y);
  gdk_device_warp(pointer, gtk_widget_get_screen(PtrnWnd), x + 400, y + 300);
  gdk_display_sync(display);
}

// Screen dots per dot of a picture on a fine screen.
gint Scale() {
  return gtk_widget_get_scale_factor(PtrnWnd);
}

// The pointer over the window; the display's own is smaller.
PointerImage PointerOverWindow() {
  PointerImage pointer;
  EXPECT_TRUE(WaitFor([&] {
    PointAtWindow();
    pointer = ShownPointer();
    return pointer.Width == 32 * Scale();
  })) << "the pointer does not reach the window";
  return pointer;
}

bool Bit(const guint8* bits, gint x, gint y) {
  return (bits[4 * y + x / 8] & (1 << (x % 8))) != 0;
}

TEST_F(Cursors, AreShownWithTheirHotSpotsAndColours) {
  constexpr POINT HotSpots[8] = {{1, 1},  {15, 15}, {15, 16}, {15, 15},
                                 {9, 15}, {15, 9},  {12, 12}, {12, 12}};
  constexpr guint32 Foreground = 0xffff0000;
  constexpr guint32 Background = 0xff0000ff;
  for (gint no = 0; no < 8; no++) {
    SetCursor(no);
    const PointerImage pointer = PointerOverWindow();
    const gint scale = Scale();
    ASSERT_EQ(pointer.Width, 32 * scale) << no;
    ASSERT_EQ(pointer.Height, 32 * scale) << no;
    EXPECT_EQ(pointer.HotX, HotSpots[no].x * scale) << no;
    EXPECT_EQ(pointer.HotY, HotSpots[no].y * scale) << no;
    for (gint y = 0; y < 32 * scale; y++) {
      for (gint x = 0; x < 32 * scale; x++) {
        const POINT dot = {x / scale, y / scale};
        const guint32 colour = Bit(CursorData[no], dot.x, dot.y) ? Foreground : Background;
        ASSERT_EQ(pointer.Pixels[y * pointer.Width + x],
                  Bit(CursorMask[no], dot.x, dot.y) ? colour : 0)
            << "cursor " << no << " at " << x << ", " << y;
      }
    }
  }
}

TEST_F(Cursors, NumbersOutsideTheTableChangeNothing) {
  SetCursor(2);
  GdkCursor* cursor = gdk_window_get_cursor(gtk_widget_get_window(PtrnWnd));
  ASSERT_NE(cursor, nullptr);
  SetCursor(-1);
  SetCursor(8);
  EXPECT_EQ(gdk_window_get_cursor(gtk_widget_get_window(PtrnWnd)), cursor);
}

}  // namespace
