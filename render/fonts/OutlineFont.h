// Characters from the system's scalable fonts, for charsets that no bitmap font covers.
#pragma once

#include <memory>
#include <string>

#include "render/fonts/Glyph.h"

struct OutlineFontStyle {
  std::string Family;  // "" or "*" = any
  bool Bold = false;
  bool Slanted = false;
  gint Pixels = 0;
};

// Which charset the codes are of.
enum class Charset { Ascii, Kanji, Kana, Supplement };

std::shared_ptr<GlyphSource> OpenOutlineFont(const OutlineFontStyle& style, Charset charset);
