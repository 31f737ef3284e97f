#include "render/surface/Paint.h"

void FillPixels(Drawable* drawable, gint x, gint y, gint w, gint h, guint32 rgb) {
  FillBox(*drawable, {x, y, gint64{x} + w, gint64{y} + h}, rgb);
}
