// What draws EUC-JP text: the fonts of each charset that a descriptor names.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "render/Surface.h"
#include "render/fonts/Glyph.h"
#include "render/fonts/OutlineFont.h"

// Extents of a line of text. Ink bearings count from the text's origin on the baseline.
struct TextExtents {
  gint Left = 0;
  gint Right = 0;
  gint Ascent = 0;
  gint Descent = 0;
  gint Width = 0;  // sum of the advances
};

class FontSet {
 public:
  // An X font descriptor or alias. The fonts are looked up when a text first needs them.
  explicit FontSet(const std::string& descriptor);

  TextExtents Measure(std::string_view euc);
  // Draws with the origin at (x, baseline).
  void Draw(Drawable& drawable, gint64 x, gint64 baseline, guint32 rgb, std::string_view euc);
  // Whether a bitmap font of the descriptor itself covers ASCII.
  bool NamesBitmapFont();

 private:
  // The descriptor, an alias replaced by what it stands for.
  const std::string& Resolved();
  GlyphSource& Source(Charset charset);
  template <typename Visit>
  void VisitGlyphs(std::string_view euc, Visit visit);

  std::string descriptor_;
  bool resolved_ = false;
  std::array<std::shared_ptr<GlyphSource>, 4> sources_;
};

// Names to look for, best first, for one charset pattern such as "jisx0208.*-0": the descriptor
// with the charset put in, then with resolutions and average width left free.
std::vector<std::string> ExactNames(const std::string& descriptor, const std::string& charset);
// Of the same size, weight and slant: from the same foundry, then from any.
std::vector<std::string> RelatedNames(const std::string& descriptor, const std::string& charset);
