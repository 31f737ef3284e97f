#include "CanvasScroll.h"

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
// The middle of what is seen of a layout, in its dots.
struct Place {
  double x;
  double y;
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

double Middle(GtkAdjustment* bar, gint dots, gint zoomedDots) {
  const double seen = std::min<double>(gtk_adjustment_get_page_size(bar), zoomedDots);
  return (gtk_adjustment_get_value(bar) + seen / 2) * dots / zoomedDots;
}

Place ShownPlace() {
  return {
      Middle(gtk_scrolled_window_get_hadjustment(Scrolled()), PtrnDraw_Size1.cx, PtrnDraw_Size2.cx),
      Middle(gtk_scrolled_window_get_vadjustment(Scrolled()), PtrnDraw_Size1.cy,
             PtrnDraw_Size2.cy)};
}

void SetMiddle(GtkAdjustment* bar, double middle, gint dots, gint zoomedDots) {
  const double left = middle * zoomedDots / dots - gtk_adjustment_get_page_size(bar) / 2;
  gtk_adjustment_set_value(bar, std::round(left));
}

void ScrollTo(const Place& place) {
  SetMiddle(gtk_scrolled_window_get_hadjustment(Scrolled()), place.x, PtrnDraw_Size1.cx,
            PtrnDraw_Size2.cx);
  SetMiddle(gtk_scrolled_window_get_vadjustment(Scrolled()), place.y, PtrnDraw_Size1.cy,
            PtrnDraw_Size2.cy);
}

// At once as far as the canvas's present size allows, and again when it has its new one.
void Want(const Place& place) {
  Wanted = place;
  ScrollTo(place);
}

void ScrollWhenSized(GtkWidget* /*canvas*/, GdkRectangle* place, gpointer) {
  if (!Wanted || PtrnDraw_Mode == 0) return;
  if (place->width < PtrnDraw_Size2.cx || place->height < PtrnDraw_Size2.cy) return;
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
gboolean ScrollKey(GtkWidget*, GdkEventKey* event, gpointer scrolled) {
  if (PtrnFlag == 0 || (event->state & gtk_accelerator_get_default_mod_mask()) != 0) return FALSE;
  for (const auto& arrow : Arrows)
    if (event->keyval == arrow.Key || event->keyval == arrow.PadKey) {
      gboolean done = FALSE;
      g_signal_emit_by_name(scrolled, "scroll-child", arrow.Step, arrow.Horizontal, &done);
      return TRUE;
    }
  return FALSE;
}

// Whole steps that the wheel has turned, upwards negative.
gint WheelSteps(const GdkEventScroll* event) {
  if (event->direction == GDK_SCROLL_UP) return -1;
  if (event->direction == GDK_SCROLL_DOWN) return 1;
  if (event->direction != GDK_SCROLL_SMOOTH) return 0;
  Turned += event->delta_y;
  const gint steps = static_cast<gint>(std::clamp(Turned, -10.0, 10.0));
  Turned -= steps;
  return steps;
}

// The layout point under the pointer stays under it.
void ZoomAround(gint index, double x, double y) {
  const Place before = Wanted.value_or(ShownPlace());
  const double zoom = static_cast<double>(PtrnDraw_Size2.cx) / PtrnDraw_Size1.cx;
  gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(PtrnZoom1[index]), TRUE);
  const double ratio = zoom * PtrnDraw_Size1.cx / PtrnDraw_Size2.cx;
  const Place under = {x / zoom, y / zoom};
  Want({under.x + (before.x - under.x) * ratio, under.y + (before.y - under.y) * ratio});
}

// Zooming gives up what is being edited, so the wheel zooms only while nothing is.
gboolean ZoomWheel(GtkWidget*, GdkEventScroll* event, gpointer) {
  if (PtrnFlag == 0 || (event->state & GDK_CONTROL_MASK) == 0) return FALSE;
  if (PtrnMode != ModeIdle || PtrnType != 0) return TRUE;
  constexpr gint Last = 4;
  const gint index = std::clamp(PtrnHedr.Parm2[ViewSlot::Zoom] + WheelSteps(event), 0, Last);
  if (index == PtrnHedr.Parm2[ViewSlot::Zoom]) return TRUE;
  gint x = 0;
  gint y = 0;
  gdk_window_get_device_position(gtk_widget_get_window(PtrnDraw), event->device, &x, &y, nullptr);
  ZoomAround(index, x, y);
  return TRUE;
}
}  // namespace

void ConnectScroll(GtkWidget* window, GtkWidget* scrolled) {
  g_signal_connect(PtrnDraw, "size-allocate", G_CALLBACK(ScrollWhenSized), nullptr);
  g_signal_connect(window, "key-press-event", G_CALLBACK(ScrollKey), scrolled);
  g_signal_connect(scrolled, "scroll-event", G_CALLBACK(ZoomWheel), nullptr);
}

void KeepScrollPlace() {
  if (!Shown.empty()) Places[Shown] = Wanted.value_or(ShownPlace());
  Shown.clear();
  Wanted.reset();
}

void RestoreScrollPlace() {
  Shown = LayoutKey();
  if (Shown.empty()) return;
  const auto kept = Places.find(Shown);
  Want(kept != Places.end() ? kept->second : Place{0, 0});
}
