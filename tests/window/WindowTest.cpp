#include "tests/window/WindowTest.h"

#include <gtest/gtest.h>

#include <cstring>

#include "Constant.h"
#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/window/Widgets.h"

namespace {

void ClearRecords() {
  ExtPtrnData();
  PtrnFlag = PtrnType = PtrnMode = PtrnUndef = ColorCode = Language = ProjFlag = 0;
  PtrnNo = -1;
  PtrnSaveCount = 0;
  PtrnHedr = {};
  PtrnData = {};
  ProjData = {};
  AreaPoint1 = AreaPoint2 = {0, 0};
  PtrnName[0] = ProjName[0] = ProjPath[0] = BmapPath[0] = PtrnSavePath[0] = '\0';
  for (gint& unpickable : PtrnUnSlct) unpickable = 0;
}

void SetColour(gint no, gint red, gint green, gint blue) {
  ColrData[no] = {red << 8, green << 8, blue << 8};
}

struct EventFree {
  void operator()(GdkEvent* event) const { gdk_event_free(event); }
};
using EventPtr = std::unique_ptr<GdkEvent, EventFree>;

EventPtr NewCanvasEvent(GdkEventType type) {
  EventPtr event(gdk_event_new(type));
  event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(PtrnDraw)));
  GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(PtrnDraw));
  gdk_event_set_device(event.get(), gdk_seat_get_pointer(seat));
  return event;
}

}  // namespace

WindowTest::WindowTest() {
  ClearRecords();
  std::strncpy(PathName, Program.Path().c_str(), sizeof PathName - 1);
}

WindowTest::~WindowTest() {
  if (ToolBox != nullptr) gtk_widget_destroy(ToolBox);
  if (PtrnWnd != nullptr) gtk_widget_destroy(PtrnWnd);
  EXPECT_TRUE(WaitFor([] { return PtrnWnd == nullptr && !gtk_events_pending(); }));
  ClearRecords();
}

void WindowTest::WriteProfile(const std::string& text) {
  Program.Write("VarnixMaster.ini", text);
}

void WindowTest::OpenWindow() {
  CreateMainWindow();
  gtk_widget_show(PtrnWnd);
  InitVarnixMaster();
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(PtrnDraw) != FALSE; }));
  FinishFrame(PtrnDraw);
}

void WindowTest::ShowLayout(gint width, gint height, gint zoomIndex) {
  SetColour(1, 0x20, 0x60, 0xa0);
  SetColour(2, 0xf0, 0xf0, 0xe0);
  SetColour(3, 0xc0, 0x10, 0x30);
  SetDrawColr();
  PtrnHedr.Parm1[HedrSlot::Width] = width;
  PtrnHedr.Parm1[HedrSlot::Height] = height;
  PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = 2;
  PtrnHedr.Parm2[ViewSlot::Zoom] = zoomIndex;
  PtrnHedr.Parm2[ViewSlot::GridColour] = 3;
  PtrnFlag = 1;
  SizeRequest(1, width, height, ZoomFactorData[zoomIndex]);
  ASSERT_TRUE(WaitFor([] {
    return gtk_widget_get_allocated_width(PtrnDraw) >= PtrnDraw_Size2.cx &&
           gtk_widget_get_allocated_height(PtrnDraw) >= PtrnDraw_Size2.cy;
  }));
}

PixbufPtr CanvasShot() {
  FinishFrame(PtrnDraw);
  GdkWindow* window = gtk_widget_get_window(PtrnDraw);
  GtkWidget* viewport = gtk_widget_get_parent(PtrnDraw);
  const gint width =
      std::min(gtk_widget_get_allocated_width(PtrnDraw), gtk_widget_get_allocated_width(viewport));
  const gint height = std::min(gtk_widget_get_allocated_height(PtrnDraw),
                               gtk_widget_get_allocated_height(viewport));
  return PixbufPtr(gdk_pixbuf_get_from_window(window, 0, 0, width, height));
}

guint32 PixelAt(GdkPixbuf* shot, gint x, gint y) {
  const guint8* pixel = gdk_pixbuf_read_pixels(shot) + y * gdk_pixbuf_get_rowstride(shot) +
                        x * gdk_pixbuf_get_n_channels(shot);
  return static_cast<guint32>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}

testing::AssertionResult Shows(GdkPixbuf* shot, gint x, gint y, const Drawable& picture) {
  if (shot == nullptr) return testing::AssertionFailure() << "no shot";
  const gint width = std::min(picture.Width(), gdk_pixbuf_get_width(shot) - x);
  const gint height = std::min(picture.Height(), gdk_pixbuf_get_height(shot) - y);
  if (width <= 0 || height <= 0) return testing::AssertionFailure() << "the shot lies elsewhere";
  for (gint row = 0; row < height; row++) {
    for (gint column = 0; column < width; column++) {
      const guint32 seen = PixelAt(shot, x + column, y + row);
      const guint32 wanted = picture.Row(row)[column] & 0xffffff;
      if (seen != wanted) {
        return testing::AssertionFailure() << std::hex << "at " << std::dec << column << ", " << row
                                           << std::hex << ": shown " << seen << ", not " << wanted;
      }
    }
  }
  return testing::AssertionSuccess();
}

void SendButton(GdkEventType type, guint button, gint x, gint y) {
  const EventPtr event = NewCanvasEvent(type);
  event->button.button = button;
  event->button.x = x;
  event->button.y = y;
  gtk_main_do_event(event.get());
}

void SendMotion(gint x, gint y) {
  const EventPtr event = NewCanvasEvent(GDK_MOTION_NOTIFY);
  event->motion.x = x;
  event->motion.y = y;
  gtk_main_do_event(event.get());
}

void SendWheel(GdkScrollDirection direction, gint x, gint y, GdkModifierType held) {
  const EventPtr event = NewCanvasEvent(GDK_SCROLL);
  event->scroll.direction = direction;
  event->scroll.state = held;
  event->scroll.x = x;
  event->scroll.y = y;
  gtk_main_do_event(event.get());
}

void SendFineWheel(gdouble steps, GdkModifierType held) {
  const EventPtr event = NewCanvasEvent(GDK_SCROLL);
  event->scroll.direction = GDK_SCROLL_SMOOTH;
  event->scroll.delta_y = steps;
  event->scroll.state = held;
  gtk_main_do_event(event.get());
}

void Drag(gint x1, gint y1, gint x2, gint y2) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, x1, y1);
  SendMotion(x2, y2);
  SendButton(GDK_BUTTON_RELEASE, GDK_BUTTON_PRIMARY, x2, y2);
}

void SendKey(guint key, GdkModifierType modifiers) {
  const EventPtr event(gdk_event_new(GDK_KEY_PRESS));
  event->key.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(PtrnWnd)));
  GdkDisplay* display = gtk_widget_get_display(PtrnWnd);
  gdk_event_set_device(event.get(), gdk_seat_get_keyboard(gdk_display_get_default_seat(display)));
  event->key.keyval = key;
  event->key.state = modifiers;
  GdkKeymapKey* keys = nullptr;
  gint count = 0;
  if (gdk_keymap_get_entries_for_keyval(gdk_keymap_get_for_display(display), key, &keys, &count)) {
    event->key.hardware_keycode = static_cast<guint16>(keys[0].keycode);
    g_free(keys);
  }
  gtk_main_do_event(event.get());
}

PTRNDATA BoxItem(gint x1, gint y1, gint x2, gint y2, gint colour) {
  PTRNDATA item{};
  item.Type = TypeRectangle;
  item.Parm[ItemSlot::X1] = x1;
  item.Parm[ItemSlot::Y1] = y1;
  item.Parm[ItemSlot::X2] = x2;
  item.Parm[ItemSlot::Y2] = y2;
  item.Point1 = {x1, y1};
  item.Point2 = {x2, y2};
  for (gint system = 0; system < 4; system++) {
    item.Parm[ShapeSlot::LineColour + system] = colour;
    item.Parm[ShapeSlot::FillColour + system] = colour;
  }
  item.Parm[ShapeSlot::Filled] = 1;
  item.Parm[ShapeSlot::Width] = 1;
  return item;
}
