// Dealing with the image library's scaler.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstring>
#include <vector>

#include "render/surface/Paint.h"

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

// A picture and the factors that it is scaled by.
struct Scaling {
  gint64 Width;
  gint64 Height;
  double x;
  double y;
};

// Pixels of a picture that the scaled pixels begin..end-1 are made of, and some more. The scaler
// counts in 65536ths, rounded down.
inline OffsetRange SourceOf(gint64 begin, gint64 end, double scale) {
  const double reach = static_cast<double>(end) / 65536 + 2;
  return {static_cast<gint64>(static_cast<double>(begin) / scale - reach),
          static_cast<gint64>(static_cast<double>(end) / scale + reach)};
}

// The same for a box of the scaled picture.
inline PlaneBox SourceOf(const PlaneBox& box, const Scaling& scaling) {
  const OffsetRange columns = SourceOf(box.x1, box.x2, scaling.x);
  const OffsetRange rows = SourceOf(box.y1, box.y2, scaling.y);
  return PlaneBox{columns.Low, rows.Low, columns.High, rows.High}.Clip(
      {0, 0, scaling.Width, scaling.Height});
}

// Divides a part of a scaled picture into what is of one colour and what needs the scaler.
// work.FillPlain(cell, source) fills a cell if the pixels that it is made of are all alike, else it
// says false; work.Scale(box) scales a box, of at most MaxScaledRows rows.
constexpr gint64 MaxScaledRows = 96;

template <typename Work>
void ScaleInCells(const PlaneBox& part, const Scaling& scaling, Work& work) {
  // The tables that the scaler makes for each call cost as much as scaling some 256 pixels: a cell
  // of one colour must be as large to be worth a call more.
  constexpr gint64 cellWidth = 32;
  constexpr gint64 cellHeight = 8;
  std::vector<OffsetRange> columns;  // for the scaler, from row `begin` on
  gint64 begin = part.y1;
  const auto scaleTo = [&](gint64 end) {
    for (const OffsetRange& range : columns) work.Scale({range.Low, begin, range.High, end});
  };
  const auto sameColumns = [&](const std::vector<OffsetRange>& next) {
    return std::equal(next.begin(), next.end(), columns.begin(), columns.end(),
                      [](const OffsetRange& a, const OffsetRange& b) {
                        return a.Low == b.Low && a.High == b.High;
                      });
  };
  for (gint64 y = part.y1; y < part.y2; y += cellHeight) {
    std::vector<OffsetRange> next;
    for (gint64 x = part.x1; x < part.x2; x += cellWidth) {
      const PlaneBox cell =
          PlaneBox{x, y, x + cellWidth, y + cellHeight}.Clip({part.x1, part.y1, part.x2, part.y2});
      if (work.FillPlain(cell, SourceOf(cell, scaling))) continue;
      if (!next.empty() && next.back().High == x) {
        next.back().High = cell.x2;
      } else {
        next.push_back({x, cell.x2});
      }
    }
    if (y + cellHeight - begin > MaxScaledRows || !sameColumns(next)) {
      scaleTo(y);
      columns = std::move(next);
      begin = y;
    }
  }
  scaleTo(part.y2);
}

// `part` of the picture scaled (bilinear) to `box`, null when the memory cannot be had. The same
// pixels as the scaler gives for the whole.
PixbufPtr ScaledPart(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part);
