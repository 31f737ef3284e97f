#include <gtest/gtest.h>

#include <random>

#include "tests/render/AsciiPicture.h"

namespace {

constexpr gint Black = ColourBlack;

std::string Outline(gint width, gint height) {
  Paper paper(width + 1, height + 1);
  DrawCrcl(&paper.Surface, &paper.Gc, 0, 0, width, height, 1, 0, Black, -1);
  return paper.Text();
}

std::string Filled(gint width, gint height) {
  Paper paper(width + 1, height + 1);
  DrawCrcl(&paper.Surface, &paper.Gc, 0, 0, width, height, 0, 0, -1, Black);
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

// A dot on the curve itself is filled when the inside lies to its right or below it.
TEST(Ellipse, FillHasTheMiddleOfItsOutline) {
  EXPECT_EQ(Filled(4, 4), R"(
..#..
.###.
####.
.###.
.....
)");
  EXPECT_EQ(Filled(5, 3), R"(
......
.####.
.####.
......
)");
  EXPECT_EQ(Filled(10, 10), R"(
.....#.....
..######...
.########..
.#########.
.#########.
##########.
.#########.
.#########.
.########..
..######...
...........
)");
}

TEST(Ellipse, OutlineLiesCloselyAroundItsFill) {
  Paper paper(11, 9);
  DrawCrcl(&paper.Surface, &paper.Gc, 0, 0, 10, 8, 1, 0, Black, ColourRed);
  EXPECT_EQ(paper.Text(), R"(
...#####...
..#rrrrr#..
.#rrrrrrr#.
#rrrrrrrrr#
#rrrrrrrrr#
#rrrrrrrrr#
.#rrrrrrr#.
..#rrrrr#..
...#####...
)");
}

// Of one-pixel outlines laid into each other, which leave a dot free here and there.
TEST(Ellipse, ThickOutlineIsDrawnAsManyThinOnes) {
  Paper paper(15, 15);
  DrawCrcl(&paper.Surface, &paper.Gc, 1, 1, 13, 13, 3, 1, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
...............
.....#####.....
....#######....
...##.###.##...
..####...####..
.##.#.....#.##.
.###.......###.
.###.......###.
.###.......###.
.##.#.....#.##.
..####...####..
...##.###.##...
....#######....
.....#####.....
...............
)");
}

TEST(Ellipse, FillReachesAnOutlineAroundTheBox) {
  Paper paper(11, 11);
  DrawCrcl(&paper.Surface, &paper.Gc, 1, 1, 9, 9, 1, 2, Black, ColourRed);
  EXPECT_EQ(paper.Text(), R"(
...#####...
..#rrrrr#..
.#rrrrrrr#.
#rrrrrrrrr#
#rrrrrrrrr#
#rrrrrrrrr#
#rrrrrrrrr#
#rrrrrrrrr#
.#rrrrrrr#.
..#rrrrr#..
...#####...
)");
}

// Outlines that pass their middle, as insets of a small box do, leave no ground free in it.
TEST(Ellipse, OutlineWiderThanItsBoxLeavesNoGround) {
  Paper paper(15, 9);
  DrawCrcl(&paper.Surface, &paper.Gc, 5, 2, 9, 6, 7, 1, Black, ColourRed);
  EXPECT_EQ(paper.Text(), R"(
......###......
....#######....
....#######....
...###r#r###...
...#########...
...###r#r###...
....#######....
....#######....
......###......
)");
  Paper flat(9, 13);
  DrawCrcl(&flat.Surface, &flat.Gc, 3, 1, 5, 11, 4, 1, Black, ColourRed);
  EXPECT_EQ(flat.Text(), R"(
.........
....#....
...###...
...###...
...###...
..#####..
..#####..
..#####..
...###...
...###...
...###...
....#....
.........
)");
}

// Each row and each column begins and ends with the outline, and no ground shows between.
void ExpectWhole(const Drawable& surface, const std::string& what) {
  const auto check = [&](gint lines, gint dots, auto at) {
    for (gint line = 0; line < lines; ++line) {
      gint first = 0, last = dots - 1;
      while (first < dots && at(line, first) == 0xffffff) ++first;
      while (last > first && at(line, last) == 0xffffff) --last;
      if (first == dots) continue;
      ASSERT_EQ(at(line, first), 0u) << "fill outside, " << what;
      ASSERT_EQ(at(line, last), 0u) << "fill outside, " << what;
      for (gint dot = first; dot <= last; ++dot) {
        ASSERT_NE(at(line, dot), 0xffffffu) << "a hole, " << what;
      }
    }
  };
  check(surface.Height(), surface.Width(),
        [&](gint row, gint dot) { return surface.Row(row)[dot] & 0xffffff; });
  check(surface.Width(), surface.Height(),
        [&](gint column, gint dot) { return surface.Row(dot)[column] & 0xffffff; });
}

void ExpectWholeAtAnyPosition(gint width, gint height, std::initializer_list<gint> lines) {
  for (const gint line : lines) {
    for (const gint position : {0, 1, 2}) {
      const gint reach = line + 1;
      Paper paper(width + 2 * reach + 1, height + 2 * reach + 1, -reach, -reach);
      DrawCrcl(&paper.Surface, &paper.Gc, 0, 0, width, height, line, position, Black, ColourRed);
      ASSERT_NO_FATAL_FAILURE(ExpectWhole(
          paper.Surface, std::to_string(width) + " x " + std::to_string(height) + ", line " +
                             std::to_string(line) + ", position " + std::to_string(position)));
    }
  }
}

TEST(Ellipse, FillAndOutlineLeaveNoHoleAndNothingOutside) {
  for (gint width = 1; width <= 64; ++width) {
    for (gint height = 1; height <= 64; ++height) {
      ASSERT_NO_FATAL_FAILURE(ExpectWholeAtAnyPosition(width, height, {1, 2, 5}));
    }
  }
}

TEST(Ellipse, LargeFillAndOutlineLeaveNoHoleAndNothingOutside) {
  std::mt19937 random(9);
  const auto pick = [&random] { return std::uniform_int_distribution<gint>(65, 500)(random); };
  for (gint round = 0; round < 8; ++round) {
    ASSERT_NO_FATAL_FAILURE(ExpectWholeAtAnyPosition(pick(), pick(), {1, 2, 7, 40}));
  }
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
  DrawCrcl(&paper.Surface, &paper.Gc, 0, 0, 4, 4, 1, 0, Black, ColourRed);
  DrawCrcl(&swapped.Surface, &swapped.Gc, 4, 4, 0, 0, 1, 0, Black, ColourRed);
  EXPECT_EQ(paper.Text(), swapped.Text());
}

TEST(Ellipse, OutsideOutlineGrows) {
  Paper paper(7, 7);
  DrawCrcl(&paper.Surface, &paper.Gc, 2, 2, 4, 4, 1, 2, Black, -1);
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

// Swapped in one direction alone, a box grows in the other.
TEST(Ellipse, OutlinesOfABoxWithOneSideSwapped) {
  Paper paper(11, 9);
  DrawCrcl(&paper.Surface, &paper.Gc, 7, 1, 3, 7, 2, 1, Black, -1);
  EXPECT_EQ(paper.Text(), R"(
...........
....###....
....###....
..##...##..
..##...##..
..##...##..
....###....
....###....
...........
)");
}

// Also of boxes that turn over on the way, on one side or on both.
TEST(Ellipse, ThickOutlinesAreTheirThinOnes) {
  constexpr gint Side = 61;
  std::mt19937 random(19);
  const auto pick = [&random](gint low, gint high) {
    return std::uniform_int_distribution<gint>(low, high)(random);
  };
  for (gint round = 0; round < 400; ++round) {
    const gint x1 = pick(14, 46), y1 = pick(14, 46), x2 = pick(14, 46), y2 = pick(14, 46);
    const gint width = pick(1, 13), position = pick(0, 2);
    Paper thick(Side, Side), thin(Side, Side);
    DrawCrcl(&thick.Surface, &thick.Gc, x1, y1, x2, y2, width, position, Black, -1);
    thin.Gc.Foreground = 0;
    for (gint k = 0; k < width; ++k) {
      const gint around = k % 2 == 0 ? k / 2 : -(k / 2 + 1);
      const gint inset = position == 0 ? around : position == 1 ? k : -k - 1;
      DrawCrcl1(&thin.Surface, &thin.Gc, 0, x1 + inset, y1 + inset, x2 - inset, y2 - inset);
    }
    ASSERT_EQ(thick.Text(), thin.Text()) << "round " << round;
  }
}

// A part of a large circle is the same as that part of the whole.
TEST(Ellipse, ClippedPartEqualsTheWhole) {
  Paper whole(401, 301), part(50, 60, 330, 20);
  DrawCrcl(&whole.Surface, &whole.Gc, 0, 0, 400, 300, 4, 0, Black, ColourRed);
  DrawCrcl(&part.Surface, &part.Gc, 0, 0, 400, 300, 4, 0, Black, ColourRed);
  for (gint y = 20; y < 80; ++y) {
    for (gint x = 330; x < 380; ++x) {
      ASSERT_EQ(part.Surface.At(x, y), whole.Surface.At(x, y)) << x << "," << y;
    }
  }
}

// The same where nearly every surface lies inside the curve, outside it or across it.
TEST(Ellipse, SmallSurfacesEqualTheWhole) {
  constexpr gint Extent = 48;
  std::mt19937 random(10);
  const auto pick = [&random](gint low, gint high) {
    return std::uniform_int_distribution<gint>(low, high)(random);
  };
  for (gint round = 0; round < 200; ++round) {
    const gint x1 = pick(-20, 40), y1 = pick(-20, 40), x2 = pick(0, 70), y2 = pick(0, 70);
    const gint width = pick(1, 6), position = pick(0, 2), fill = pick(0, 1) == 1 ? ColourRed : -1;
    const auto draw = [&](Paper& paper) {
      DrawCrcl(&paper.Surface, &paper.Gc, x1, y1, x2, y2, width, position, Black, fill);
    };
    Paper whole(Extent, Extent);
    draw(whole);
    const gint tileWidth = pick(1, 6), tileHeight = pick(1, 6);
    for (gint top = 0; top < Extent; top += tileHeight) {
      for (gint left = 0; left < Extent; left += tileWidth) {
        Paper tile(tileWidth, tileHeight, left, top);
        draw(tile);
        for (gint y = top; y < std::min(top + tileHeight, Extent); ++y) {
          for (gint x = left; x < std::min(left + tileWidth, Extent); ++x) {
            ASSERT_EQ(tile.Surface.At(x, y), whole.Surface.At(x, y))
                << x << ", " << y << " of " << x1 << ", " << y1 << ", " << x2 << ", " << y2
                << ", width " << width << ", position " << position << ", tile of " << tileWidth
                << " x " << tileHeight;
          }
        }
      }
    }
  }
}

TEST(Ellipse, ExtremeNumbersAreHarmless) {
  Paper paper(2, 2);
  DrawCrcl(&paper.Surface, &paper.Gc, G_MININT, G_MININT, G_MAXINT, G_MAXINT, G_MAXINT, 0, Black,
           ColourRed);
  EXPECT_EQ(paper.Text(), R"(
rr
rr
)");
}

TEST(Ellipse, OneOfOneDotIsOutlinedOrFilled) {
  Paper outline(5, 5), filled(5, 5);
  outline.Gc.Foreground = filled.Gc.Foreground = 0;
  DrawCrcl1(&outline.Surface, &outline.Gc, 0, 0, 0, 4, 4);
  DrawCrcl1(&filled.Surface, &filled.Gc, 1, 0, 0, 4, 4);
  EXPECT_EQ(outline.Text(), R"(
.###.
#...#
#...#
#...#
.###.
)");
  EXPECT_EQ(filled.Surface.At(2, 2), 0u);
}

}  // namespace
