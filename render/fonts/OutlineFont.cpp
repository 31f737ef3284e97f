#include "render/fonts/OutlineFont.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <unordered_map>

#include "support/Text.h"

namespace {

constexpr gint MaxPixels = 256;

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
  void operator()(PangoFontDescription* text) const { pango_font_description_free(text); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
template <typename T>
using Held = std::unique_ptr<T, Unref>;

std::string EucBytes(Charset charset, guint code) {
  const char low = static_cast<char>(code & 0xff);
  const char lowSet = static_cast<char>((code & 0xff) | 0x80);
  const char highSet = static_cast<char>(code >> 8 | 0x80);
  switch (charset) {
    case Charset::Ascii:
      return {low};
    case Charset::Kana:
      return {'\x8e', low};
    case Charset::Kanji:
      return {highSet, lowSet};
    case Charset::Supplement:
      return {'\x8f', highSet, lowSet};
  }
  return {};
}

class OutlineFont : public GlyphSource {
 public:
  OutlineFont(const OutlineFontStyle& style, Charset charset)
      : charset_(charset),
        context_(pango_font_map_create_context(pango_cairo_font_map_get_default())),
        layout_(pango_layout_new(context_.get())) {
    const Held<cairo_font_options_t> options(cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_NONE);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_FULL);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_ON);
    pango_cairo_context_set_font_options(context_.get(), options.get());
    const bool anyFamily = style.Family.empty() || style.Family == "*";
    const std::string family = anyFamily ? "monospace" : style.Family + ",monospace";
    const Held<PangoFontDescription> font(pango_font_description_new());
    pango_font_description_set_family(font.get(), family.c_str());
    pango_font_description_set_weight(font.get(),
                                      style.Bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(font.get(),
                                     style.Slanted ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    pango_font_description_set_absolute_size(
        font.get(), std::clamp(style.Pixels, 1, MaxPixels) * double{PANGO_SCALE});
    pango_layout_set_font_description(layout_.get(), font.get());
  }

  const Glyph& Find(guint code) override {
    const auto [place, isNew] = glyphs_.try_emplace(code);
    if (isNew) place->second = Load(code);
    return place->second;
  }

 private:
  Glyph Load(guint code) const {
    const auto text = Utf8FromEuc(EucBytes(charset_, code));
    if (!text || text->empty() || static_cast<guchar>(text->front()) < 0x20) return {};
    pango_layout_set_text(layout_.get(), text->data(), static_cast<int>(text->size()));
    PangoRectangle ink, logical;
    pango_layout_get_pixel_extents(layout_.get(), &ink, &logical);
    const int baseline = PANGO_PIXELS(pango_layout_get_baseline(layout_.get()));
    Glyph glyph{
        ink.x, ink.x + ink.width, baseline - ink.y, ink.y + ink.height - baseline, logical.width,
        {}};
    Draw(ink, baseline, glyph);
    return glyph;
  }

  void Draw(const PangoRectangle& ink, int baseline, Glyph& glyph) const {
    const Held<cairo_surface_t> surface(cairo_image_surface_create(
        CAIRO_FORMAT_A8, std::max(ink.width, 1), std::max(ink.height, 1)));
    const Held<cairo_t> cairo(cairo_create(surface.get()));
    cairo_set_antialias(cairo.get(), CAIRO_ANTIALIAS_NONE);
    cairo_move_to(cairo.get(), -ink.x, -ink.y);
    pango_cairo_show_layout(cairo.get(), layout_.get());
    cairo_surface_flush(surface.get());
    const guchar* data = cairo_image_surface_get_data(surface.get());
    if (data == nullptr) return;
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < ink.height; ++y) {
      const guchar* row = data + static_cast<std::ptrdiff_t>(y) * stride;
      for (int x = 0; x < ink.width; ++x) {
        if (row[x] >= 0x80) {
          glyph.Runs.push_back(
              {static_cast<gint16>(ink.x + x), static_cast<gint16>(ink.y + y - baseline), 1});
        }
      }
    }
  }

  Charset charset_;
  Held<PangoContext> context_;
  Held<PangoLayout> layout_;
  std::unordered_map<guint, Glyph> glyphs_;
};

}  // namespace

std::shared_ptr<GlyphSource> OpenOutlineFont(const OutlineFontStyle& style, Charset charset) {
  return std::make_shared<OutlineFont>(style, charset);
}
