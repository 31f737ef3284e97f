#include "app/ui/StartPicture.h"

#include "PtrnMisc.h"
#include "app/Window.h"
#include "render/Primitives.h"

namespace {

constexpr guint32 White = 0xffffff;

// A picture of the program folder and its place in percent of the canvas.
struct StartPicture {
  const gchar* Name;
  gint X, Y, Width, Height;
};
constexpr StartPicture Pictures[] = {
    {"VarnixMaster.bmp", 10, 10, 70, 20},
    {"Orvalis.bmp", 60, 75, 35, 15},
};

struct Place {
  gint X, Y, Width, Height;
};

Place PlaceOf(const StartPicture& picture, gint width, gint height) {
  return {width * picture.X / 100, height * picture.Y / 100, width * picture.Width / 100,
          height * picture.Height / 100};
}

}  // namespace

void MakeInitWindow(Drawable* window, gint width, gint height) {
  DrawGc gc;
  FillPixels(window, 0, 0, width, height, White);
  for (const StartPicture& picture : Pictures) {
    const Place at = PlaceOf(picture, width, height);
    DrawBmap(window, &gc, at.X, at.Y, at.Width, at.Height, -1, PathName, picture.Name);
  }
}

void ShowStartPicture(cairo_t* cairo, Drawable& picture) {
  cairo_set_source_rgb(cairo, 1, 1, 1);
  cairo_paint(cairo);
  if (!picture.Valid()) return;
  cairo_surface_mark_dirty(picture.Cairo());
  cairo_set_source_surface(cairo, picture.Cairo(), 0, 0);
  // A screen of more dots shows each of ours as a block of its own.
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
  for (const StartPicture& image : Pictures) {
    const Place at = PlaceOf(image, picture.Width(), picture.Height());
    cairo_rectangle(cairo, at.X, at.Y, at.Width, at.Height);
    cairo_fill(cairo);
  }
}
