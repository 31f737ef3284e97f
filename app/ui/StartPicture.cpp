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
}  // namespace

void MakeInitWindow(Drawable* window, gint width, gint height) {
  DrawGc gc;
  FillPixels(window, 0, 0, width, height, White);
  for (const StartPicture& picture : Pictures)
    DrawBmap(window, &gc, width * picture.X / 100, height * picture.Y / 100,
             width * picture.Width / 100, height * picture.Height / 100, -1, PathName,
             picture.Name);
}
