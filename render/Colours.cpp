#include "Paint.h"
#include "support/Resource.h"

DRAWCOLR DrawColr[103];
DRAWCOLR CusrColr[2];

guint32 PixelOf(gint red, gint green, gint blue) {
  const auto high = [](gint channel) { return static_cast<guint32>(channel) >> 8 & 0xff; };
  return high(red) << 16 | high(green) << 8 | high(blue);
}

void SetDrawColr() {
  for (gint i = 0; i < ColrCount; ++i) {
    const COLRDATA& colr = ColrData[i];
    DrawColr[i] = {static_cast<guint16>(colr.red), static_cast<guint16>(colr.green),
                   static_cast<guint16>(colr.blue), PixelOf(colr.red, colr.green, colr.blue)};
  }
}
