#include "dialogs/ScreenRoom.h"

#include <algorithm>

#include "layout/Screen.h"

namespace {

constexpr const gchar* ContentKey = "varnix-dialog-content";
// What a window manager's frame may add to a window.
constexpr SIZE FrameRoom = {10, 40};

// The work area of the monitor that the main window is on.
GdkRectangle Screen(GtkWidget* window) {
  GdkDisplay* display = gtk_widget_get_display(window);
  GdkWindow* main = PtrnWnd != nullptr ? gtk_widget_get_window(PtrnWnd) : nullptr;
  GdkMonitor* monitor = main != nullptr ? gdk_display_get_monitor_at_window(display, main)
                                        : gdk_display_get_monitor(display, 0);
  GdkRectangle area;
  gdk_monitor_get_workarea(monitor, &area);
  return area;
}

gint NaturalHeight(GtkWidget* widget) {
  GtkRequisition natural;
  gtk_widget_get_preferred_size(widget, nullptr, &natural);
  return natural.height;
}

}  // namespace

GtkWidget* AddScrollableContent(GtkWidget* window, GtkWidget* box) {
  GtkWidget* content = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  GtkWidget* scrolled = gtk_scrolled_window_new(nullptr, nullptr);
  gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_NEVER, GTK_POLICY_NEVER);
  // Over the content the bar would cover its right edge.
  gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scrolled), FALSE);
  gtk_container_add(GTK_CONTAINER(scrolled), content);
  gtk_viewport_set_shadow_type(GTK_VIEWPORT(gtk_widget_get_parent(content)), GTK_SHADOW_NONE);
  gtk_box_pack_start(GTK_BOX(box), scrolled, TRUE, TRUE, 0);
  g_object_set_data(G_OBJECT(window), ContentKey, content);
  return content;
}

void FitToScreen(GtkWidget* window) {
  auto* content = static_cast<GtkWidget*>(g_object_get_data(G_OBJECT(window), ContentKey));
  if (content == nullptr) return;
  const gint surplus = NaturalHeight(window) + FrameRoom.cy - Screen(window).height;
  if (surplus <= 0) return;
  auto* scrolled = GTK_SCROLLED_WINDOW(gtk_widget_get_ancestor(content, GTK_TYPE_SCROLLED_WINDOW));
  gtk_scrolled_window_set_policy(scrolled, GTK_POLICY_NEVER, GTK_POLICY_ALWAYS);
  gtk_scrolled_window_set_min_content_height(scrolled,
                                             std::max(NaturalHeight(content) - surplus, 1));
}

POINT PlaceOnScreen(GtkWidget* window, const POINT& place) {
  GtkRequisition size;
  gtk_widget_get_preferred_size(window, nullptr, &size);
  const GdkRectangle screen = Screen(window);
  const auto within = [](gint wanted, gint begin, gint room) {
    return std::max(std::min(wanted, begin + room), begin);
  };
  return {within(place.x, screen.x, screen.width - size.width - FrameRoom.cx),
          within(place.y, screen.y, screen.height - size.height - FrameRoom.cy)};
}
