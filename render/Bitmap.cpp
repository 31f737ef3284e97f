#include "PictureFiles.h"
#include "ScaledPicture.h"
#include "support/FileTools.h"

void DrawBmap(Drawable* drawable, DrawGc*, gint x, gint y, gint width, gint height,
              gint transparent, const gchar* path, const gchar* name) {
  const PlaneBox box{x, y, gint64{x} + width, gint64{y} + height};
  if (transparent > ColourRed || box.Clip(BoxOf(*drawable)).Empty()) {
    return;
  }
  const GdkPixbuf* picture = PictureFile(JoinPath(path, name, ""));
  if (transparent < 0) {
    PaintScaled(*drawable, picture, box, false);
    return;
  }
  // The low byte of each channel is the key, not the high one that is shown. That is meant so.
  const DRAWCOLR& key = DrawColr[transparent];
  const PixbufPtr keyed =
      WithTransparent(picture, key.red & 0xff, key.green & 0xff, key.blue & 0xff);
  PaintScaled(*drawable, keyed.get(), box, true);
}
