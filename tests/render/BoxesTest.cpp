#include <gtest/gtest.h>

#include <random>

#include "tests/render/AsciiPicture.h"

namespace {

constexpr gint Black = ColourBlack;
constexpr gint Red = ColourRed;

TEST(Boxes, OutlineCoversOneMoreThanFill) {
  Paper paper(8, 4);
  paper.Gc.Foreground = 0;
  DrawRect1(&paper.Surface, &paper.Gc, 0, 0, 0, 3, 3);
  DrawRect1(&paper.Surface, &paper.Gc, 1, 7, 3, 4, 0);
  EXPECT_EQ(paper.Text(), R"(
#######.
#..####.
#..####.
####....
)");
}

TEST(Boxes, CentredOutlineInsetsThenOutsets) {
  Paper paper(9, 9);
  DrawRect(&paper.Surface, &paper.Gc, 2, 2, 6, 6, 2, 0, Black, Red);
  EXPECT_EQ(paper.Text(), R"(
.........
.#######.
.#######.
.##rrr##.
.##rrr##.
.##rrr##.
.#######.
.#######.
.........
)");
}

TEST(Boxes, InsideOutline) {
  Paper paper(7, 7);
  DrawRect(&paper.Surface, &paper.Gc, 0, 0, 6, 6, 2, 1, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
#######
#######
##...##
##...##
##...##
#######
#######
)");
}

TEST(Boxes, OutsideOutlineLeavesTheBoxFree) {
  Paper paper(7, 7);
  DrawRect(&paper.Surface, &paper.Gc, 2, 2, 4, 4, 1, 2, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
.......
.#####.
.#...#.
.#...#.
.#...#.
.#####.
.......
)");
}

TEST(Boxes, SwappedCornersTurnInsideOut) {
  Paper paper(7, 7);
  DrawRect(&paper.Surface, &paper.Gc, 4, 4, 2, 2, 2, 1, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
.......
.#####.
.#####.
.##.##.
.#####.
.#####.
.......
)");
}

TEST(Boxes, UnknownColoursLeaveTheirPartOut) {
  Paper paper(3, 3);
  DrawRect(&paper.Surface, &paper.Gc, 0, 0, 2, 2, 1, 0, 103, Black);
  EXPECT_EQ(paper.Text(), R"(
##.
##.
...
)");
  Paper outline(3, 3);
  DrawRect(&outline.Surface, &outline.Gc, 0, 0, 2, 2, 1, 0, Black, 500);
  EXPECT_EQ(outline.Text(), R"(
###
#.#
###
)");
}

TEST(Boxes, DashesRunOnRoundTheCorner) {
  const gint8 dashes[] = {4, 2};
  Paper paper(6, 4);
  paper.Gc.Foreground = 0;
  paper.Gc.Dashes = dashes;
  DrawRect1(&paper.Surface, &paper.Gc, 0, 0, 0, 5, 3);
  EXPECT_EQ(paper.Text(), R"(
####..
#....#
#....#
##..##
)");
}

TEST(Boxes, ExtremeNumbersAreHarmless) {
  Paper paper(3, 3);
  DrawRect(&paper.Surface, &paper.Gc, G_MININT, G_MININT, G_MAXINT, G_MAXINT, G_MAXINT, 1, Red,
           Black);
  EXPECT_EQ(paper.Text(), R"(
###
###
###
)");
  DrawRect(&paper.Surface, &paper.Gc, 1, 1, 1, 1, G_MAXINT, 0, Red, -1);
  EXPECT_EQ(paper.Text(), R"(
rrr
rrr
rrr
)");
}

// Plain restatement: outline after outline, dot by dot.
void PlainRect(Paper& paper, gint x1, gint y1, gint x2, gint y2, gint width, gint position) {
  for (gint k = 0; k < width; ++k) {
    const gint inset = position == 1 ? k : position == 0 ? (k % 2 ? -(k / 2 + 1) : k / 2) : -k - 1;
    const gint ax = std::min(x1 + inset, x2 - inset), bx = std::max(x1 + inset, x2 - inset);
    const gint ay = std::min(y1 + inset, y2 - inset), by = std::max(y1 + inset, y2 - inset);
    for (gint y = ay; y <= by; ++y) {
      for (gint x = ax; x <= bx; ++x) {
        if (x == ax || x == bx || y == ay || y == by) FillPixels(&paper.Surface, x, y, 1, 1, 0);
      }
    }
  }
}

TEST(Boxes, AgreeWithPlainOutlines) {
  std::mt19937 random(2);
  const auto number = [&](gint low, gint high) {
    return std::uniform_int_distribution<gint>(low, high)(random);
  };
  for (int round = 0; round < 300; ++round) {
    const gint x1 = number(-10, 40), y1 = number(-10, 40), x2 = number(-10, 40),
               y2 = number(-10, 40);
    const gint width = number(0, 12), position = number(0, 2);
    Paper paper(30, 30), plain(30, 30);
    DrawRect(&paper.Surface, &paper.Gc, x1, y1, x2, y2, width, position, Black, -1);
    PlainRect(plain, x1, y1, x2, y2, width, position);
    ASSERT_EQ(paper.Text(), plain.Text()) << x1 << "," << y1 << " " << x2 << "," << y2;
  }
}

TEST(FramedBox, LaterBordersLieOnTop) {
  Paper paper(8, 7);
  DrawGbox(&paper.Surface, &paper.Gc, 0, 0, 6, 5, 2, 1, 1, 1, Black, Red, 0, 1, ColourWhite);
  EXPECT_EQ(paper.Text(), R"(
o####g#.
o####g#.
o....g..
o....g..
orrrrgr.
o....g..
........
)");
}

TEST(FramedBox, ZeroAndNegativeWidthsDrawNoBorder) {
  Paper paper(4, 4);
  DrawGbox(&paper.Surface, &paper.Gc, 1, 1, 3, 3, 0, -1, 0, -7, Black, Black, Black, Black, Red);
  EXPECT_EQ(paper.Text(), R"(
....
.rr.
.rr.
....
)");
}

TEST(FramedBox, SwappedCornersHaveNoArea) {
  Paper paper(5, 3);
  DrawGbox(&paper.Surface, &paper.Gc, 4, 2, 0, 0, 0, 0, 1, 0, Black, Black, Black, Black, Red);
  EXPECT_EQ(paper.Text(), R"(
....#
....#
....#
)");
}

TEST(FramedBox, ExtremeNumbersAreHarmless) {
  Paper paper(2, 1);
  DrawGbox(&paper.Surface, &paper.Gc, G_MININT, G_MININT, G_MAXINT, G_MAXINT, G_MAXINT, G_MAXINT,
           G_MAXINT, G_MAXINT, Black, Black, Black, Black, Red);
  EXPECT_EQ(paper.Text(), R"(
##
)");
}

}  // namespace
