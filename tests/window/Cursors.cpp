#include "render/Pictures.h"
#include "window/PointerImage.h"
#include "window/Widgets.h"
#include "window/WindowTest.h"

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

// The pointer over the window; the display's own is smaller.
PointerImage PointerOverWindow() {
  PointerImage pointer;
  EXPECT_TRUE(WaitFor([&] {
    PointAtWindow();
    pointer = ShownPointer();
    return pointer.Width == 32;
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
    ASSERT_EQ(pointer.Width, 32) << no;
    ASSERT_EQ(pointer.Height, 32) << no;
    EXPECT_EQ(pointer.HotX, gint{HotSpots[no].x}) << no;
    EXPECT_EQ(pointer.HotY, gint{HotSpots[no].y}) << no;
    for (gint y = 0; y < 32; y++)
      for (gint x = 0; x < 32; x++) {
        const guint32 colour = Bit(CursorData[no], x, y) ? Foreground : Background;
        ASSERT_EQ(pointer.Pixels[y * 32 + x], Bit(CursorMask[no], x, y) ? colour : 0)
            << "cursor " << no << " at " << x << ", " << y;
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
