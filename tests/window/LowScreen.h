// A screen that leaves little room for windows.
#pragma once

#include <gtk/gtk.h>

// While it lives a bar along the bottom of the screen leaves windows `height` dots; fails the test
// when the window manager does not keep them off it.
class LowScreen {
 public:
  explicit LowScreen(gint height);
  ~LowScreen();
  LowScreen(const LowScreen&) = delete;
  LowScreen& operator=(const LowScreen&) = delete;

 private:
  GtkWidget* bar_;  // null once somebody has closed it
};
