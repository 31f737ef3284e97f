// What lies behind an item without a background of its own.
#pragma once

#include <vector>

#include "project/check/Check.h"

class Backgrounds {
 public:
  explicit Backgrounds(const CheckedLayout& layout);
  // Palette colour behind the item's first point in a colour system; -1 where it is not one colour
  // or not known.
  gint Behind(const PTRNDATA& item, gint system) const;

 private:
  gint AreaColour(const POINT& point) const;

  const CheckedLayout& layout_;
  std::vector<const PTRNDATA*> covers_;  // items that hide what is behind them, in painting order
};
