#include "dialogs/kit/SwatchGrid.h"

namespace {

constexpr const gchar* StopKey = "varnix-tab-stop";

void KeepStop(GtkContainer* grid, GtkWidget* control, gpointer /*data*/) {
  if (control != nullptr) SetTabStop(GTK_WIDGET(grid), control);
}

gboolean FocusGrid(GtkWidget* grid, GtkDirectionType direction, gpointer /*data*/) {
  if (direction != GTK_DIR_TAB_FORWARD && direction != GTK_DIR_TAB_BACKWARD) return FALSE;
  auto* stop = static_cast<GtkWidget*>(g_object_get_data(G_OBJECT(grid), StopKey));
  // The first control gets the keyboard in the grid's own way.
  const bool leaves = gtk_container_get_focus_child(GTK_CONTAINER(grid)) != nullptr;
  if (!leaves && stop == nullptr) return FALSE;
  if (!leaves) gtk_widget_grab_focus(stop);
  g_signal_stop_emission_by_name(grid, "focus");
  return !leaves;
}

}  // namespace

void MakeOneTabStop(GtkWidget* grid) {
  g_signal_connect(grid, "set-focus-child", G_CALLBACK(KeepStop), nullptr);
  g_signal_connect(grid, "focus", G_CALLBACK(FocusGrid), nullptr);
}

void SetTabStop(GtkWidget* grid, GtkWidget* control) {
  g_object_set_data(G_OBJECT(grid), StopKey, control);
}
