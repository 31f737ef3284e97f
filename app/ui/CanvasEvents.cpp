#include "app/ui/CanvasEvents.h"

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "app/ui/CanvasKeys.h"
#include "app/ui/PopupKeys.h"

namespace {

POINT PointOf(gdouble x, gdouble y) {
  return {static_cast<gint>(x), static_cast<gint>(y)};
}

// The first handler that takes an event ends its emission, so each event has one handler that
// asks the others in their order.
gboolean CanvasPress(GtkWidget* canvas, GdkEvent* event, gpointer data) {
  if (EventPopupMenu1(PopupMenu[0], event)) return TRUE;
  if (EventPopupMenu2(PopupMenu[1], event)) return TRUE;
  return PtrnDraw_Press(canvas, &event->button, data);
}

gboolean CanvasRelease(GtkWidget* canvas, GdkEvent* event, gpointer data) {
  PtrnDraw_Release(canvas, &event->button, data);
  EventPopupMenu3(PopupMenu[2], event);
  return TRUE;
}

}  // namespace

gboolean PtrnDraw_Press(GtkWidget* widget, GdkEventButton* event, gpointer /*data*/) {
  // A double click is two presses and a notice of it; the notice is no third press.
  if (event->type == GDK_BUTTON_PRESS && event->button == GDK_BUTTON_PRIMARY &&
      PtrnDraw_Mode == 1) {
    POINT point = PointOf(event->x, event->y);
    LButtonDown(widget, &point);
  }
  return TRUE;
}

gboolean PtrnDraw_Release(GtkWidget* widget, GdkEventButton* event, gpointer /*data*/) {
  if (event->button == GDK_BUTTON_PRIMARY && PtrnDraw_Mode == 1) {
    POINT point = PointOf(event->x, event->y);
    LButtonUp(widget, &point);
  }
  return TRUE;
}

gboolean PtrnDraw_Motion(GtkWidget* widget, GdkEventMotion* event, gpointer /*data*/) {
  POINT point = PointOf(event->x, event->y);
  if (event->is_hint) {
    gdk_window_get_device_position(event->window, event->device, &point.x, &point.y, nullptr);
  }
  if (PtrnDraw_Mode == 1) MouseMove(widget, &point);
  return TRUE;
}

void ConnectCanvas(GtkWidget* canvas) {
  // No motion hints: the toolkit compresses motion itself and keeps the last point of a drag.
  gtk_widget_add_events(canvas,
                        GDK_POINTER_MOTION_MASK | GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
  g_signal_connect(canvas, "configure-event", G_CALLBACK(PtrnDraw_Configure), nullptr);
  g_signal_connect(canvas, "draw", G_CALLBACK(PtrnDraw_Expose), nullptr);
  g_signal_connect(canvas, "button-press-event", G_CALLBACK(CanvasPress), nullptr);
  g_signal_connect(canvas, "button-release-event", G_CALLBACK(CanvasRelease), nullptr);
  g_signal_connect(canvas, "motion-notify-event", G_CALLBACK(PtrnDraw_Motion), nullptr);
  g_signal_connect(canvas, "popup-menu", G_CALLBACK(OpenMenuByKey), nullptr);
}
