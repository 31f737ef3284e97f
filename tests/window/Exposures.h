// What the canvas repaints.
#pragma once

#include <gtk/gtk.h>

class Exposures {
 public:
  Exposures();
  ~Exposures();
  Exposures(const Exposures&) = delete;
  Exposures& operator=(const Exposures&) = delete;

  // Area of all rectangles painted since the last Clear.
  gdouble Pixels() const { return pixels_; }
  void Clear() { pixels_ = 0; }

 private:
  static gboolean Note(GtkWidget* canvas, cairo_t* cairo, gpointer self);

  gulong handler_;
  gdouble pixels_ = 0;
};
