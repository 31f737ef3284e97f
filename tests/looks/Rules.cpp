#include "tests/looks/Rules.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<GtkWidget*> Children(GtkWidget* widget) {
  std::vector<GtkWidget*> children;
  if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(
        GTK_CONTAINER(widget),
        [](GtkWidget* child, gpointer list) {
          if (gtk_widget_get_mapped(child)) {
            static_cast<std::vector<GtkWidget*>*>(list)->push_back(child);
          }
        },
        &children);
  }
  return children;
}

void Visit(GtkWidget* widget, const std::function<void(GtkWidget*)>& look) {
  look(widget);
  for (GtkWidget* child : Children(widget)) Visit(child, look);
}

GdkRectangle Area(GtkWidget* widget) {
  GdkRectangle area;
  gtk_widget_get_allocation(widget, &area);
  return area;
}

std::string Named(GtkWidget* widget) {
  const gchar* text = GTK_IS_LABEL(widget) ? gtk_label_get_text(GTK_LABEL(widget)) : "";
  const GdkRectangle area = Area(widget);
  std::ostringstream name;
  name << G_OBJECT_TYPE_NAME(widget) << " \"" << text << "\" at " << area.x << ", " << area.y
       << ", " << area.width << " x " << area.height;
  return name.str();
}

void CheckOnScreen(GtkWidget* window) {
  GdkWindow* shown = gtk_widget_get_window(window);
  GdkRectangle frame;
  GdkRectangle screen;
  gdk_window_get_frame_extents(shown, &frame);
  gdk_monitor_get_workarea(gdk_display_get_monitor_at_window(gdk_window_get_display(shown), shown),
                           &screen);
  EXPECT_GE(frame.x, screen.x);
  EXPECT_GE(frame.y, screen.y);
  EXPECT_LE(frame.x + frame.width, screen.x + screen.width) << "wider than the screen";
  EXPECT_LE(frame.y + frame.height, screen.y + screen.height) << "higher than the screen";
}

void CheckRoom(GtkWidget* widget) {
  if (GTK_IS_CONTAINER(widget) && !GTK_IS_BUTTON(widget)) return;
  GtkRequisition least;
  gtk_widget_get_preferred_size(widget, &least, nullptr);
  const gint width = gtk_widget_get_allocated_width(widget) + gtk_widget_get_margin_start(widget) +
                     gtk_widget_get_margin_end(widget);
  const gint height = gtk_widget_get_allocated_height(widget) + gtk_widget_get_margin_top(widget) +
                      gtk_widget_get_margin_bottom(widget);
  EXPECT_GE(width, least.width) << Named(widget) << " is squeezed";
  EXPECT_GE(height, least.height) << Named(widget) << " is squeezed";
}

void CheckText(GtkWidget* widget, PangoLayout* layout, gint width) {
  gint needed = 0;
  pango_layout_get_pixel_size(layout, &needed, nullptr);
  EXPECT_GE(width, needed) << Named(widget) << " cuts its text";
  EXPECT_FALSE(pango_layout_is_ellipsized(layout)) << Named(widget) << " cuts its text";
  EXPECT_EQ(pango_layout_get_unknown_glyphs_count(layout), 0) << Named(widget) << " lacks letters";
}

void CheckTexts(GtkWidget* widget) {
  if (GTK_IS_LABEL(widget)) {
    CheckText(widget, gtk_label_get_layout(GTK_LABEL(widget)),
              gtk_widget_get_allocated_width(widget));
  }
  if (GTK_IS_SPIN_BUTTON(widget)) {
    GdkRectangle text;
    gtk_entry_get_text_area(GTK_ENTRY(widget), &text);
    CheckText(widget, gtk_entry_get_layout(GTK_ENTRY(widget)), text.width);
  }
  if (GTK_IS_CELL_VIEW(widget)) {
    GtkRequisition whole;
    gtk_widget_get_preferred_size(widget, nullptr, &whole);
    EXPECT_GE(gtk_widget_get_allocated_width(widget), whole.width)
        << Named(widget) << " cuts its text";
  }
}

// The part of a cell that its control really takes.
GdkRectangle Ink(GtkWidget* widget) {
  GdkRectangle area = Area(widget);
  if (GTK_IS_BOX(widget) && Children(widget).size() == 1) return Ink(Children(widget)[0]);
  if (GTK_IS_DRAWING_AREA(widget)) gtk_widget_get_size_request(widget, &area.width, nullptr);
  return area;
}

void CheckApart(GtkWidget* grid) {
  const std::vector<GtkWidget*> children = Children(grid);
  for (gsize i = 0; i < children.size(); ++i) {
    for (gsize j = i + 1; j < children.size(); ++j) {
      const GdkRectangle first = Ink(children[i]);
      const GdkRectangle second = Ink(children[j]);
      EXPECT_FALSE(gdk_rectangle_intersect(&first, &second, nullptr))
          << Named(children[i]) << " and " << Named(children[j]) << " lie over each other";
    }
  }
}

}  // namespace

void CheckLook(GtkWidget* window) {
  CheckOnScreen(window);
  Visit(window, [](GtkWidget* widget) {
    CheckRoom(widget);
    CheckTexts(widget);
    if (GTK_IS_GRID(widget)) CheckApart(widget);
  });
}

void CheckTabOrder(GtkWidget* window) {
  GtkWidget* const before = gtk_window_get_focus(GTK_WINDOW(window));
  gtk_window_set_focus(GTK_WINDOW(window), nullptr);
  GdkRectangle last = {0, 0, 0, 0};
  std::set<GtkWidget*> reached;
  while (gtk_widget_child_focus(window, GTK_DIR_TAB_FORWARD)) {
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(window));
    // From the last control Tab leads to the first.
    if (!reached.insert(focus).second) break;
    GdkRectangle at = Area(focus);
    gtk_widget_translate_coordinates(focus, window, 0, 0, &at.x, &at.y);
    // The keyboard is on a notebook's tab, at its top.
    if (GTK_IS_NOTEBOOK(focus)) at.height = 0;
    const bool lower = at.y >= last.y + last.height;
    const bool beside = at.y < last.y + last.height && at.x >= last.x + last.width;
    EXPECT_TRUE(lower || beside) << "Tab leads back to " << Named(focus);
    last = at;
  }
  gtk_window_set_focus(GTK_WINDOW(window), before);
}
