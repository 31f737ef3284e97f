#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

#include <random>

#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

constexpr gint Zooms[] = {50, 75, 100, 200, 500};

void Scribble(Drawable& surface) {
  std::mt19937 random(3);
  for (gint y = 0; y < surface.Height(); ++y) {
    for (gint x = 0; x < surface.Width(); ++x) {
      FillPixels(&surface, x, y, 1, 1, random() & 0xffffff);
    }
  }
}

TEST(Zoom, PartEqualsTheSamePartOfTheWhole) {
  Drawable picture(61, 47);
  Scribble(picture);
  for (const gint zoom : Zooms) {
    const gint width = 61 * zoom / 100, height = 47 * zoom / 100;
    Drawable whole(width, height), part(13, 11, width / 3, height / 2);
    PaintZoomed(whole, picture, width, height);
    PaintZoomed(part, picture, width, height);
    for (gint y = part.Y(); y < std::min(part.Y() + 11, height); ++y) {
      for (gint x = part.X(); x < std::min(part.X() + 13, width); ++x) {
        ASSERT_EQ(part.At(x, y), whole.At(x, y)) << zoom << " % at " << x << "," << y;
      }
    }
  }
}

TEST(Zoom, WholeEqualsThePlainScaler) {
  Drawable picture(40, 300);
  Scribble(picture);
  const PixbufPtr image = PixbufFromSurface(picture);
  for (const gint zoom : Zooms) {
    const gint width = 40 * zoom / 100, height = 300 * zoom / 100;
    Drawable whole(width, height);
    PaintZoomed(whole, picture, width, height);
    const PixbufPtr plain(gdk_pixbuf_scale_simple(image.get(), width, height, GDK_INTERP_TILES));
    for (gint y = 0; y < height; ++y) {
      const guchar* row = gdk_pixbuf_get_pixels(plain.get()) +
                          static_cast<std::ptrdiff_t>(y) * gdk_pixbuf_get_rowstride(plain.get());
      for (gint x = 0; x < width; ++x) {
        const guint32 rgb =
            guint32{row[3 * x]} << 16 | guint32{row[3 * x + 1]} << 8 | row[3 * x + 2];
        ASSERT_EQ(whole.At(x, y), rgb) << zoom << " % at " << x << "," << y;
      }
    }
  }
}

// The scaler's rounding adds up along a row or column, so far out is where a part could differ.
TEST(Zoom, PartsFarOutEqualTheWhole) {
  constexpr gint longest = 9999;
  for (const auto& [pictureWidth, pictureHeight] : {SIZE{longest, 5}, SIZE{5, longest}}) {
    Drawable picture(pictureWidth, pictureHeight);
    Scribble(picture);
    for (const gint zoom : Zooms) {
      const gint width = pictureWidth * zoom / 100, height = pictureHeight * zoom / 100;
      Drawable whole(width, height);
      PaintZoomed(whole, picture, width, height);
      for (const gint at : {1, 333, 5000, longest * zoom / 100 - 29}) {
        const gint x = std::min(at, width - 1), y = std::min(at, height - 1);
        Drawable part(29, 29, x, y);
        PaintZoomed(part, picture, width, height);
        for (gint row = y; row < std::min(y + 29, height); ++row) {
          for (gint column = x; column < std::min(x + 29, width); ++column) {
            ASSERT_EQ(part.At(column, row), whole.At(column, row))
                << zoom << " % at " << column << "," << row;
          }
        }
      }
    }
  }
}

TEST(Zoom, TwoHundredPercentDoublesPixels) {
  Paper picture(3, 1), target(6, 2);
  FillPixels(&picture.Surface, 0, 0, 1, 1, 0);
  FillPixels(&picture.Surface, 2, 0, 1, 1, 0xff0000);
  PaintZoomed(target.Surface, picture.Surface, 6, 2);
  EXPECT_EQ(target.Text(), R"(
##..rr
##..rr
)");
}

TEST(Zoom, NothingIsPaintedBeyondThePicture) {
  Paper target(4, 3);
  const Drawable picture(2, 2);
  PaintZoomed(target.Surface, picture, 2, 2);
  EXPECT_EQ(target.Text(), R"(
##..
##..
....
)");
  Paper scaled(4, 3);
  PaintZoomed(scaled.Surface, picture, 3, 1);
  EXPECT_EQ(scaled.Text(), R"(
###.
....
....
)");
}

TEST(Zoom, EmptySizesPaintNothing) {
  Paper target(2, 1);
  const Drawable picture(1, 1);
  PaintZoomed(target.Surface, picture, 0, 5);
  PaintZoomed(target.Surface, picture, -3, -3);
  EXPECT_EQ(target.Text(), R"(
..
)");
}

TEST(Zoom, OnePixelGrowsOverEverything) {
  Paper target(2, 2, 40000, 40000);
  const Drawable picture(1, 1);
  PaintZoomed(target.Surface, picture, 49995, 49995);
  EXPECT_EQ(target.Text(), R"(
##
##
)");
}

TEST(Png, HoldsThePixels) {
  const TempFolder folder;
  Paper paper(2, 1);
  FillPixels(&paper.Surface, 1, 0, 1, 1, 0x123456);
  ASSERT_TRUE(WritePng(paper.Surface, folder.Path("a.png").c_str()));
  const PixbufPtr read(gdk_pixbuf_new_from_file(folder.Path("a.png").c_str(), nullptr));
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(gdk_pixbuf_get_width(read.get()), 2);
  EXPECT_EQ(gdk_pixbuf_get_height(read.get()), 1);
  const guchar* pixels = gdk_pixbuf_get_pixels(read.get());
  const std::vector<int> expected = {255, 255, 255, 0x12, 0x34, 0x56};
  EXPECT_EQ(std::vector<int>(pixels, pixels + 6), expected);
}

TEST(Png, FailureIsReported) {
  const Drawable surface(1, 1);
  EXPECT_FALSE(WritePng(surface, "/nonexistent/a.png"));
}

}  // namespace
