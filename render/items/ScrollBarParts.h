// Where the buttons and the thumb of a scroll bar lie.
#pragma once

#include <optional>

#include "render/surface/Plane.h"

// Positions along the bar's direction; all parts are squares that share `Across`.
struct ScrollBarParts {
  gint Side;    // of every square
  gint Across;  // their left (vertical bar) or top (horizontal bar)
  struct Pair {
    gint First;
    gint Last;
  };
  std::optional<Pair> Double;  // arrows at the two ends
  std::optional<Pair> Single;  // arrows inside them
  std::optional<gint> Thumb;   // none when no trough remains
};

// Nothing when the bar is too thin to hold a square.
std::optional<ScrollBarParts> LayScrollBar(const ItemBox& box, bool vertical, gint frameWidth,
                                           bool doubleArrows, bool singleArrows);
