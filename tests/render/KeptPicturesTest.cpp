// Pictures are kept between paintings, and a change of what they are made from shows at once.
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

#include "render/Marks.h"
#include "render/pictures/KeptPictures.h"
#include "support/Resource.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

PixbufPtr OneColour(guint32 rgb) {
  PixbufPtr picture(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, 2, 1));
  gdk_pixbuf_fill(picture.get(), rgb << 8 | 0xff);
  return picture;
}

class KeptMark : public testing::Test {
 protected:
  KeptMark() {
    std::fill(std::begin(MarkData[0].mark), std::end(MarkData[0].mark), 0);
    MarkDataInit();
    SetShape(0x01);
  }
  ~KeptMark() override { SetShape(0); }

  static void SetShape(guint8 firstPixels) {
    MarkData[0].mark[0] = firstPixels;
    SetDrawMark();
  }
  std::string Painted(gint background) {
    FillPixels(&paper_.Surface, 0, 0, 2, 1, 0x808080);
    DrawMark(&paper_.Surface, &paper_.Gc, 0, 0, 16, 32, ColourRed, background, 0);
    return paper_.Text();
  }

  Paper paper_{2, 1};
};

TEST_F(KeptMark, FollowsItsShape) {
  EXPECT_EQ(Painted(-1), "\nro\n");
  SetShape(0x02);
  EXPECT_EQ(Painted(-1), "\nor\n");
}

TEST_F(KeptMark, FollowsThePalette) {
  EXPECT_EQ(Painted(1), "\nrg\n");
  DrawColr[1] = {0, 0, 0, 0x000000};
  EXPECT_EQ(Painted(1), "\nr#\n");
  DrawColr[ColourRed] = {0xffff, 0xffff, 0xffff, 0xffffff};
  EXPECT_EQ(Painted(1), "\n.#\n");
}

TEST_F(KeptMark, DiffersByItsBackground) {
  EXPECT_EQ(Painted(1), "\nrg\n");
  EXPECT_EQ(Painted(-1), "\nro\n");
  EXPECT_EQ(Painted(ColourBlack), "\nr#\n");
}

TEST(KeptPictureText, FollowsAColourChangedInPlace) {
  std::string colour = "X c #FF0000";
  const gchar* picture[] = {"1 1 1 1", colour.c_str(), "X"};
  Paper paper(2, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  EXPECT_EQ(paper.Text(), "\nrr\n");
  colour.replace(5, 6, "00FF00");
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  EXPECT_EQ(paper.Text(), "\ngg\n");
}

TEST(KeptPictureText, OfAnotherSizeAtTheSamePlaceIsRead) {
  const gchar* picture[] = {"1 1 1 1", "X c #FF0000", "X", "X"};
  Paper paper(1, 2);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 1, 1, picture);
  picture[0] = "1 2 1 1";
  picture[2] = " ";
  picture[3] = "X";
  picture[1] = "X c #00FF00";
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 1, 2, picture);
  EXPECT_EQ(paper.Text(), "\ng\ng\n");
}

TEST(KeptBitmap, FollowsItsFileAtAnySize) {
  const TempFolder folder;
  const std::string file = folder.Path("a.png");
  Paper paper(4, 1);
  const auto paint = [&](guint32 rgb) {
    const std::string fresh = folder.Path("fresh.png");
    gdk_pixbuf_save(OneColour(rgb).get(), fresh.c_str(), "png", nullptr, nullptr);
    std::rename(fresh.c_str(), file.c_str());
    DrawBmap(&paper.Surface, &paper.Gc, 0, 0, 4, 1, -1, folder.Path().c_str(), "a.png");
    return paper.Text();
  };
  EXPECT_EQ(paint(0xff0000), "\nrrrr\n");
  EXPECT_EQ(paint(0x00ff00), "\ngggg\n");
}

TEST(KeptPictures, AreFoundByKeyAndSize) {
  const PictureKey key{NewPictureSource(), 1, -1};
  const ScaledPicture* kept = Keep(key, 3, 2, OneColour(0xff0000).get(), false);
  ASSERT_NE(kept, nullptr);
  EXPECT_EQ(kept->PixelCount(), 6u);
  EXPECT_EQ(FindKept(key, 3, 2), kept);
  EXPECT_EQ(FindKept(key, 2, 3), nullptr);
  EXPECT_EQ(FindKept({key.Source, 2, -1}, 3, 2), nullptr);
  EXPECT_EQ(FindKept({key.Source, 1, 0}, 3, 2), nullptr);
  EXPECT_EQ(FindKept({NewPictureSource(), 1, -1}, 3, 2), nullptr);
}

TEST(KeptPictures, MakeRoomForNewOnes) {
  const PixbufPtr picture = OneColour(0xff0000);
  const PictureKey first{NewPictureSource(), -1, -1};
  ASSERT_NE(Keep(first, 2048, 2048, picture.get(), false), nullptr);
  for (gint other = 0; other < 4; ++other) {
    EXPECT_NE(Keep({NewPictureSource(), -1, -1}, 2048, 2048, picture.get(), false), nullptr);
  }
  EXPECT_EQ(FindKept(first, 2048, 2048), nullptr) << "more than 64 MB are not held";
}

TEST(KeptPictures, AreNeverHuge) {
  const PixbufPtr picture = OneColour(0xff0000);
  EXPECT_EQ(Keep({NewPictureSource(), -1, -1}, 2049, 2048, picture.get(), false), nullptr);
  EXPECT_EQ(Keep({NewPictureSource(), -1, -1}, G_MAXINT, G_MAXINT, picture.get(), false), nullptr);
  EXPECT_EQ(Keep({NewPictureSource(), -1, -1}, 1, G_MAXINT, picture.get(), false), nullptr);
}

}  // namespace
