// Small pictures as text, so that a test shows what it expects.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "render/Primitives.h"

// White paper; drawn on in the colours below, "?" is any other.
class Paper {
 public:
  Paper(gint width, gint height, gint x = 0, gint y = 0) : Surface(width, height, x, y) {
    DrawColr[0] = {0x8000, 0x8000, 0x8000, 0x808080};
    DrawColr[1] = {0, 0xffff, 0, 0x00ff00};
    DrawColr[ColourWhite] = {0xffff, 0xffff, 0xffff, 0xffffff};
    DrawColr[ColourBlack] = {0, 0, 0, 0x000000};
    DrawColr[ColourRed] = {0xffff, 0, 0, 0xff0000};
    FillPixels(&Surface, x, y, width, height, 0xffffff);
  }

  // Rows of pixels: "." white, "#" black, "r" red, "g" green, "o" grey.
  std::string Text() const {
    std::string text = "\n";
    for (gint y = 0; y < Surface.Height(); ++y) {
      for (gint x = 0; x < Surface.Width(); ++x) {
        text += Character(Surface.At(Surface.X() + x, Surface.Y() + y));
      }
      text += '\n';
    }
    return text;
  }

  Drawable Surface;
  DrawGc Gc;

 private:
  static char Character(guint32 rgb) {
    switch (rgb) {
      case 0xffffff:
        return '.';
      case 0x000000:
        return '#';
      case 0xff0000:
        return 'r';
      case 0x00ff00:
        return 'g';
      case 0x808080:
        return 'o';
      default:
        return '?';
    }
  }
};
