#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "render/Marks.h"
#include "support/Resource.h"
#include "tests/render/AsciiPicture.h"

namespace {

constexpr gint Black = ColourBlack;
constexpr gint Red = ColourRed;
constexpr gint White = ColourWhite;

class Marks : public testing::Test {
 protected:
  void SetUp() override {
    std::memset(MarkData, 0, sizeof MarkData);
    MarkDataInit();
  }
  void TearDown() override { std::memset(MarkData, 0, sizeof MarkData); }
};

TEST_F(Marks, TextHasHeaderColoursAndRows) {
  MarkData[0].mark[0] = 0x01;   // row 0, pixel 0
  MarkData[0].mark[1] = 0x80;   // row 0, pixel 15
  MarkData[0].mark[63] = 0x40;  // row 31, pixel 14
  SetDrawMark();
  EXPECT_STREQ(Mark_XPM[0].mark[0], "16 32 2 1");
  EXPECT_STREQ(Mark_XPM[0].mark[1], "");
  EXPECT_STREQ(Mark_XPM[0].mark[2], "");
  EXPECT_STREQ(Mark_XPM[0].mark[3], "X..............X");
  EXPECT_STREQ(Mark_XPM[0].mark[4], "................");
  EXPECT_STREQ(Mark_XPM[0].mark[34], "..............X.");
}

TEST_F(Marks, SizesFollowTheGroup) {
  SetDrawMark();
  EXPECT_STREQ(Mark_XPM[99].mark[0], "16 32 2 1");
  EXPECT_STREQ(Mark_XPM[100].mark[0], "32 32 2 1");
  EXPECT_STREQ(Mark_XPM[249].mark[0], "64 32 2 1");
  EXPECT_STREQ(Mark_XPM[250].mark[0], "32 64 2 1");
  EXPECT_STREQ(Mark_XPM[349].mark[0], "64 64 2 1");
  EXPECT_EQ(std::strlen(Mark_XPM[349].mark[66]), 64u);
}

TEST_F(Marks, IndicatorsAreKeptBesideThem) {
  for (const gint mark : {MarkRadioOff, MarkRadioOn, MarkCheckOff, MarkCheckOn}) {
    EXPECT_STREQ(Mark_XPM[mark].mark[0], "16 16 2 1");
    for (gint row = 3; row < 19; ++row) {
      EXPECT_EQ(std::strspn(Mark_XPM[mark].mark[row], ".X"), 16u);
      EXPECT_EQ(std::strlen(Mark_XPM[mark].mark[row]), 16u);
    }
  }
  SetDrawMark();
  EXPECT_STREQ(Mark_XPM[MarkCheckOn].mark[0], "16 16 2 1") << "rebuilding leaves them alone";
}

TEST_F(Marks, OpaqueMarkPaintsItsBackground) {
  MarkData[0].mark[0] = 0x05;
  SetDrawMark();
  Paper paper(6, 2);
  DrawMark(&paper.Surface, &paper.Gc, 1, 0, 16, 32, Black, Red, 0);
  EXPECT_EQ(paper.Text(), R"(
.#r#rr
.rrrrr
)");
}

TEST_F(Marks, TransparentMarkLeavesItsBackground) {
  MarkData[0].mark[0] = 0x05;
  SetDrawMark();
  Paper paper(6, 2);
  DrawMark(&paper.Surface, &paper.Gc, 1, 0, 16, 32, Red, -1, 0);
  EXPECT_EQ(paper.Text(), R"(
.r.r..
......
)");
}

TEST_F(Marks, PaintsOverItsOriginOnAMovedPlane) {
  MarkData[0].mark[0] = 0x05;
  SetDrawMark();
  Paper paper(3, 1, 10, 10);
  DrawMark(&paper.Surface, &paper.Gc, 8, 10, 16, 32, Red, -1, 0);
  EXPECT_EQ(paper.Text(), R"(
r..
)");
}

// A mark of one colour keeps it at any size.
TEST_F(Marks, ScalesToTheBox) {
  std::memset(MarkData[200].mark, 0xff, sizeof MarkData[200].mark);
  SetDrawMark();
  Paper paper(7, 4);
  DrawMark(&paper.Surface, &paper.Gc, 1, 1, 5, 2, Black, White, 200);
  EXPECT_EQ(paper.Text(), R"(
.......
.#####.
.#####.
.......
)");
}

// The colour that stands for "transparent" is transparent as a foreground, too.
TEST_F(Marks, TheKeyColourIsNeverSeen) {
  DrawColr[7] = {0x0100, 0x0200, 0x0300, 0x010203};
  MarkData[0].mark[0] = 0xff;
  SetDrawMark();
  Paper paper(4, 1);
  DrawMark(&paper.Surface, &paper.Gc, 0, 0, 16, 32, 7, -1, 0);
  EXPECT_EQ(paper.Text(), R"(
....
)");
}

TEST_F(Marks, NumbersOutOfRangeAndEmptyBoxesDrawNothing) {
  std::memset(MarkData, 0xff, sizeof MarkData);
  SetDrawMark();
  Paper paper(4, 1);
  for (const gint mark : {-1, 354, G_MAXINT}) {
    DrawMark(&paper.Surface, &paper.Gc, 0, 0, 16, 32, Black, Red, mark);
  }
  DrawMark(&paper.Surface, &paper.Gc, 0, 0, 16, 32, 103, Red, 0);
  DrawMark(&paper.Surface, &paper.Gc, 0, 0, 16, 32, Black, 103, 0);
  DrawMark(&paper.Surface, &paper.Gc, 0, 0, 0, 32, Black, Red, 0);
  DrawMark(&paper.Surface, &paper.Gc, 0, 0, 16, -32, Black, Red, 0);
  EXPECT_EQ(paper.Text(), R"(
....
)");
}

TEST_F(Marks, EnormousBoxShowsItsPart) {
  std::memset(MarkData[0].mark, 0xff, sizeof MarkData[0].mark);
  SetDrawMark();
  Paper paper(3, 1);
  DrawMark(&paper.Surface, &paper.Gc, -1000000, -1000000, G_MAXINT, G_MAXINT, Black, White, 0);
  EXPECT_EQ(paper.Text(), R"(
###
)");
}

}  // namespace
