#include "render/fonts/DrawFonts.h"

#include "layout/Guards.h"
#include "render/FontTable.h"
#include "support/Resource.h"

namespace {

constexpr const char* SmallFontName = "-alias-*-medium-r-*-*-14-*-*-*-*-*-*-*";
// Few machines have a font that the first name matches.
constexpr const char* SmallFontSubstitute = "-*-fixed-medium-r-*-*-14-*-*-*-*-*-*-*";

// Fonts 0..19 and the small font.
std::array<std::unique_ptr<FontSet>, FontCount + 1> DrawFont;
static_assert(SmallFont == FontCount);

std::unique_ptr<FontSet> SmallFontSet() {
  auto font = std::make_unique<FontSet>(SmallFontName);
  return font->NamesBitmapFont() ? std::move(font) : std::make_unique<FontSet>(SmallFontSubstitute);
}

}  // namespace

FontSet* DrawFontOf(gint font) {
  if (!IsFont(font)) return nullptr;
  std::unique_ptr<FontSet>& set = DrawFont[static_cast<std::size_t>(font)];
  if (font == SmallFont && !set) set = SmallFontSet();
  return set.get();
}

gint LineHeightOf(gint font) {
  if (font == SmallFont) return FontDescriptorHeight(SmallFontName);
  return font >= 0 && font < FontCount ? FontHeight[font] : 0;
}

void ForgetSmallFont() {
  DrawFont[SmallFont].reset();
}

void LoadDrawFont(gint font, const gchar* descriptor) {
  auto& loaded = DrawFont[static_cast<std::size_t>(font)];
  loaded.reset();
  if (*descriptor != '\0') loaded = std::make_unique<FontSet>(descriptor);
}
