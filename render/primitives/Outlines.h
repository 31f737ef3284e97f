// The one-pixel outlines that make up a thick one.
#pragma once

#include <algorithm>

#include "render/surface/Paint.h"

// A wider outline would lie outside any surface; figures of hostile width end here.
constexpr gint MaxOutlines = 32767;

// Insets of the one-pixel outlines that make up a thick outline; a negative inset lies outside.
inline OffsetRange OutlineInsets(gint width, gint position) {
  const gint64 count = std::min(width, MaxOutlines);
  if (position == 0) return {-(count / 2), (count - 1) / 2};
  return position == 1 ? OffsetRange{0, count - 1} : OffsetRange{-count, -1};
}
