// Pictures scaled to a box and turned into the surface's pixels.
#pragma once

#include <vector>

#include "render/surface/Paint.h"
#include "support/BareMemory.h"

// A part of a scaled picture, ready to be painted.
class ScaledPicture {
 public:
  // `part` of the picture scaled (bilinear) to `box`. `blend`: by the picture's alpha, else opaque.
  // Empty when there is no picture or no memory for it.
  ScaledPicture(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part, bool blend);

  void Paint(Drawable& drawable) const;
  // The same with the left upper corner at (x, y).
  void PaintAt(Drawable& drawable, gint64 x, gint64 y) const;
  std::size_t PixelCount() const { return pixels_.size(); }

 private:
  // Pixels of a row that are painted in the same way; those that do not show are in no run.
  struct Run {
    gint32 x;
    gint32 y;
    gint32 Length;
    bool Mixed;  // with what is below
  };
  // Takes the part of the picture that begins at (left, top).
  void Take(const GdkPixbuf* picture, gint64 left, gint64 top, bool blend);
  void FindRuns();

  PlaneBox part_;
  std::vector<guint32, BareMemory<guint32>> pixels_;  // 0xAARRGGBB, row by row
  std::vector<Run> runs_;
};

// Null when `picture` is or the memory cannot be had: a copy in which one colour is transparent.
PixbufPtr WithTransparent(const GdkPixbuf* picture, guint8 red, guint8 green, guint8 blue);
