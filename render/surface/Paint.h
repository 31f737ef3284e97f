// Clipped painting of plain pixels. Positions are plane positions of any size.
#pragma once

#include <algorithm>

#include "render/Surface.h"

// A box of the plane: from (x1, y1) up to, but not including, (x2, y2).
struct PlaneBox {
  gint64 x1;
  gint64 y1;
  gint64 x2;
  gint64 y2;

  bool Empty() const { return x1 >= x2 || y1 >= y2; }
  PlaneBox Clip(const PlaneBox& other) const {
    return {std::max(x1, other.x1), std::max(y1, other.y1), std::min(x2, other.x2),
            std::min(y2, other.y2)};
  }
};

// The box between any two corners.
inline PlaneBox Normalised(gint64 x1, gint64 y1, gint64 x2, gint64 y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

inline PlaneBox BoxOf(const Drawable& drawable) {
  const gint64 x = drawable.X();
  const gint64 y = drawable.Y();
  return {x, y, x + drawable.Width(), y + drawable.Height()};
}

inline guint32* PixelAt(Drawable& drawable, gint64 x, gint64 y) {
  return drawable.Row(static_cast<gint>(y - drawable.Y())) + (x - drawable.X());
}

// False on a surface that only notes where it is painted on: then `part`, which lies on it, is
// noted.
inline bool TakesPixels(Drawable& drawable, const PlaneBox& part) {
  if (drawable.Drawn() == nullptr) return true;
  drawable.Drawn()->Add({static_cast<gint>(part.x1), static_cast<gint>(part.y1),
                         static_cast<gint>(part.x2), static_cast<gint>(part.y2)});
  return false;
}

inline void FillBox(Drawable& drawable, const PlaneBox& box, guint32 rgb) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (part.Empty() || !TakesPixels(drawable, part)) return;
  const guint32 pixel = 0xff000000 | rgb;
  for (gint64 y = part.y1; y < part.y2; ++y) {
    std::fill_n(PixelAt(drawable, part.x1, y), part.x2 - part.x1, pixel);
  }
}

// Copies of a figure at every offset from `low` to `high`.
struct OffsetRange {
  gint64 Low;
  gint64 High;
};
