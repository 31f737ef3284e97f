// An object of its own, so that a test can stand in for the function.
#include "render/Palette.h"
#include "support/Resource.h"

void SetDrawColr() {
  for (gint i = 0; i < ColrCount; ++i) {
    const COLRDATA& colr = ColrData[i];
    DrawColr[i] = {static_cast<guint16>(colr.red), static_cast<guint16>(colr.green),
                   static_cast<guint16>(colr.blue), PixelOf(colr.red, colr.green, colr.blue)};
  }
}
