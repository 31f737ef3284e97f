#include <cairo.h>
#include <gtest/gtest.h>

#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

TEST(Surface, BeginsBlackAndOpaque) {
  const Drawable surface(2, 2);
  EXPECT_EQ(surface.Row(1)[1], 0xff000000u);
  EXPECT_EQ(surface.At(0, 0), 0u);
}

TEST(Surface, IsAtLeastOnePixel) {
  const Drawable surface(0, -5);
  EXPECT_EQ(surface.Width(), 1);
  EXPECT_EQ(surface.Height(), 1);
}

TEST(Surface, PositionsArePlanePositions) {
  Drawable surface(2, 2, 10, 20);
  FillPixels(&surface, 11, 21, 1, 1, 0x123456);
  EXPECT_EQ(surface.At(11, 21), 0x123456u);
  EXPECT_EQ(surface.Row(1)[1], 0xff123456u);
  EXPECT_EQ(surface.At(1, 1), 0u);
}

TEST(Surface, ImpossibleSizeClipsEverything) {
  Drawable surface(G_MAXINT, G_MAXINT);
  EXPECT_FALSE(surface.Valid());
  FillPixels(&surface, 0, 0, 10, 10, 0xffffff);
  EXPECT_EQ(surface.At(0, 0), 0u);
  EXPECT_EQ(PixbufFromSurface(surface), nullptr);
}

TEST(Surface, SharesItsMemoryWithCairo) {
  Drawable surface(3, 3);
  cairo_t* cairo = cairo_create(surface.Cairo());
  cairo_set_source_rgb(cairo, 1, 0, 0);
  cairo_rectangle(cairo, 1, 1, 1, 1);
  cairo_fill(cairo);
  cairo_destroy(cairo);
  cairo_surface_flush(surface.Cairo());
  EXPECT_EQ(surface.At(1, 1), 0xff0000u);
  EXPECT_EQ(surface.At(0, 0), 0u);
}

TEST(Surface, FillsAreClippedWithoutOverflow) {
  Paper paper(2, 2);
  FillPixels(&paper.Surface, G_MAXINT, 0, G_MAXINT, 1, 0);
  FillPixels(&paper.Surface, 0, 0, -1, 2, 0);
  FillPixels(&paper.Surface, G_MININT, 1, G_MAXINT, G_MAXINT, 0);
  FillPixels(&paper.Surface, 1, 1, G_MAXINT, G_MAXINT, 0);
  EXPECT_EQ(paper.Text(), R"(
..
.#
)");
}

TEST(Surface, PixelsAreTheHighBytesOfTheChannels) {
  EXPECT_EQ(PixelOf(0x12ff, 0x3400, 0x56aa), 0x123456u);
  EXPECT_EQ(PixelOf(-1, 65536, 0), 0xff0000u);
}

TEST(Surface, APartBesideItHasNoPixels) {
  Paper paper(2, 2);
  const Drawable part(paper.Surface, {5, 5, 9, 9});
  EXPECT_FALSE(part.Valid());
  EXPECT_EQ(part.Width(), 0);
  EXPECT_EQ(part.At(5, 5), 0u);
}

TEST(Surface, OneWithoutMemoryIsNotWritten) {
  const TempFolder folder;
  const Drawable huge(60000, 60000);
  EXPECT_FALSE(huge.Valid());
  EXPECT_FALSE(WritePng(huge, folder.Path("huge.png").c_str()));
  EXPECT_FALSE(folder.Exists("huge.png"));
}

}  // namespace
