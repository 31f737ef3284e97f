#include "looks/Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "looks/Rules.h"
#include "render/Surface.h"
#include "road/User.h"

namespace {
void Keep(const std::string& name, GdkWindow* window, const GdkRectangle& part) {
  if (!KeepsPictures()) return;
  const PixbufPtr picture(
      gdk_pixbuf_get_from_window(window, part.x, part.y, part.width, part.height));
  const std::string file = std::string(std::getenv("VARNIX_PICTURES")) + "/" + name + ".png";
  EXPECT_TRUE(gdk_pixbuf_save(picture.get(), file.c_str(), "png", nullptr, nullptr)) << file;
}

// Nothing under the pointer is to look pressed or pointed at, and no cursor is to blink.
void Rest(GtkWidget* window) {
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

void ShowScreen(const std::string& name, GtkWidget* window) {
  Paint(window);
  Look([&] {
    GdkRectangle frame;
    gdk_window_get_frame_extents(gtk_widget_get_window(window), &frame);
    Keep(name, gdk_get_default_root_window(), frame);
  });
}
