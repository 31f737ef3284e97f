#include "render/fonts/BitmapFont.h"

#include <ft2build.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "support/FileTools.h"
#include FT_FREETYPE_H
#include FT_GZIP_H
#include FT_SYSTEM_H

namespace {

constexpr std::size_t MaxFontBytes = std::size_t{64} << 20;
// No packing of this kind makes a file smaller than by this factor.
constexpr std::size_t MostPacking = 1032;

using FontLibrary = std::shared_ptr<FT_LibraryRec_>;

FontLibrary Library() {
  static const FontLibrary library = [] {
    FT_Library opened = nullptr;
    FT_Init_FreeType(&opened);
    return FontLibrary(opened, [](FT_Library l) {
      if (l != nullptr) FT_Done_FreeType(l);
    });
  }();
  return library;
}

// Unpacked at once: FreeType would unpack from the start again for each step back in the file. The
// last four bytes tell the size.
std::string Unpacked(const std::string& packed) {
  guint32 size = 0;
  if (packed.size() < sizeof size) return {};
  std::memcpy(&size, packed.data() + packed.size() - sizeof size, sizeof size);
  size = GUINT32_FROM_LE(size);
  if (size > MaxFontBytes || size / MostPacking > packed.size()) return {};
  FT_MemoryRec_ memory{
      nullptr, [](FT_Memory, long bytes) { return g_try_malloc(bytes); },
      [](FT_Memory, void* block) { g_free(block); },
      [](FT_Memory, long, long bytes, void* block) { return g_try_realloc(block, bytes); }};
  std::string plain(size, '\0');
  FT_ULong written = size;
  const FT_Error error = FT_Gzip_Uncompress(
      &memory, reinterpret_cast<FT_Byte*>(plain.data()), &written,
      reinterpret_cast<const FT_Byte*>(packed.data()), static_cast<FT_ULong>(packed.size()));
  plain.resize(error == 0 ? written : 0);
  return plain;
}

std::vector<GlyphRun> RunsOf(const FT_Bitmap& bitmap, int left, int top) {
  std::vector<GlyphRun> runs;
  for (unsigned y = 0; y < bitmap.rows; ++y) {
    const unsigned char* row = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
    const auto isSet = [&](unsigned x) { return (row[x / 8] & 0x80 >> x % 8) != 0; };
    for (unsigned x = 0; x < bitmap.width; ++x) {
      const unsigned start = x;
      while (x < bitmap.width && isSet(x)) ++x;
      if (x > start) {
        runs.push_back({static_cast<gint16>(left + static_cast<int>(start)),
                        static_cast<gint16>(static_cast<int>(y) - top),
                        static_cast<gint16>(x - start)});
      }
    }
  }
  return runs;
}

// Whether a font file carries the metrics of its ink beside those of its cells, which are all
// alike. Extents then count the ink.
bool CountsInk(std::string_view content) {
  constexpr std::string_view Signature = "\001fcp";
  constexpr std::size_t FirstEntry = 8, EntrySize = 16;
  constexpr guint32 InkMetrics = 1 << 4;
  const auto number = [content](std::size_t at) {
    guint32 value = 0;
    if (at + sizeof value <= content.size()) std::memcpy(&value, content.data() + at, sizeof value);
    return GUINT32_FROM_LE(value);
  };
  if (!content.starts_with(Signature)) return false;
  const std::size_t count = std::min<std::size_t>(number(4), content.size() / EntrySize);
  for (std::size_t entry = 0; entry < count; ++entry) {
    if (number(FirstEntry + entry * EntrySize) == InkMetrics) return true;
  }
  return false;
}

// A blank has its place, but no width and no height.
void MeasureInk(Glyph& glyph) {
  if (glyph.Runs.empty()) {
    glyph.Right = glyph.Left;
    glyph.Ascent = glyph.Descent = 0;
    return;
  }
  glyph.Left = G_MAXINT16;
  glyph.Right = G_MININT16;
  for (const GlyphRun& run : glyph.Runs) {
    glyph.Left = std::min<gint>(glyph.Left, run.x);
    glyph.Right = std::max<gint>(glyph.Right, run.x + run.Length);
  }
  glyph.Ascent = -glyph.Runs.front().y;
  glyph.Descent = glyph.Runs.back().y + 1;
}

class BitmapFont : public GlyphSource {
 public:
  explicit BitmapFont(std::string content)
      : content_(std::move(content)), countsInk_(CountsInk(content_)), library_(Library()) {
    FT_New_Memory_Face(library_.get(), reinterpret_cast<const FT_Byte*>(content_.data()),
                       static_cast<FT_Long>(content_.size()), 0, &face_);
    if (Valid()) {
      FT_Select_Size(face_, 0);
      FT_Set_Charmap(face_, face_->charmaps[0]);
    }
  }
  ~BitmapFont() override {
    if (face_ != nullptr) FT_Done_Face(face_);
  }
  bool Valid() const {
    return face_ != nullptr && face_->num_charmaps > 0 && face_->num_fixed_sizes > 0;
  }
  const Glyph& Find(guint code) override {
    const auto [place, isNew] = glyphs_.try_emplace(code);
    if (isNew) place->second = Load(code);
    return place->second;
  }

 private:
  // Index 0, which stands for every missing code, is the font's default character.
  Glyph Load(guint code) const {
    Glyph glyph;
    if (FT_Load_Glyph(face_, FT_Get_Char_Index(face_, code), FT_LOAD_RENDER | FT_LOAD_MONOCHROME)) {
      return glyph;
    }
    const FT_GlyphSlot slot = face_->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    glyph.Left = slot->bitmap_left;
    glyph.Right = slot->bitmap_left + static_cast<gint>(bitmap.width);
    glyph.Ascent = slot->bitmap_top;
    glyph.Descent = static_cast<gint>(bitmap.rows) - slot->bitmap_top;
    glyph.Advance = static_cast<gint>(slot->advance.x >> 6);
    if (bitmap.pixel_mode == FT_PIXEL_MODE_MONO) {
      glyph.Runs = RunsOf(bitmap, slot->bitmap_left, slot->bitmap_top);
    }
    if (countsInk_) MeasureInk(glyph);
    return glyph;
  }

  std::string content_;
  bool countsInk_;
  FontLibrary library_;
  FT_Face face_ = nullptr;
  std::unordered_map<guint, Glyph> glyphs_;
};

std::shared_ptr<GlyphSource> ReadBitmapFont(const std::string& path) {
  std::optional<std::string> content = ReadWholeFile(path, MaxFontBytes);
  if (content && content->starts_with("\x1f\x8b")) content = Unpacked(*content);
  if (!content || content->empty()) return nullptr;
  auto font = std::make_shared<BitmapFont>(std::move(*content));
  return font->Valid() ? font : nullptr;
}

}  // namespace

std::shared_ptr<GlyphSource> OpenBitmapFont(const std::string& path) {
  static std::map<std::string, std::shared_ptr<GlyphSource>> fonts;
  const auto [place, isNew] = fonts.try_emplace(path);
  if (isNew) place->second = ReadBitmapFont(path);
  return place->second;
}
