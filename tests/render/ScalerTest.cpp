// A picture scaled in parts looks as the image library scales it as a whole.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <random>

#include "render/surface/Scaler.h"

namespace {

constexpr gint Width = 301;
constexpr gint Height = 153;

void Paint(GdkPixbuf* picture, const PlaneBox& box, const std::function<guchar()>& byte) {
  const gint channels = gdk_pixbuf_get_n_channels(picture);
  for (gint64 y = box.y1; y < box.y2; ++y) {
    guchar* row = gdk_pixbuf_get_pixels(picture) + y * gdk_pixbuf_get_rowstride(picture);
    for (gint64 x = box.x1 * channels; x < box.x2 * channels; ++x) row[x] = byte();
  }
}

// Plain areas of several colours and opacities, a busy one, and single pixels between and at the
// corners.
PixbufPtr Patchwork(bool alpha) {
  PixbufPtr picture(gdk_pixbuf_new(GDK_COLORSPACE_RGB, alpha, 8, Width, Height));
  gdk_pixbuf_fill(picture.get(), 0xfffefdff);
  std::mt19937 random(7);
  const auto any = [&] { return static_cast<guchar>(random()); };
  Paint(picture.get(), {100, 20, 180, 60}, any);
  Paint(picture.get(), {20, 70, 290, 90}, [] { return guchar{0x21}; });
  Paint(picture.get(), {0, 100, 140, Height}, [] { return guchar{0}; });
  for (const POINT& dot : {POINT{0, 0}, POINT{Width - 1, 0}, POINT{0, Height - 1},
                           POINT{Width - 1, Height - 1}, POINT{60, 40}, POINT{200, 120}}) {
    Paint(picture.get(), {dot.x, dot.y, dot.x + 1, dot.y + 1}, any);
  }
  return picture;
}

PixbufPtr Whole(const GdkPixbuf* picture, gint width, gint height) {
  return PixbufPtr(gdk_pixbuf_scale_simple(picture, width, height, GDK_INTERP_BILINEAR));
}

// "" or where the first difference lies.
std::string Difference(GdkPixbuf* part, GdkPixbuf* whole, const PlaneBox& at) {
  const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(whole));
  for (gint64 y = at.y1; y < at.y2; ++y) {
    const guchar* a = gdk_pixbuf_get_pixels(part) + (y - at.y1) * gdk_pixbuf_get_rowstride(part);
    const guchar* b = gdk_pixbuf_get_pixels(whole) + y * gdk_pixbuf_get_rowstride(whole) +
                      at.x1 * gdk_pixbuf_get_n_channels(whole);
    if (std::memcmp(a, b, static_cast<std::size_t>(at.x2 - at.x1) * channels) != 0) {
      return "row " + std::to_string(y);
    }
  }
  return "";
}

class Scaler : public testing::TestWithParam<std::tuple<bool, SIZE>> {};

TEST_P(Scaler, GivesThePixelsOfTheWhole) {
  const auto [alpha, size] = GetParam();
  const PixbufPtr picture = Patchwork(alpha);
  const PixbufPtr whole = Whole(picture.get(), size.cx, size.cy);
  // The box lies anywhere on the plane.
  const PlaneBox box{-50, 1000, size.cx - 50, 1000 + size.cy};
  for (const PlaneBox& at :
       {PlaneBox{0, 0, size.cx, size.cy}, PlaneBox{size.cx / 3, size.cy / 5, size.cx, size.cy},
        PlaneBox{0, 0, size.cx / 2, size.cy / 2 + 1}}) {
    if (at.Empty()) continue;
    const PixbufPtr part = ScaledPart(
        picture.get(), box, {box.x1 + at.x1, box.y1 + at.y1, box.x1 + at.x2, box.y1 + at.y2});
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(Difference(part.get(), whole.get(), at), "");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, Scaler,
    testing::Combine(testing::Bool(),
                     testing::Values(SIZE{240, 130}, SIZE{301, 400}, SIZE{1000, 153},
                                     SIZE{907, 611}, SIZE{150, 76}, SIZE{31, 17}, SIZE{7, 5},
                                     SIZE{1, 1}, SIZE{300, 1}, SIZE{2411, 1223})));

}  // namespace
