// The frame of a layout, its areas one by one.
#include <gtest/gtest.h>

#include <climits>
#include <span>

#include "render/primitives/Gradation.h"
#include "tests/render/SampleLayout.h"

namespace {

class Frame : public testing::Test {
 protected:
  Frame() { Scene::FixClock(); }
  // A surface larger than the layout, on violet, so that what is left unpainted shows.
  std::unique_ptr<Drawable> PaintOnViolet(gint width = 120, gint height = 100) {
    auto surface = std::make_unique<Drawable>(width, height);
    PaintBack(*surface, Ink::Violet);
    DrawGc gc;
    DrawWindow1(surface.get(), &gc);
    return surface;
  }
  static guint32 Pixel(gint ink) { return InkPixel[ink]; }

 private:
  Scene scene_;
};

TEST_F(Frame, FillsItsAreasToTheirBounds) {
  SetHeader(100, 80);
  SetTitleArea(20, "");
  SetButtonArea(16);
  const auto picture = PaintOnViolet();
  for (const gint x : {0, 99}) {
    EXPECT_EQ(picture->At(x, 0), Pixel(Ink::Navy));
    EXPECT_EQ(picture->At(x, 19), Pixel(Ink::Navy));
    EXPECT_EQ(picture->At(x, 20), Pixel(Ink::Cream));
    EXPECT_EQ(picture->At(x, 63), Pixel(Ink::Cream));
    EXPECT_EQ(picture->At(x, 64), Pixel(Ink::Teal));
    EXPECT_EQ(picture->At(x, 79), Pixel(Ink::Teal));
    EXPECT_EQ(picture->At(x, 80), Pixel(Ink::Violet));
  }
  EXPECT_EQ(picture->At(100, 40), Pixel(Ink::Violet));
}

TEST_F(Frame, WithoutTitleAreaShowsNothingOfIt) {
  const SceneBitmaps bitmaps;
  SetHeader(100, 80);
  SetTitleArea(0, "題名");
  CopyText(PtrnHedr.LogoName, "house.png");
  PtrnHedr.Parm1[HedrSlot::LogoShown] = 1;
  PtrnHedr.Parm1[HedrSlot::HardCopyShown] = 1;
  PtrnHedr.Parm1[HedrSlot::DateFormat] = 1;
  for (const gint height : {0, -1, -30}) {
    PtrnHedr.Parm1[HedrSlot::TitleHeight] = height;
    const auto picture = PaintOnViolet();
    for (gint y = 0; y < 80; ++y) {
      for (gint x = 0; x < 100; ++x) ASSERT_EQ(picture->At(x, y), Pixel(Ink::Cream));
    }
  }
}

// The leftmost column of the title area that is not of its colour; the width without one.
gint TitleBegins(const Drawable& picture) {
  for (gint x = 0; x < 200; ++x) {
    for (gint y = 0; y < 30; ++y) {
      if (picture.At(x, y) != InkPixel[Ink::Navy]) return x;
    }
  }
  return 200;
}

// As the project has it: the layout's own position is kept and shown nowhere.
TEST_F(Frame, PutsItsTitleWhereTheProjectHasIt) {
  SetHeader(200, 80);
  SetTitleArea(30, "題名");
  for (const gint position : {0, 1}) {
    PtrnHedr.Parm1[HedrSlot::TitlePosition] = position;
    PtrnHedr.Parm1[HedrSlot::TitleCentred] = 0;
    EXPECT_LT(TitleBegins(*PaintOnViolet(200)), 50) << position;
    PtrnHedr.Parm1[HedrSlot::TitleCentred] = 1;
    const gint begins = TitleBegins(*PaintOnViolet(200));
    EXPECT_GT(begins, 50) << position;
    EXPECT_LT(begins, 100) << position;
  }
}

TEST_F(Frame, ShadesRowsFromOneBelowTheTitleArea) {
  SetHeader(100, 80);
  SetTitleArea(20, "");
  PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::White;
  PtrnHedr.Parm1[HedrSlot::Gradation] = 1;
  const auto picture = PaintOnViolet();
  EXPECT_EQ(picture->At(50, 20), Pixel(Ink::Violet));
  EXPECT_EQ(picture->At(0, 21), 0xffffffU);
  EXPECT_EQ(picture->At(100, 21), 0xffffffU);  // the line's end is included
  EXPECT_EQ(picture->At(101, 21), Pixel(Ink::Violet));
  // Row 30 of 60: shade 30 * 255 / 60 = 127, 65535 - 127 * 65535 / 256 = 33024 = 0x8100.
  EXPECT_EQ(picture->At(50, 51), 0x818181U);
  // The last row, 59, lies at 80: shade 250, 65535 - 63999 = 1536 = 0x0600.
  EXPECT_EQ(picture->At(50, 80), 0x060606U);
  EXPECT_EQ(picture->At(50, 81), Pixel(Ink::Violet));
}

TEST_F(Frame, PutsABackgroundPictureBeforeEverything) {
  const SceneBitmaps bitmaps;
  SetHeader(32, 64);
  SetTitleArea(20, "");
  SetButtonArea(20);
  CopyText(PtrnHedr.BmapName, "house.png");
  PtrnHedr.Parm1[HedrSlot::Gradation] = 1;
  const auto picture = PaintOnViolet();
  EXPECT_EQ(picture->At(0, 20), Pixel(Ink::Sky));
  EXPECT_EQ(picture->At(0, 43), Pixel(Ink::Green));
  EXPECT_EQ(picture->At(16, 30), Pixel(Ink::Red));
}

TEST_F(Frame, WithAMissingBackgroundPictureLeavesTheWorkArea) {
  SetHeader(100, 80);
  SetButtonArea(16);
  CopyText(PtrnHedr.BmapName, "missing.png");
  const auto picture = PaintOnViolet();
  EXPECT_EQ(picture->At(50, 30), Pixel(Ink::Violet));
  EXPECT_EQ(picture->At(50, 70), Pixel(Ink::Teal));
}

TEST_F(Frame, LiesInsideTheLayoutAndOnTopOfItsAreas) {
  SetHeader(100, 80);
  SetTitleArea(20, "");
  SetButtonArea(16);
  SetFrame(3);
  const auto picture = PaintOnViolet();
  for (gint k = 0; k < 3; ++k) {
    EXPECT_EQ(picture->At(k, 40), Pixel(Ink::Red));
    EXPECT_EQ(picture->At(100 - k, 40), Pixel(Ink::Red));
    EXPECT_EQ(picture->At(50, k), Pixel(Ink::Red));
    EXPECT_EQ(picture->At(50, 80 - k), Pixel(Ink::Red));
  }
  EXPECT_EQ(picture->At(3, 40), Pixel(Ink::Cream));
  EXPECT_EQ(picture->At(97, 40), Pixel(Ink::Cream));
  EXPECT_EQ(picture->At(50, 3), Pixel(Ink::Navy));
  EXPECT_EQ(picture->At(50, 77), Pixel(Ink::Teal));
}

TEST_F(Frame, OfNegativeHeightsPaintsNothing) {
  SetHeader(100, 40);
  SetTitleArea(30, "");
  SetButtonArea(30);  // the areas overlap: no work area is left
  for (const gint gradation : {0, 1}) {
    PtrnHedr.Parm1[HedrSlot::Gradation] = gradation;
    const auto picture = PaintOnViolet();
    EXPECT_EQ(picture->At(50, 5), Pixel(Ink::Navy));
    EXPECT_EQ(picture->At(50, 15), Pixel(Ink::Teal));
    EXPECT_EQ(picture->At(50, 39), Pixel(Ink::Teal));
    EXPECT_EQ(picture->At(50, 40), Pixel(Ink::Violet));
  }
  SetHeader(100, 40);
  SetTitleArea(0, "");
  SetButtonArea(-10);
  PtrnHedr.Parm1[HedrSlot::Gradation] = 0;
  EXPECT_NE(PaintOnViolet()->At(50, 35), Pixel(Ink::Teal));
}

TEST_F(Frame, OfAnEmptyLayoutIsEmpty) {
  const auto picture = PaintOnViolet();
  EXPECT_EQ(picture->At(0, 0), Pixel(Ink::Violet));
  ExtPtrnData();
  EXPECT_EQ(PaintOnViolet()->At(0, 0), Pixel(Ink::Violet));
  DrawGc gc;
  DrawUndfData(picture.get(), &gc, 100);
  EXPECT_EQ(picture->At(0, 0), Pixel(Ink::Violet));
}

TEST_F(Frame, SurvivesTheGreatestNumbersEverywhere) {
  const SceneBitmaps bitmaps;
  for (const gint number : {INT_MIN, -1, 20, 103, INT_MAX}) {
    for (const gint gradation : {0, 1}) {
      for (const char* picture : {"", "house.png"}) {
        for (gint& parameter : std::span(PtrnHedr.Parm1)) parameter = number;
        for (gint& parameter : std::span(PtrnHedr.Parm2)) parameter = number;
        PtrnHedr.Parm1[HedrSlot::Gradation] = gradation;
        PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = 1;
        CopyText(PtrnHedr.BmapName, picture);
        std::memset(PtrnHedr.PtrnName1, 'A', sizeof PtrnHedr.PtrnName1);
        const auto surface = PaintOnViolet(30, 20);
        PtrnHedr.Parm2[ViewSlot::GridColour] = 1;
        PtrnMode = ModeArea;
        AreaPoint1 = {number, INT_MIN};
        AreaPoint2 = {INT_MAX, number};
        DrawGc gc;
        DrawGridData(surface.get(), &gc);
        DrawWindow2(surface.get(), &gc);
        EXPECT_TRUE(surface->Valid());
      }
    }
  }
}

// Colours are kept as stored; only the low 16 bits of a channel count.
TEST_F(Frame, ShadesAHostilePaletteWithoutOverflow) {
  EXPECT_EQ(GradationPixel({INT_MAX, INT_MIN, -1}, 0), 0xff00ffU);
  EXPECT_EQ(GradationPixel({INT_MAX, INT_MIN, -1}, 255) & 0xff000000U, 0U);
}

}  // namespace
