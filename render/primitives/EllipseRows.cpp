#include "render/primitives/EllipseRows.h"

#include <cmath>

namespace {

double HalfChord(double a, double ratio) {
  return a * std::sqrt(std::max(0.0, 1.0 - ratio * ratio));
}

// One row of an ellipse in doubled numbers, so that all of them are whole: the middle of the row
// is 0, and its pixels lie at -w, -w + 2, ..., w.
class Chord {
 public:
  Chord(gint64 width, gint64 height, gint64 dy)
      : height_(static_cast<long double>(height)),
        reach_(static_cast<long double>(width) * static_cast<long double>(width) *
               static_cast<long double>(height - dy) * static_cast<long double>(height + dy)) {}

  // How far the curve reaches from the middle, not rounded.
  double Half() const {
    return std::sqrt(static_cast<double>(reach_)) / static_cast<double>(height_);
  }
  // Above 0 for a pixel outside the curve, 0 for one on it.
  long double Excess(gint64 dx) const {
    const long double side = static_cast<long double>(dx) * height_;
    return side * side - reach_;
  }

 private:
  long double height_;
  long double reach_;
};

}  // namespace

Span FilledRow(const PlaneBox& box, gint64 y) {
  const gint64 width = box.x2 - box.x1;
  const Chord chord(width, box.y2 - box.y1, 2 * y - box.y1 - box.y2);
  auto margin = static_cast<gint64>(std::ceil((static_cast<double>(width) - chord.Half()) / 2));
  while (margin > 0 && chord.Excess(2 * (margin - 1) - width) <= 0) --margin;
  while (2 * margin <= width && chord.Excess(2 * margin - width) > 0) ++margin;
  // The topmost pixel may lie on the curve, too: the inside is below it.
  const bool rightOnCurve = 2 * margin < width && chord.Excess(2 * margin - width) == 0;
  return {box.x1 + margin, box.x2 - margin - (rightOnCurve ? 1 : 0)};
}

Span EnclosedRow(const PlaneBox& box, gint64 y) {
  const double a = static_cast<double>(box.x2 - box.x1) / 2;
  const double b = static_cast<double>(box.y2 - box.y1) / 2;
  const double dy = std::abs(static_cast<double>(y - box.y1) - b);
  // The curve is rounded to the nearest pixel along the row or along the column.
  double half = b > 0 ? HalfChord(a, dy / b) + 0.5 : a;
  if (dy >= 0.5) half = std::max(half, HalfChord(a, (dy - 0.5) / b));
  const auto margin = static_cast<gint64>(std::ceil(a - std::min(half, a)));
  return {box.x1 + margin, box.x2 - margin};
}

Span OutlineRows::Enclosed(gint64 y) {
  KnownRow& known = known_[y & 1];
  if (known.y != y) known = {y, EnclosedRow(box_, y)};
  return known.Extent;
}

Span OutlineRows::Inside(gint64 y) {
  if (y <= box_.y1 || y >= box_.y2) return {0, -1};
  const Span row = Enclosed(y);
  // The neighbour row away from the middle is never the longer one.
  const Span next = Enclosed(y - box_.y1 <= box_.y2 - y ? y - 1 : y + 1);
  return {std::max(row.First + 1, next.First), std::min(row.Last - 1, next.Last)};
}
