// Starts the program, or a bare window, up to its first painted window and tells on standard output
// how much memory it holds then, in MB.
//
//   start_probe bare
//   start_probe program FOLDER                     with the project of the profile there
//   start_probe program FOLDER WIDTH HEIGHT ZOOM   and then its start-up layout in this size,
//                                                  scrolled through
#include <gtk/gtk.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Window.h"

namespace {

// The widget that is waited for, null once it is painted.
GtkWidget* Awaited;

// A hook, because the canvas's own handler ends the signal's emission.
gboolean NoteDrawing(GSignalInvocationHint* /*hint*/, guint /*count*/, const GValue* values,
                     gpointer /*data*/) {
  if (g_value_get_object(values) == Awaited) Awaited = nullptr;
  return TRUE;
}

// Runs the main loop until the widget is painted and the display has it.
void WaitForDrawing(GtkWidget* widget) {
  Awaited = widget;
  while (Awaited != nullptr) gtk_main_iteration();
  while (gtk_events_pending()) gtk_main_iteration();
  gdk_display_sync(gtk_widget_get_display(widget));
}

GtkWidget* BareWindow() {
  GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_default_size(GTK_WINDOW(window), 800, 600);
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_container_add(GTK_CONTAINER(window), box);
  GtkWidget* bar = gtk_menu_bar_new();
  for (const char* title : {"ファイル", "編集", "表示"}) {
    gtk_menu_shell_append(GTK_MENU_SHELL(bar), gtk_menu_item_new_with_label(title));
  }
  gtk_box_pack_start(GTK_BOX(box), bar, FALSE, FALSE, 0);
  GtkWidget* area = gtk_drawing_area_new();
  g_signal_connect(area, "draw", G_CALLBACK(+[](GtkWidget*, cairo_t* cairo) {
                     cairo_set_source_rgb(cairo, 1, 1, 1);
                     cairo_paint(cairo);
                     return TRUE;
                   }),
                   nullptr);
  gtk_box_pack_start(GTK_BOX(box), area, TRUE, TRUE, 0);
  gtk_widget_show_all(window);
  return area;
}

// As the program's own beginning; the canvas.
GtkWidget* StartProgram(const char* folder) {
  CopyText(PathName, folder);
  CreateMainWindow();
  gtk_widget_show(PtrnWnd);
  InitVarnixMaster();
  return PtrnDraw;
}

// Page by page, so that each step has something to paint.
void ScrollThrough(GtkAdjustment* adjustment) {
  const gdouble page = gtk_adjustment_get_page_size(adjustment);
  const gdouble end = gtk_adjustment_get_upper(adjustment) - page;
  for (gdouble at = page; at <= end; at += page) {
    gtk_adjustment_set_value(adjustment, at);
    WaitForDrawing(PtrnDraw);
  }
}

bool ShowLayout(char** arguments) {
  CopyText(PtrnName, FieldText(ProjData.PtrnStart));
  IntPtrnData();
  if (PtrnFileRead(ProjPath, PtrnName) == 0) return false;
  PtrnFlag = 1;
  const gint width = std::atoi(arguments[0]);
  const gint height = std::atoi(arguments[1]);
  PtrnHedr.Parm1[HedrSlot::Width] = width;
  PtrnHedr.Parm1[HedrSlot::Height] = height;
  PtrnHedr.Parm2[ViewSlot::Zoom] = std::atoi(arguments[2]);
  SizeRequest(1, width, height, ZoomPercent(PtrnHedr.Parm2[ViewSlot::Zoom]));
  WaitForDrawing(PtrnDraw);
  auto* viewport = GTK_SCROLLABLE(gtk_widget_get_parent(PtrnDraw));
  ScrollThrough(gtk_scrollable_get_vadjustment(viewport));
  ScrollThrough(gtk_scrollable_get_hadjustment(viewport));
  return true;
}

double ResidentMegabytes() {
  long pages = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  gdk_set_allowed_backends("x11");
  if (!gtk_init_check(&argc, &argv)) return 3;
  const bool program = argc > 2 && std::strcmp(argv[1], "program") == 0;
  GtkWidget* canvas = program ? StartProgram(argv[2]) : BareWindow();
  g_signal_add_emission_hook(g_signal_lookup("draw", GTK_TYPE_WIDGET), 0, NoteDrawing, nullptr,
                             nullptr);
  WaitForDrawing(canvas);
  if (program && argc > 5 && !ShowLayout(argv + 3)) return 4;
  std::printf("%.1f\n", ResidentMegabytes());
  std::fflush(stdout);
  _exit(0);
}
