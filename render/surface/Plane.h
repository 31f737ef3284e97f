// Positions on the drawing plane, kept small enough that sums and zooming stay inside an integer.
#pragma once

#include <algorithm>

#include "layout/Records.h"

// Far beyond any layout; five times it (the greatest zoom) and sums of both still fit.
constexpr gint PlaneBound = 1 << 20;
// More than any layout is wide: a line, border or frame gains nothing by more.
constexpr gint WidthBound = 9999;

inline gint OnPlane(gint position) {
  return std::clamp(position, -PlaneBound, PlaneBound);
}

inline POINT OnPlane(const POINT& point) {
  return {OnPlane(point.x), OnPlane(point.y)};
}

inline gint BoundedWidth(gint width) {
  return std::min(width, WidthBound);
}

// Layout dots to zoomed pixels, truncating toward zero.
inline gint Zoomed(gint position, gint zoom) {
  return static_cast<gint>(gint64{OnPlane(position)} * zoom / 100);
}

// The two points of an item as they stand, in any order.
struct ItemBox {
  gint X1;
  gint Y1;
  gint X2;
  gint Y2;

  gint MiddleX() const { return (X1 + X2) / 2; }
  gint MiddleY() const { return (Y1 + Y2) / 2; }
  gint Width() const { return X2 - X1; }
  gint Height() const { return Y2 - Y1; }
};

inline ItemBox ItemBoxOf(const PTRNDATA& item) {
  const POINT first = OnPlane(POINT{item.Point1});
  const POINT second = OnPlane(POINT{item.Point2});
  return {first.x, first.y, second.x, second.y};
}

inline ItemBox Zoomed(const ItemBox& box, gint zoom) {
  return {Zoomed(box.X1, zoom), Zoomed(box.Y1, zoom), Zoomed(box.X2, zoom), Zoomed(box.Y2, zoom)};
}
