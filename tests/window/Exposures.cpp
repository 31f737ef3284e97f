#include "tests/window/Exposures.h"

#include "app/Window.h"

Exposures::Exposures() : handler_(g_signal_connect(PtrnDraw, "draw", G_CALLBACK(Note), this)) {
  // The canvas's own handler ends the emission, so this one stands before it.
  g_signal_handlers_disconnect_by_func(PtrnDraw, reinterpret_cast<gpointer>(PtrnDraw_Expose),
                                       nullptr);
  g_signal_connect(PtrnDraw, "draw", G_CALLBACK(PtrnDraw_Expose), nullptr);
}

Exposures::~Exposures() {
  g_signal_handler_disconnect(PtrnDraw, handler_);
}

gboolean Exposures::Note(GtkWidget* /*widget*/, cairo_t* cairo, gpointer self) {
  cairo_rectangle_list_t* clip = cairo_copy_clip_rectangle_list(cairo);
  for (gint i = 0; i < clip->num_rectangles; i++) {
    static_cast<Exposures*>(self)->pixels_ +=
        clip->rectangles[i].width * clip->rectangles[i].height;
  }
  cairo_rectangle_list_destroy(clip);
  return FALSE;
}
