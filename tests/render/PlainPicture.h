// The drawing rules said a second time, pixel by pixel and with no regard to speed, to check the
// painted items against. Colours are palette numbers of the scene.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "render/Surface.h"
#include "tests/render/Scene.h"

class PlainPicture {
 public:
  // Pixels that the check leaves out.
  static constexpr gint Anything = -1;

  PlainPicture(gint width, gint height, gint colour)
      : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), colour) {}

  void Plot(gint x, gint y, gint colour) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    pixels_[static_cast<std::size_t>(y * width_ + x)] = colour;
  }

  // w x h pixels, whatever the order of the corners.
  void Fill(gint x1, gint y1, gint x2, gint y2, gint colour) {
    for (gint y = std::min(y1, y2); y < std::max(y1, y2); ++y) {
      for (gint x = std::min(x1, x2); x < std::max(x1, x2); ++x) Plot(x, y, colour);
    }
  }

  // The border of (w + 1) x (h + 1) pixels.
  void Ring(gint x1, gint y1, gint x2, gint y2, gint colour) {
    for (gint x = std::min(x1, x2); x <= std::max(x1, x2); ++x) {
      Plot(x, y1, colour);
      Plot(x, y2, colour);
    }
    for (gint y = std::min(y1, y2); y <= std::max(y1, y2); ++y) {
      Plot(x1, y, colour);
      Plot(x2, y, colour);
    }
  }

  // A level or upright line from one end to the other, both included. Dashes count from the first.
  void Stroke(gint x1, gint y1, gint x2, gint y2, gint style, gint colour) {
    const gint stepX = (x2 > x1) - (x2 < x1);
    const gint stepY = (y2 > y1) - (y2 < y1);
    const gint last = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    for (gint at = 0; at <= last; ++at) {
      const bool on = style == 0 || (style == 1 ? at % 16 < 12 : at % 6 < 4);
      if (on) Plot(x1 + at * stepX, y1 + at * stepY, colour);
    }
  }

  // A level or upright line of some width.
  void ThickStroke(gint x1, gint y1, gint x2, gint y2, gint style, gint width, gint position,
                   gint colour) {
    const bool upright = x1 == x2;
    for (gint k = 0; k < width; ++k) {
      gint shift = k;                                                // below or right
      if (position == 0) shift = k % 2 == 0 ? k / 2 : -(k + 1) / 2;  // 0, -1, 1, -2, 2
      if (position == 1) shift = -(k + 1);                           // above or left
      if (width == 1) shift = 0;
      const gint dx = upright ? shift : 0;
      const gint dy = upright ? 0 : shift;
      Stroke(x1 + dx, y1 + dy, x2 + dx, y2 + dy, style, colour);
    }
  }

  void Rectangle(gint x1, gint y1, gint x2, gint y2, gint width, gint position, gint line,
                 gint fill) {
    if (fill >= 0) Fill(x1, y1, x2, y2, fill);
    for (gint k = 0; k < width; ++k) {
      gint inset = -(k + 1);
      if (position == 0) inset = k % 2 == 0 ? k / 2 : -(k / 2 + 1);
      if (position == 1) inset = k;
      Ring(x1 + inset, y1 + inset, x2 - inset, y2 - inset, line);
    }
  }

  struct Sides {
    gint Top;
    gint Bottom;
    gint Left;
    gint Right;
  };
  void FramedBox(gint x1, gint y1, gint x2, gint y2, const Sides& width, const Sides& colour,
                 gint area) {
    for (gint y = y1; y < y2; ++y) {
      for (gint x = x1; x < x2; ++x) Plot(x, y, area);
    }
    for (gint k = 0; k < width.Top; ++k) Stroke(x1, y1 + k, x2, y1 + k, 0, colour.Top);
    for (gint k = 1; k <= width.Bottom; ++k) Stroke(x1, y2 - k, x2, y2 - k, 0, colour.Bottom);
    for (gint k = 0; k < width.Left; ++k) Stroke(x1 + k, y1, x1 + k, y2, 0, colour.Left);
    for (gint k = 1; k <= width.Right; ++k) Stroke(x2 - k, y1, x2 - k, y2, 0, colour.Right);
  }

  // The first pixel that differs, as a failure; the rest would tell the same again.
  testing::AssertionResult Equals(const Drawable& painted) const {
    for (gint y = 0; y < height_; ++y) {
      for (gint x = 0; x < width_; ++x) {
        const gint colour = pixels_[static_cast<std::size_t>(y * width_ + x)];
        if (colour == Anything || painted.At(x, y) == InkPixel[colour]) continue;
        return testing::AssertionFailure() << "pixel " << x << ", " << y << " is " << std::hex
                                           << painted.At(x, y) << ", expected " << InkPixel[colour];
      }
    }
    return testing::AssertionSuccess();
  }

 private:
  gint width_;
  gint height_;
  std::vector<gint> pixels_;
};
