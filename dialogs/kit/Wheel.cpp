#include "dialogs/kit/Wheel.h"

namespace {

// A list's keyboard is with its button or entry.
bool HasKeyboard(GtkWidget* control) {
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(gtk_widget_get_toplevel(control)));
  return focus != nullptr && gtk_widget_has_focus(focus) &&
         (focus == control || gtk_widget_is_ancestor(focus, control));
}

// Stopped but not taken: the event goes on to what the control stands in.
gboolean PassOn(GtkWidget* control, GdkEvent* /*event*/, gpointer /*data*/) {
  if (!HasKeyboard(control)) g_signal_stop_emission_by_name(control, "scroll-event");
  return FALSE;
}

}  // namespace

void KeepFromWheel(GtkWidget* control) {
  g_signal_connect(control, "scroll-event", G_CALLBACK(PassOn), nullptr);
}
