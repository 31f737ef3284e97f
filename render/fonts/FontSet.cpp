#include "render/fonts/FontSet.h"

#include <algorithm>

#include "render/fonts/BitmapFont.h"
#include "render/fonts/FontCatalogue.h"
#include "render/surface/Paint.h"
#include "support/Resource.h"

namespace {

// Fields of a descriptor, from 1 on; field 0 is the empty text before the first "-".
enum Field {
  Foundry = 1,
  Family,
  Weight,
  Slant,
  Width,
  AddStyle,
  Pixels,
  Points,
  ResolutionX,
  ResolutionY,
  Spacing,
  AverageWidth,
  Registry,
  Encoding,
  FieldCount
};

const std::string Any = "*";

// Charset names of the fonts that serve a charset, best first.
const std::vector<std::string>& CharsetNames(Charset charset) {
  static const std::vector<std::string> names[] = {
      {"iso8859-1", "jisx0201.1976-0"}, {"jisx0208.*-0"}, {"jisx0201.1976-0"}, {"jisx0212.*-0"}};
  return names[static_cast<int>(charset)];
}

std::vector<std::string> Split(const std::string& descriptor) {
  std::vector<std::string> fields(1);
  for (const char c : descriptor) {
    if (c == '-') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

std::string Join(const std::vector<std::string>& fields, std::size_t count) {
  std::string joined = fields[0];
  for (std::size_t i = 1; i < count; ++i) {
    joined += '-';
    joined += fields[i];
  }
  return joined;
}

bool IsFull(const std::vector<std::string>& fields) {
  return fields.size() == FieldCount && fields[0].empty();
}

std::shared_ptr<GlyphSource> OpenFirst(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const std::string file = FontCatalogue::Get().FindFile(name);
    if (file.empty()) continue;
    if (auto font = OpenBitmapFont(file)) return font;
  }
  return nullptr;
}

using NameMaker = std::vector<std::string> (*)(const std::string&, const std::string&);

std::shared_ptr<GlyphSource> OpenBitmap(const std::string& descriptor, Charset charset,
                                        NameMaker makeNames) {
  for (const std::string& name : CharsetNames(charset)) {
    if (auto font = OpenFirst(makeNames(descriptor, name))) return font;
  }
  return nullptr;
}

OutlineFontStyle StyleOf(const std::string& descriptor) {
  const std::vector<std::string> fields = Split(descriptor);
  const auto field = [&](std::size_t i) { return i < fields.size() ? fields[i] : std::string(); };
  const gint height = FontDescriptorHeight(descriptor.c_str());
  return {field(Family), field(Weight) == "bold", field(Slant) == "i" || field(Slant) == "o",
          height > 0 ? height : 16};
}

}  // namespace

std::vector<std::string> ExactNames(const std::string& descriptor, const std::string& charset) {
  const std::vector<std::string> fields = Split(descriptor);
  if (!IsFull(fields)) {
    // Short of its last fields, or "*" stands for several of them.
    const std::size_t kept = std::min<std::size_t>(fields.size(), Registry);
    const std::string joined = Join(fields, kept) + "-" + charset;
    return {joined, Join(fields, kept) + "*-" + charset};
  }
  std::vector<std::string> free = fields;
  free[ResolutionX] = free[ResolutionY] = free[AverageWidth] = Any;
  return {Join(fields, Registry) + "-" + charset, Join(free, Registry) + "-" + charset};
}

std::vector<std::string> RelatedNames(const std::string& descriptor, const std::string& charset) {
  const std::vector<std::string> fields = Split(descriptor);
  if (!IsFull(fields) || (fields[Pixels] == Any && fields[Points] == Any)) return {};
  std::vector<std::string> free(Registry, Any);
  free[0].clear();
  free[Foundry] = fields[Foundry];
  free[Weight] = fields[Weight];
  free[Slant] = fields[Slant];
  free[fields[Pixels] == Any ? Points : Pixels] = fields[fields[Pixels] == Any ? Points : Pixels];
  const std::string sameFoundry = Join(free, Registry) + "-" + charset;
  free[Foundry] = Any;
  return {sameFoundry, Join(free, Registry) + "-" + charset};
}

FontSet::FontSet(const std::string& descriptor) : descriptor_(descriptor) {}

const std::string& FontSet::Resolved() {
  if (!resolved_) {
    descriptor_ = FontCatalogue::Get().ResolveAlias(descriptor_);
    resolved_ = true;
  }
  return descriptor_;
}

bool FontSet::NamesBitmapFont() {
  return OpenBitmap(Resolved(), Charset::Ascii, ExactNames) != nullptr;
}

GlyphSource& FontSet::Source(Charset charset) {
  std::shared_ptr<GlyphSource>& source = sources_[static_cast<std::size_t>(charset)];
  if (!source) source = OpenBitmap(Resolved(), charset, ExactNames);
  if (!source) source = OpenBitmap(Resolved(), charset, RelatedNames);
  if (!source) source = OpenOutlineFont(StyleOf(Resolved()), charset);
  return *source;
}

// Calls visit(glyph, x of its origin) for each character. Bytes that are no EUC-JP are passed over.
template <typename Visit>
void FontSet::VisitGlyphs(std::string_view euc, Visit visit) {
  gint64 x = 0;
  const auto byte = [&](std::size_t i) -> guint {
    return i < euc.size() ? static_cast<guchar>(euc[i]) : 0;
  };
  const auto high = [](guint value) { return value >= 0xa1 && value <= 0xfe; };
  const auto place = [&](Charset charset, guint code) {
    const Glyph& glyph = Source(charset).Find(code);
    visit(glyph, x);
    x += glyph.Advance;
  };
  for (std::size_t i = 0; i < euc.size();) {
    const guint lead = byte(i);
    if (lead < 0x80) {
      place(Charset::Ascii, lead);
      i += 1;
    } else if (lead == 0x8e && high(byte(i + 1))) {
      place(Charset::Kana, byte(i + 1));
      i += 2;
    } else if (lead == 0x8f && high(byte(i + 1)) && high(byte(i + 2))) {
      place(Charset::Supplement, (byte(i + 1) << 8 | byte(i + 2)) & 0x7f7f);
      i += 3;
    } else if (high(lead) && high(byte(i + 1))) {
      place(Charset::Kanji, (lead << 8 | byte(i + 1)) & 0x7f7f);
      i += 2;
    } else {
      i += 1;
    }
  }
}

TextExtents FontSet::Measure(std::string_view euc) {
  TextExtents extents;
  bool first = true;
  VisitGlyphs(euc, [&](const Glyph& glyph, gint64 at) {
    const gint x = static_cast<gint>(at);
    if (first) {
      extents = {glyph.Left, glyph.Right, glyph.Ascent, glyph.Descent, glyph.Advance};
      first = false;
      return;
    }
    extents.Left = std::min(extents.Left, x + glyph.Left);
    extents.Right = std::max(extents.Right, x + glyph.Right);
    extents.Ascent = std::max(extents.Ascent, glyph.Ascent);
    extents.Descent = std::max(extents.Descent, glyph.Descent);
    extents.Width = x + glyph.Advance;
  });
  return extents;
}

void FontSet::Draw(Drawable& drawable, gint64 x, gint64 baseline, guint32 rgb,
                   std::string_view euc) {
  VisitGlyphs(euc, [&](const Glyph& glyph, gint64 at) {
    for (const GlyphRun& run : glyph.Runs) {
      const gint64 left = x + at + run.x;
      const gint64 top = baseline + run.y;
      FillBox(drawable, {left, top, left + run.Length, top + 1}, rgb);
    }
  });
}
