// Dealing with the image library's scaler.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstring>

#include "Paint.h"

// Turns a row of three bytes a pixel into the surface's pixels. There is at least one pixel.
inline void TakeRgbRow(const guchar* in, gint64 count, guint32* out) {
  // Four bytes at once, the last of which is the next pixel's.
  for (gint64 x = 0; x < count - 1; ++x, in += 3) {
    guint32 bytes;
    std::memcpy(&bytes, in, sizeof bytes);
    *out++ = 0xff000000u | GUINT32_FROM_BE(bytes) >> 8;
  }
  *out = 0xff000000u | guint32{in[0]} << 16 | guint32{in[1]} << 8 | in[2];
}

// Pixels of an image that the scaled pixels begin..end-1 are made of, and some more. The scaler
// counts in 65536ths, rounded down.
inline OffsetRange SourceOf(gint64 begin, gint64 end, double scale) {
  const double reach = 1 / scale + static_cast<double>(end) / 65536 + 3;
  return {static_cast<gint64>(static_cast<double>(begin) / scale - reach),
          static_cast<gint64>(static_cast<double>(end) / scale + reach)};
}

// `part` of the picture scaled (bilinear) to `box`, null when the memory cannot be had. The same
// pixels as the scaler gives for the whole; where they are of one colour it is not asked.
PixbufPtr ScaledPart(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part);
