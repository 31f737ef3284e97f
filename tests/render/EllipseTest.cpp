#include "AsciiPicture.h"

namespace {

constexpr gint Black = ColourBlack;

std::string Outline(gint width, gint height) {
  Paper paper(width + 1, height + 1);
  DrawCrcl(&paper.surface, &paper.gc, 0, 0, width, height, 1, 0, Black, -1);
  return paper.Text();
}

std::string Filled(gint width, gint height) {
  Paper paper(width + 1, height + 1);
  DrawCrcl(&paper.surface, &paper.gc, 0, 0, width, height, 0, 0, -1, Black);
  return paper.Text();
}

TEST(Ellipse, OutlineReachesOneBeyondTheBox) {
  EXPECT_EQ(Outline(4, 4), R"(
.###.
#...#
#...#
#...#
.###.
)");
}

TEST(Ellipse, FillStaysInTheBox) {
  EXPECT_EQ(Filled(4, 4), R"(
.##..
####.
####.
.##..
.....
)");
}

TEST(Ellipse, SmallestOutlines) {
  EXPECT_EQ(Outline(2, 2), R"(
.#.
#.#
.#.
)");
  EXPECT_EQ(Outline(1, 1), R"(
##
##
)");
  EXPECT_EQ(Outline(0, 0), R"(
#
)");
  EXPECT_EQ(Outline(4, 0), R"(
#####
)");
  EXPECT_EQ(Outline(0, 2), R"(
#
#
#
)");
}

TEST(Ellipse, FlatBoxHasNoFill) {
  EXPECT_EQ(Filled(3, 0), R"(
....
)");
}

TEST(Ellipse, OutlineHasNoGapsAndNoCorners) {
  EXPECT_EQ(Outline(12, 6), R"(
...#######...
.##.......##.
#...........#
#...........#
#...........#
.##.......##.
...#######...
)");
}

TEST(Ellipse, CornersMayBeSwapped) {
  Paper paper(5, 5), swapped(5, 5);
  DrawCrcl(&paper.surface, &paper.gc, 0, 0, 4, 4, 1, 0, Black, ColourRed);
  DrawCrcl(&swapped.surface, &swapped.gc, 4, 4, 0, 0, 1, 0, Black, ColourRed);
  EXPECT_EQ(paper.Text(), swapped.Text());
}

TEST(Ellipse, OutsideOutlineGrows) {
  Paper paper(7, 7);
  DrawCrcl(&paper.surface, &paper.gc, 2, 2, 4, 4, 1, 2, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
.......
..###..
.#...#.
.#...#.
.#...#.
..###..
.......
)");
}

// A part of a large circle is the same as that part of the whole.
TEST(Ellipse, ClippedPartEqualsTheWhole) {
  Paper whole(401, 301), part(50, 60, 330, 20);
  DrawCrcl(&whole.surface, &whole.gc, 0, 0, 400, 300, 4, 0, Black, ColourRed);
  DrawCrcl(&part.surface, &part.gc, 0, 0, 400, 300, 4, 0, Black, ColourRed);
  for (gint y = 20; y < 80; ++y) {
    for (gint x = 330; x < 380; ++x) {
      ASSERT_EQ(part.surface.At(x, y), whole.surface.At(x, y)) << x << "," << y;
    }
  }
}

TEST(Ellipse, ExtremeNumbersAreHarmless) {
  Paper paper(2, 2);
  DrawCrcl(&paper.surface, &paper.gc, G_MININT, G_MININT, G_MAXINT, G_MAXINT, G_MAXINT, 0, Black,
           ColourRed);
  EXPECT_EQ(paper.Text(), R"(
rr
rr
)");
}

TEST(Ellipse, OneOfOneDotIsOutlinedOrFilled) {
  Paper outline(5, 5), filled(5, 5);
  outline.gc.Foreground = filled.gc.Foreground = 0;
  DrawCrcl1(&outline.surface, &outline.gc, 0, 0, 0, 4, 4);
  DrawCrcl1(&filled.surface, &filled.gc, 1, 0, 0, 4, 4);
  EXPECT_EQ(outline.Text(), R"(
.###.
#...#
#...#
#...#
.###.
)");
  EXPECT_EQ(filled.surface.At(2, 2), 0u);
}

}  // namespace
