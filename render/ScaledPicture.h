// Pictures painted into a box of any size.
#pragma once

#include "Paint.h"

// Paints the picture scaled (bilinear) to the box; an empty box paints nothing. `blend`: by the
// picture's alpha, else opaque.
void PaintScaled(Drawable& drawable, const GdkPixbuf* picture, const PlaneBox& box, bool blend);
// Null when `picture` is or the memory cannot be had: a copy in which one colour is transparent.
PixbufPtr WithTransparent(const GdkPixbuf* picture, guint8 red, guint8 green, guint8 blue);
