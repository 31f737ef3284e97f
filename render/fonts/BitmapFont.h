// A bitmap font file (.pcf, .pcf.gz).
#pragma once

#include <memory>
#include <string>

#include "render/fonts/Glyph.h"

// The font of a file, shared by all who ask for it; null when the file holds none.
std::shared_ptr<GlyphSource> OpenBitmapFont(const std::string& path);
