// What an item looks like in the colour system and language shown, and how areas are filled.
#pragma once

#include <string>

#include "layout/Records.h"
#include "render/Surface.h"
#include "render/surface/Plane.h"

// A colour (or mark) kept for each of the four colour systems, its first at slot `base`.
gint SystemColour(const PTRNDATA& item, gint base);
// A colour kept for even and for odd colour systems.
gint ParityColour(const PTRNDATA& item, gint base);
// Whether the colour system shown is an odd one.
bool IsOddSystem();
// The colour, or -1 when its switch is off.
inline gint OptionalColour(gint enabled, gint colour) {
  return enabled != 0 ? colour : -1;
}

// The item's text in the language shown.
std::string ItemText(const PTRNDATA& item);

// Fills the box between two corners, taken in any order.
void FillArea(Drawable* drawable, DrawGc* gc, const ItemBox& box, gint colour);
// A solid line one pixel wide, both ends included.
void ThinLine(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint colour);
