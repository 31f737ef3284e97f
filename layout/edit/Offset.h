// Adding offsets to the numbers of items, which may come from a damaged file.
#pragma once

#include <algorithm>

#include "Types.h"

// The sum, held at the limits of gint.
inline gint AddOffset(gint number, gint64 offset) {
  return static_cast<gint>(std::clamp<gint64>(gint64{number} + offset, G_MININT, G_MAXINT));
}
