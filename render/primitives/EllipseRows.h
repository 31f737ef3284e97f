// Rows of ellipses, pixel by pixel. The box of an ellipse is that of its outline: from (x1, y1) to
// (x2, y2), both included.
#pragma once

#include "render/surface/Paint.h"

// Pixels of one row, both ends included; empty when first > last.
struct Span {
  gint64 First;
  gint64 Last;

  bool Empty() const { return First > Last; }
};

// The pixels of row y (y1 <= y < y2) that the filled ellipse in a box with an area takes: those
// whose centres lie inside the curve, or on it with the inside to their right or below them. Exact
// for boxes of up to 65,535 x 65,535.
Span FilledRow(const PlaneBox& box, gint64 y);

// The pixels of row y (y1 <= y <= y2) that lie on the outline or inside it.
Span EnclosedRow(const PlaneBox& box, gint64 y);

// The rows that an outline encloses, asked for from top to bottom or the other way round.
class OutlineRows {
 public:
  explicit OutlineRows(const PlaneBox& box) : box_(box) {}

  // As EnclosedRow.
  Span Enclosed(gint64 y);
  // Without the outline itself, which is what has a neighbour outside above, below, left or right.
  // Empty for a row that is not the figure's.
  Span Inside(gint64 y);

 private:
  struct KnownRow {
    gint64 y = G_MININT64;
    Span Extent{};
  };
  PlaneBox box_;
  KnownRow known_[2];  // a row is asked for by itself and by its neighbour
};
