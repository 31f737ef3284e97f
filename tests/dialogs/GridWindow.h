// A window with an empty grid for the builders, which must go before the rows built into it.
#pragma once

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include "tests/window/Widgets.h"

class GridWindow {
 public:
  GridWindow() {
    gtk_container_add(GTK_CONTAINER(Window), Grid);
    gtk_widget_show(Grid);
  }
  ~GridWindow() { gtk_widget_destroy(Window); }
  GridWindow(const GridWindow&) = delete;
  GridWindow& operator=(const GridWindow&) = delete;
  void Show() {
    gtk_widget_show(Window);
    ASSERT_TRUE(WaitFor([this] { return gtk_widget_get_mapped(Window) != FALSE; }));
  }

  GtkWidget* const Window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  GtkWidget* const Grid = gtk_grid_new();
};
