#include "render/primitives/Gradation.h"

#include "render/Primitives.h"

guint32 GradationPixel(const COLRDATA& colour, gint shade) {
  const auto channel = [shade](gint value) {
    const gint64 shaded = gint64{value} - gint64{shade} * value / 256;
    return static_cast<gint>(shaded & 0xffff);
  };
  return PixelOf(channel(colour.red), channel(colour.green), channel(colour.blue));
}

gint GradationShade(gint row, gint rows) {
  return row * 255 / rows;
}
