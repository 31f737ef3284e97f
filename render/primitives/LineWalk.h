// One-pixel lines in the context's foreground and dashes, and bundles of them.
#pragma once

#include "render/surface/Paint.h"

struct LineEnds {
  gint64 x1;
  gint64 y1;
  gint64 x2;
  gint64 y2;

  bool Vertical() const { return x1 == x2; }
  bool Horizontal() const { return y1 == y2; }
  // Whether the line is longer across than up or down, or as long.
  bool Flat() const;
};

// Draws a copy of the line at every offset of `copies`: across a straight line, and up and down (a
// flat slanted line) or left and right (a steep one). Both ends are drawn. Dashes begin `start`
// pixels into their pattern at the first end.
void StrokeLine(Drawable& drawable, const DrawGc& gc, const LineEnds& line, OffsetRange copies,
                gint64 start = 0);
