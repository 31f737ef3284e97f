// Rows of images of three bytes a pixel.
#pragma once

#include <glib.h>

#include <cstring>

// Turns a row into the surface's pixels. There is at least one pixel.
inline void TakeRgbRow(const guchar* in, gint64 count, guint32* out) {
  // Four bytes at once, the last of which is the next pixel's.
  for (gint64 x = 0; x < count - 1; ++x, in += 3) {
    guint32 bytes;
    std::memcpy(&bytes, in, sizeof bytes);
    *out++ = 0xff000000u | GUINT32_FROM_BE(bytes) >> 8;
  }
  *out = 0xff000000u | guint32{in[0]} << 16 | guint32{in[1]} << 8 | in[2];
}
