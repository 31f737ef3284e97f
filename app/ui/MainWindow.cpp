#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "app/ui/CanvasEvents.h"
#include "app/ui/CanvasKeys.h"
#include "app/ui/CanvasScroll.h"
#include "app/ui/Holders.h"
#include "app/ui/WindowPlace.h"
#include "dialogs/ToolBoxWindow.h"
#include "dialogs/frame/Accessible.h"
#include "layout/LayoutCommands.h"
#include "render/LayoutPicture.h"

namespace {

GtkWidget* CreateCanvas() {
  GtkWidget* canvas = gtk_drawing_area_new();
  KeepWidget(&PtrnDraw, canvas);
  gtk_widget_set_can_focus(canvas, TRUE);
  SetAccessibleName(canvas, "レイアウト");
  PtrnDraw_Mode = 0;
  ConnectCanvas(canvas);
  CreatePopupMenu(canvas);
  return canvas;
}

GtkWidget* CreateScrolledCanvas() {
  GtkWidget* scrolled = gtk_scrolled_window_new(nullptr, nullptr);
  gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scrolled), GTK_POLICY_AUTOMATIC,
                                 GTK_POLICY_AUTOMATIC);
  gtk_widget_set_can_focus(scrolled, FALSE);
  NameScrollBars(scrolled);
  // Bars beside the canvas; over it they would cover the layout's edge.
  gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scrolled), FALSE);
  GtkWidget* viewport = gtk_viewport_new(nullptr, nullptr);
  gtk_viewport_set_shadow_type(GTK_VIEWPORT(viewport), GTK_SHADOW_NONE);
  gtk_container_add(GTK_CONTAINER(viewport), CreateCanvas());
  gtk_container_add(GTK_CONTAINER(scrolled), viewport);
  return scrolled;
}

// Dialogs show it too. A missing file leaves the window manager's own.
void UseProgramIcon() {
  gchar path[PathSize];
  MakePath(path, PathName, "VarnixMaster", "png");
  // Without a place for the error a missing file would be complained about.
  GError* error = nullptr;
  gtk_window_set_default_icon_from_file(path, &error);
  g_clear_error(&error);
}

}  // namespace

void CreateMainWindow() {
  UseProgramIcon();
  GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  KeepWidget(&PtrnWnd, window);
  gtk_container_set_border_width(GTK_CONTAINER(window), 0);
  const SIZE size = SavedWindowSize();
  gtk_window_set_default_size(GTK_WINDOW(window), size.cx, size.cy);
  gtk_window_set_position(GTK_WINDOW(window), GTK_WIN_POS_CENTER);
  SetWindTitle("", "");

  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_container_add(GTK_CONTAINER(window), box);
  gtk_box_pack_start(GTK_BOX(box), CreateMainMenu(), FALSE, FALSE, 0);
  GtkWidget* scrolled = CreateScrolledCanvas();
  gtk_box_pack_start(GTK_BOX(box), scrolled, TRUE, TRUE, 0);
  gtk_window_add_accel_group(GTK_WINDOW(window), MainMenuKeys());

  g_signal_connect(window, "size-allocate", G_CALLBACK(RememberWindowSize), nullptr);
  g_signal_connect(window, "key-press-event", G_CALLBACK(CanvasKey), nullptr);
  ConnectScroll(window, scrolled);
  g_signal_connect(window, "delete-event", G_CALLBACK(Delete_Event), nullptr);
  g_signal_connect(window, "destroy", G_CALLBACK(Destroy_Event), nullptr);
  gtk_widget_show_all(box);
}

void InitVarnixMaster() {
  InitDrawData();
  ProjDataInit();
}

gboolean Delete_Event(GtkWidget* /*widget*/, GdkEvent* /*event*/, gpointer /*data*/) {
  if (ToolBox != nullptr) {
    // What keeps the window open shows itself.
    gtk_window_present(GTK_WINDOW(ToolBox));
    return TRUE;
  }
  return SavePtrnData() == 1 ? FALSE : TRUE;
}

void Destroy_Event(GtkWidget* /*widget*/, gpointer /*data*/) {
  LeavePopupMenus();
  if (ToolBox != nullptr) gtk_widget_destroy(ToolBox);
  if (MainLoop != nullptr) g_main_loop_quit(MainLoop);
}
