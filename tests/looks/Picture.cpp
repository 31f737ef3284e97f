#include "tests/looks/Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "app/Window.h"
#include "render/Surface.h"
#include "tests/looks/Rules.h"
#include "tests/road/User.h"

namespace {

PixbufPtr Taken(GdkWindow* window, const GdkRectangle& part) {
  return PixbufPtr(gdk_pixbuf_get_from_window(window, part.x, part.y, part.width, part.height));
}

void Keep(const std::string& name, const PixbufPtr& picture) {
  const std::string file = std::string(std::getenv("VARNIX_PICTURES")) + "/" + name + ".png";
  EXPECT_TRUE(gdk_pixbuf_save(picture.get(), file.c_str(), "png", nullptr, nullptr)) << file;
}

void Keep(const std::string& name, GdkWindow* window, const GdkRectangle& part) {
  if (KeepsPictures()) Keep(name, Taken(window, part));
}

GdkRectangle FrameOf(GtkWidget* window) {
  GdkRectangle frame;
  gdk_window_get_frame_extents(gtk_widget_get_window(window), &frame);
  return frame;
}

// The windows as the screen shows them, on a plain ground in place of what lies between them.
PixbufPtr OnPlainGround(const std::vector<GtkWidget*>& windows) {
  constexpr gint Margin = 16;
  constexpr guint32 Ground = 0x8997a5ff;
  GdkWindow* screen = gdk_get_default_root_window();
  const gint scale = gdk_window_get_scale_factor(screen);
  GdkRectangle all = FrameOf(windows.front());
  for (GtkWidget* window : windows) {
    const GdkRectangle frame = FrameOf(window);
    gdk_rectangle_union(&all, &frame, &all);
  }
  const POINT origin = {all.x - Margin, all.y - Margin};
  PixbufPtr picture(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, (all.width + 2 * Margin) * scale,
                                   (all.height + 2 * Margin) * scale));
  gdk_pixbuf_fill(picture.get(), Ground);
  for (GtkWidget* window : windows) {
    const GdkRectangle frame = FrameOf(window);
    gdk_pixbuf_copy_area(Taken(screen, frame).get(), 0, 0, frame.width * scale,
                         frame.height * scale, picture.get(), (frame.x - origin.x) * scale,
                         (frame.y - origin.y) * scale);
  }
  return picture;
}

// Nothing under the pointer is to look pressed or pointed at, and no cursor is to blink.
void Rest(GtkWidget* window) {
  // All but a panel, which leaves the keyboard where it is.
  EXPECT_TRUE(See([window] {
    return !gtk_window_get_focus_on_map(GTK_WINDOW(window)) ||
           gtk_window_is_active(GTK_WINDOW(window));
  })) << "the window does not get the keyboard";
  Look([window] {
    g_object_set(gtk_widget_get_settings(window), "gtk-cursor-blink", FALSE, nullptr);
  });
  PointAway();
  Settle();
}

// Its last frame may still be on the way.
void Paint(GtkWidget* window) {
  Look([window] { gtk_widget_queue_draw(window); });
  Settle(window);
}

}  // namespace

bool KeepsPictures() {
  return std::getenv("VARNIX_PICTURES") != nullptr;
}

void Show(const std::string& name, GtkWidget* window) {
  ASSERT_NE(window, nullptr) << name;
  Rest(window);
  Paint(window);
  Look([&] {
    SCOPED_TRACE(name);
    CheckLook(window);
    if (!KeepsPictures()) CheckTabOrder(window);
    Keep(name, gtk_widget_get_window(window),
         {0, 0, gtk_widget_get_allocated_width(window), gtk_widget_get_allocated_height(window)});
  });
}

void Show(const std::string& name, const std::string& title) {
  GtkWidget* window = SeeWindow(title);
  ASSERT_NE(window, nullptr) << "no window \"" << title << "\"";
  Show(name, window);
}

void EscapeFrom(const std::string& title) {
  PressKey(GDK_KEY_Escape);
  EXPECT_TRUE(SeeGone(title)) << "Escape leaves " << title << " open";
}

void ShowAndLeave(const std::string& name, const std::string& title) {
  Show(name, title);
  EscapeFrom(title);
}

void ShowScreen(const std::string& name, GtkWidget* window) {
  Paint(window);
  Look([&] { Keep(name, gdk_get_default_root_window(), FrameOf(window)); });
}

void ShowBeside(const std::string& name, std::initializer_list<GtkWidget*> windows) {
  for (GtkWidget* window : windows) {
    Rest(window);
    Paint(window);
  }
  Look([&] {
    if (KeepsPictures()) Keep(name, OnPlainGround(windows));
  });
}

void ShowCanvas(const std::string& name, const GdkRectangle& part) {
  Rest(PtrnWnd);
  Paint(PtrnWnd);
  Look([&] { Keep(name, gtk_widget_get_window(PtrnDraw), part); });
}
