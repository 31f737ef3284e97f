#include <gdk-pixbuf/gdk-pixbuf.h>

#include "render/Palette.h"
#include "render/Pictures.h"
#include "render/pictures/KeptPictures.h"
#include "render/pictures/PictureFiles.h"

void DrawBmap(Drawable* drawable, DrawGc* /*gc*/, gint x, gint y, gint width, gint height,
              gint transparent, const gchar* path, const gchar* name) {
  const PlaneBox box{x, y, gint64{x} + width, gint64{y} + height};
  if (transparent > ColourRed || box.Clip(BoxOf(*drawable)).Empty()) return;
  const FilePicture file = PictureFile(PicturePathInside(path, name));
  ShownPictures::Note(path, name, file.State);
  if (file.Picture == nullptr) return;
  if (transparent < 0) {
    PaintKept(*drawable, box, {file.Source, -1, -1}, false,
              [&] { return PixbufPtr(GDK_PIXBUF(g_object_ref(file.Picture))); });
    return;
  }
  // Kept: the low byte of each channel is the key, not the high one that is shown.
  const DRAWCOLR& colour = DrawColr[transparent];
  const guint8 red = colour.red & 0xff, green = colour.green & 0xff, blue = colour.blue & 0xff;
  PaintKept(*drawable, box, {file.Source, -1, red << 16 | green << 8 | blue}, true,
            [&] { return WithTransparent(file.Picture, red, green, blue); });
}
