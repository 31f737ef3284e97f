#include "render/Palette.h"

DRAWCOLR DrawColr[103];
DRAWCOLR CusrColr[2];

guint32 PixelOf(gint red, gint green, gint blue) {
  const auto high = [](gint channel) { return static_cast<guint32>(channel) >> 8 & 0xff; };
  return high(red) << 16 | high(green) << 8 | high(blue);
}
