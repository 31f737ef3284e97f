#include "tests/window/LowScreen.h"

#include <gtest/gtest.h>

#include "tests/window/Widgets.h"

namespace {

GdkRectangle Room() {
  GdkRectangle room;
  gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &room);
  return room;
}

GdkRectangle WholeScreen() {
  GdkRectangle screen;
  gdk_monitor_get_geometry(gdk_display_get_monitor(gdk_display_get_default(), 0), &screen);
  return screen;
}

bool HasRoom(gint height) {
  return WaitFor([height] { return Room().height == height; });
}

}  // namespace

LowScreen::LowScreen(gint height) : bar_(gtk_window_new(GTK_WINDOW_TOPLEVEL)) {
  g_object_add_weak_pointer(G_OBJECT(bar_), reinterpret_cast<gpointer*>(&bar_));
  const GdkRectangle screen = WholeScreen();
  gtk_window_set_type_hint(GTK_WINDOW(bar_), GDK_WINDOW_TYPE_HINT_DOCK);
  gtk_widget_set_size_request(bar_, 50, 10);
  gtk_window_move(GTK_WINDOW(bar_), 0, screen.height - 10);
  gtk_widget_realize(bar_);
  // Room taken at the left, right, top and bottom, for other programs in native longs.
  const glong strut[4] = {0, 0, 0, screen.height - height};
  gdk_property_change(gtk_widget_get_window(bar_), gdk_atom_intern("_NET_WM_STRUT", FALSE),
                      gdk_atom_intern("CARDINAL", FALSE), 32, GDK_PROP_MODE_REPLACE,
                      reinterpret_cast<const guchar*>(strut), 4);
  gtk_widget_show(bar_);
  EXPECT_TRUE(HasRoom(height));
}

LowScreen::~LowScreen() {
  if (bar_ != nullptr) gtk_widget_destroy(bar_);
  EXPECT_TRUE(HasRoom(WholeScreen().height));
}
