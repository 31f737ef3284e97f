#include "app/ui/CanvasScroll.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>

#include "ProjData.h"
#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"

namespace {

// A place of the layout in one direction, in its dots, and where in what is seen it stands, in
// pixels: in the middle when nothing.
struct Anchor {
  double Dot = 0;
  std::optional<double> Seen;
};
struct Place {
  Anchor Across;
  Anchor Down;
};

// By project folder and name; for as long as the program runs.
std::map<std::string, Place> Places;
// The layout on the canvas, "" for none.
std::string Shown;
// Where it is to stand once the canvas has its new size.
std::optional<Place> Wanted;
// What the wheel has turned beyond the last whole step.
double Turned;

GtkScrolledWindow* Scrolled() {
  return GTK_SCROLLED_WINDOW(gtk_widget_get_ancestor(PtrnDraw, GTK_TYPE_SCROLLED_WINDOW));
}

// One direction of the canvas.
struct Axis {
  GtkAdjustment* Bar;
  gint Dots;
  gint ZoomedDots;
  Anchor Place::*Part;
};

Axis Across() {
  return {gtk_scrolled_window_get_hadjustment(Scrolled()), PtrnDraw_Size1.cx, PtrnDraw_Size2.cx,
          &Place::Across};
}

Axis Down() {
  return {gtk_scrolled_window_get_vadjustment(Scrolled()), PtrnDraw_Size1.cy, PtrnDraw_Size2.cy,
          &Place::Down};
}

// The canvas's first pixel that is seen when the layout stands so, however far it can be scrolled.
double Start(const Axis& axis, const Place& place) {
  const Anchor& anchor = place.*axis.Part;
  const double seen = anchor.Seen.value_or(gtk_adjustment_get_page_size(axis.Bar) / 2);
  return anchor.Dot * axis.ZoomedDots / axis.Dots - seen;
}

double ShownStart(const Axis& axis) {
  return Wanted ? Start(axis, *Wanted) : gtk_adjustment_get_value(axis.Bar);
}

double DotAt(const Axis& axis, double seen) {
  return (ShownStart(axis) + seen) * axis.Dots / axis.ZoomedDots;
}

// The middle of what is seen of the layout.
Anchor Middle(const Axis& axis) {
  const double seen = std::min<double>(gtk_adjustment_get_page_size(axis.Bar), axis.ZoomedDots);
  return {DotAt(axis, seen / 2), {}};
}

void ScrollTo(const Place& place) {
  for (const Axis& axis : {Across(), Down()}) {
    gtk_adjustment_set_value(axis.Bar, std::round(Start(axis, place)));
  }
}

// At once as far as the canvas's present size allows, and again when it has its new one.
void Want(const Place& place) {
  Wanted = place;
  ScrollTo(place);
}

// After the scroll bars have come or gone, which takes from what is seen or adds to it.
void ScrollWhenSized(GtkWidget* /*scrolled*/, GdkRectangle* /*place*/, gpointer /*data*/) {
  if (!Wanted || PtrnDraw == nullptr || PtrnDraw_Mode == 0) return;
  if (gtk_widget_get_allocated_width(PtrnDraw) < PtrnDraw_Size2.cx ||
      gtk_widget_get_allocated_height(PtrnDraw) < PtrnDraw_Size2.cy) {
    return;
  }
  ScrollTo(*Wanted);
  Wanted.reset();
}

std::string LayoutKey() {
  return PtrnName[0] != '\0' ? std::string(ProjPath) + '/' + PtrnName : "";
}

constexpr struct {
  guint Key;
  guint PadKey;
  GtkScrollType Step;
  gboolean Horizontal;
} Arrows[] = {{GDK_KEY_Left, GDK_KEY_KP_Left, GTK_SCROLL_STEP_BACKWARD, TRUE},
              {GDK_KEY_Right, GDK_KEY_KP_Right, GTK_SCROLL_STEP_FORWARD, TRUE},
              {GDK_KEY_Up, GDK_KEY_KP_Up, GTK_SCROLL_STEP_BACKWARD, FALSE},
              {GDK_KEY_Down, GDK_KEY_KP_Down, GTK_SCROLL_STEP_FORWARD, FALSE}};

// The arrows with Control, the page keys, Home and End are the scrolled window's own.
gboolean ScrollKey(GtkWidget* /*widget*/, GdkEventKey* event, gpointer scrolled) {
  if (PtrnFlag == 0 || (event->state & gtk_accelerator_get_default_mod_mask()) != 0) return FALSE;
  for (const auto& arrow : Arrows) {
    if (event->keyval == arrow.Key || event->keyval == arrow.PadKey) {
      gboolean done = FALSE;
      g_signal_emit_by_name(scrolled, "scroll-child", arrow.Step, arrow.Horizontal, &done);
      return TRUE;
    }
  }
  return FALSE;
}

// Whole steps that the wheel has turned, upwards negative.
gint WheelSteps(const GdkEventScroll* event) {
  if (event->direction == GDK_SCROLL_UP) return -1;
  if (event->direction == GDK_SCROLL_DOWN) return 1;
  if (event->direction != GDK_SCROLL_SMOOTH) return 0;
  Turned += event->delta_y;
  const double whole = std::trunc(Turned);
  Turned -= whole;
  return static_cast<gint>(std::clamp(whole, -10.0, 10.0));
}

// The layout point that is seen there stays there.
void ZoomAround(gint index, double x, double y) {
  const Place under = {{DotAt(Across(), x), x}, {DotAt(Down(), y), y}};
  gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(PtrnZoom1[index]), TRUE);
  Want(under);
}

void ZoomUnderPointer(gint index, const GdkEventScroll* event) {
  GtkWidget* viewport = gtk_widget_get_parent(PtrnDraw);
  POINT from{0, 0};
  POINT seen{0, 0};
  gdk_window_get_origin(event->window, &from.x, &from.y);
  gdk_window_get_origin(gtk_viewport_get_view_window(GTK_VIEWPORT(viewport)), &seen.x, &seen.y);
  ZoomAround(index, event->x + from.x - seen.x, event->y + from.y - seen.y);
}

// Zooming gives up what is being edited, so the wheel zooms only while nothing is.
gboolean ZoomWheel(GtkWidget* /*widget*/, GdkEventScroll* event, gpointer /*data*/) {
  const bool zooms = PtrnFlag != 0 && (event->state & GDK_CONTROL_MASK) != 0;
  const bool idle = PtrnMode == ModeIdle && PtrnType == 0;
  if (!zooms || !idle) {
    Turned = 0;
    return zooms;
  }
  const gint index =
      std::clamp(PtrnHedr.Parm2[ViewSlot::Zoom] + WheelSteps(event), 0, ZoomCode::Count - 1);
  if (index != PtrnHedr.Parm2[ViewSlot::Zoom]) ZoomUnderPointer(index, event);
  return TRUE;
}

}  // namespace

void ConnectScroll(GtkWidget* window, GtkWidget* scrolled) {
  g_signal_connect(scrolled, "size-allocate", G_CALLBACK(ScrollWhenSized), nullptr);
  g_signal_connect(window, "key-press-event", G_CALLBACK(ScrollKey), scrolled);
  g_signal_connect(scrolled, "scroll-event", G_CALLBACK(ZoomWheel), nullptr);
}

void KeepScrollPlace() {
  if (!Shown.empty()) Places[Shown] = {Middle(Across()), Middle(Down())};
  Shown.clear();
  Wanted.reset();
}

void RestoreScrollPlace() {
  Shown = LayoutKey();
  if (Shown.empty()) return;
  const auto kept = Places.find(Shown);
  Want(kept != Places.end() ? kept->second : Place{});
}
