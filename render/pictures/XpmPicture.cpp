#include "render/pictures/XpmPicture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <array>
#include <cstdio>
#include <optional>
#include <string_view>

namespace {

constexpr gint MaxSide = 256;
constexpr gint MaxColours = 16;

struct Rgb {
  guchar Red = 0;
  guchar Green = 0;
  guchar Blue = 0;
};

Rgb ParseColour(std::string_view line) {
  const auto sharp = line.find('#');
  if (sharp == std::string_view::npos || line.size() - sharp < 7) return {};
  std::array<guchar, 3> channels{};
  for (std::size_t i = 0; i < 3; ++i) {
    const gint high = g_ascii_xdigit_value(line[sharp + 1 + 2 * i]);
    const gint low = g_ascii_xdigit_value(line[sharp + 2 + 2 * i]);
    if (high < 0 || low < 0) return {};
    channels[i] = static_cast<guchar>(high << 4 | low);
  }
  return {channels[0], channels[1], channels[2]};
}

using ColourTable = std::array<Rgb, 256>;

ColourTable ReadColours(const gchar* const* lines, gint count) {
  ColourTable table;
  table.fill(ParseColour(lines[0]));
  for (gint i = count - 1; i >= 0; --i) {
    if (lines[i][0] != '\0') table[static_cast<guchar>(lines[i][0])] = ParseColour(lines[i]);
  }
  return table;
}

struct Header {
  gint Width = 0;
  gint Height = 0;
  gint Colours = 0;
};

std::optional<Header> ReadHeader(const gchar* const* xpm) {
  Header header;
  gint characters = 0;
  if (xpm == nullptr || xpm[0] == nullptr ||
      std::sscanf(xpm[0], "%d %d %d %d", &header.Width, &header.Height, &header.Colours,
                  &characters) != 4 ||
      header.Width < 1 || header.Height < 1 || header.Width > MaxSide || header.Height > MaxSide ||
      header.Colours < 1 || header.Colours > MaxColours || characters != 1) {
    return std::nullopt;
  }
  return header;
}

}  // namespace

gint XpmLineCount(const gchar* const* xpm) {
  const std::optional<Header> header = ReadHeader(xpm);
  return header ? 1 + header->Colours + header->Height : 0;
}

PixbufPtr PixbufFromXpm(const gchar* const* xpm) {
  const std::optional<Header> header = ReadHeader(xpm);
  if (!header) return nullptr;
  const auto [width, height, colours] = *header;
  PixbufPtr pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width, height));
  if (!pixbuf) return nullptr;
  const ColourTable table = ReadColours(xpm + 1, colours);
  for (gint y = 0; y < height; ++y) {
    const std::string_view row = xpm[1 + colours + y];
    guchar* out = gdk_pixbuf_get_pixels(pixbuf.get()) +
                  static_cast<std::ptrdiff_t>(y) * gdk_pixbuf_get_rowstride(pixbuf.get());
    for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
      const Rgb& rgb = table[x < row.size() ? static_cast<guchar>(row[x]) : 0];
      *out++ = rgb.Red;
      *out++ = rgb.Green;
      *out++ = rgb.Blue;
    }
  }
  return pixbuf;
}
