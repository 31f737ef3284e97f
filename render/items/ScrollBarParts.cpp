#include "render/items/ScrollBarParts.h"

#include <cstdlib>

std::optional<ScrollBarParts> LayScrollBar(const ItemBox& box, bool vertical, gint frameWidth,
                                           bool doubleArrows, bool singleArrows) {
  const auto [acrossA, acrossB] =
      vertical ? std::minmax({box.X1, box.X2}) : std::minmax({box.Y1, box.Y2});
  const auto [alongA, alongB] =
      vertical ? std::minmax({box.Y1, box.Y2}) : std::minmax({box.X1, box.X2});
  const gint side = acrossB - acrossA - 2 * frameWidth;
  if (side < 1) return std::nullopt;

  ScrollBarParts parts{side, acrossA + frameWidth, {}, {}, {}};
  gint first = alongA + frameWidth;
  gint last = alongB - frameWidth;
  if (doubleArrows) {
    parts.Double = {first, last - side};
    first += side;
    last -= side;
  }
  if (singleArrows) {
    parts.Single = {first, last - side};
    first += side;
    last -= side;
  }
  if (first < last) parts.Thumb = (last - 2 * side + first + side) / 2;
  return parts;
}
