// Characters from the system's scalable fonts, for charsets that no bitmap font covers.
#pragma once

#include <memory>
#include <string>

#include "render/fonts/Glyph.h"

struct OutlineFontStyle {
  std::string family;  // "" or "*" = any
  bool bold = false;
  bool slanted = false;
  gint pixels = 0;
};

// Which charset the codes are of.
enum class Charset { Ascii, Kanji, Kana, Supplement };

std::shared_ptr<GlyphSource> OpenOutlineFont(const OutlineFontStyle& style, Charset charset);
