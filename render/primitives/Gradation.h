// The gradation of a work area, from a palette colour down to almost black.
#pragma once

#include "support/Resource.h"

// 0xRRGGBB of shade 0 (the colour itself) .. 255.
guint32 GradationPixel(const COLRDATA& colour, gint shade);
// Shade of row `row` of `rows`.
gint GradationShade(gint row, gint rows);
