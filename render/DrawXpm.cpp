#include "ScaledPicture.h"
#include "XpmPicture.h"

void DrawXpm(Drawable* drawable, DrawGc*, gint x, gint y, gint width, gint height,
             const gchar* const* xpm) {
  const PixbufPtr picture = PixbufFromXpm(xpm);
  PaintScaled(*drawable, picture.get(), {x, y, gint64{x} + width, gint64{y} + height}, false);
}
