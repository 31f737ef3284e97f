// Characters as pixels, from whatever font they come.
#pragma once

#include <glib.h>

#include <vector>

// Pixels of one row of a glyph, from its origin on the baseline; y grows downwards.
struct GlyphRun {
  gint16 x;
  gint16 y;
  gint16 Length;
};

// Bearings count from the origin: left to the first, right to behind the last column.
struct Glyph {
  gint Left = 0;
  gint Right = 0;
  gint Ascent = 0;
  gint Descent = 0;
  gint Advance = 0;
  std::vector<GlyphRun> Runs;
};

// The characters of one charset in one font.
class GlyphSource {
 public:
  GlyphSource() = default;
  GlyphSource(const GlyphSource&) = delete;
  GlyphSource& operator=(const GlyphSource&) = delete;
  virtual ~GlyphSource() = default;
  // The glyph of a code of the charset; lives as long as the source.
  virtual const Glyph& Find(guint code) = 0;
};
