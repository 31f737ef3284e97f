#include "dialogs/frame/ScreenRoom.h"

#include <algorithm>

#include "dialogs/frame/Accessible.h"
#include "layout/EditWindows.h"

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

// Puts the content into a scrolled window of this height, where it stood in its box.
void MakeScrolled(GtkWidget* window, GtkWidget* content, gint height) {
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(window));
  GtkWidget* box = gtk_widget_get_parent(content);
  GtkWidget* scrolled = gtk_scrolled_window_new(nullptr, nullptr);
  SetAccessibleName(scrolled, gtk_window_get_title(GTK_WINDOW(window)));
  gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_NEVER,
                                 GTK_POLICY_ALWAYS);
  gtk_scrolled_window_set_min_content_height(GTK_SCROLLED_WINDOW(scrolled), height);
  // Over the content the bar would cover its right edge.
  gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scrolled), FALSE);
  g_object_ref(content);
  gtk_container_remove(GTK_CONTAINER(box), content);
  gtk_container_add(GTK_CONTAINER(scrolled), content);
  g_object_unref(content);
  gtk_viewport_set_shadow_type(GTK_VIEWPORT(gtk_widget_get_parent(content)), GTK_SHADOW_NONE);
  gtk_box_pack_start(GTK_BOX(box), scrolled, TRUE, TRUE, 0);
  gtk_box_reorder_child(GTK_BOX(box), scrolled, 0);
  gtk_widget_show(gtk_widget_get_parent(content));
  gtk_widget_show(scrolled);
  if (focus != nullptr) gtk_window_set_focus(GTK_WINDOW(window), focus);
}

}  // namespace

void SetDialogContent(GtkWidget* window, GtkWidget* content) {
  g_object_set_data(G_OBJECT(window), ContentKey, content);
}

void FitToScreen(GtkWidget* window) {
  auto* content = static_cast<GtkWidget*>(g_object_get_data(G_OBJECT(window), ContentKey));
  if (content == nullptr) return;
  const gint surplus = NaturalHeight(window) + FrameRoom.cy - Screen(window).height;
  if (surplus > 0) MakeScrolled(window, content, std::max(NaturalHeight(content) - surplus, 1));
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

void ScrollTo(GtkWidget* control, const GdkRectangle& part) {
  GtkWidget* port = gtk_widget_get_ancestor(control, GTK_TYPE_VIEWPORT);
  if (port == nullptr) return;
  gint x = 0;
  gint y = 0;
  if (!gtk_widget_translate_coordinates(control, gtk_bin_get_child(GTK_BIN(port)), part.x, part.y,
                                        &x, &y)) {
    return;
  }
  const auto show = [](GtkAdjustment* place, gint from, gint extent) {
    gtk_adjustment_clamp_page(place, from, from + extent);
  };
  show(gtk_scrollable_get_hadjustment(GTK_SCROLLABLE(port)), x, part.width);
  show(gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(port)), y, part.height);
}
