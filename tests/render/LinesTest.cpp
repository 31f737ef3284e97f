#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

#include "tests/render/AsciiPicture.h"

namespace {

constexpr gint Black = ColourBlack;

TEST(Lines, OnePixelWideIncludesBothEnds) {
  Paper paper(8, 3);
  DrawLine(&paper.Surface, &paper.Gc, 1, 1, 6, 1, 0, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
........
.######.
........
)");
}

TEST(Lines, OnePixelWideIgnoresThePosition) {
  Paper paper(5, 3);
  DrawLine(&paper.Surface, &paper.Gc, 2, 0, 2, 2, 0, 1, 1, Black);
  EXPECT_EQ(paper.Text(), R"(
..#..
..#..
..#..
)");
}

TEST(Lines, PointIsOnePixel) {
  Paper paper(3, 3);
  DrawLine(&paper.Surface, &paper.Gc, 1, 1, 1, 1, 0, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
...
.#.
...
)");
}

TEST(Lines, CentredVerticalOfThreeCoversOneOnEachSide) {
  Paper paper(9, 2);
  DrawLine(&paper.Surface, &paper.Gc, 4, 0, 4, 1, 0, 3, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
...###...
...###...
)");
}

TEST(Lines, CentredVerticalOfFourLeansLeft) {
  Paper paper(9, 1);
  DrawLine(&paper.Surface, &paper.Gc, 4, 0, 4, 0, 0, 4, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
..####...
)");
}

TEST(Lines, TopLeftLiesWhollyBeforeTheLine) {
  Paper paper(9, 1);
  DrawLine(&paper.Surface, &paper.Gc, 4, 0, 4, 0, 0, 3, 1, Black);
  EXPECT_EQ(paper.Text(), R"(
.###.....
)");
}

TEST(Lines, BottomRightBeginsOnTheLine) {
  Paper paper(9, 1);
  DrawLine(&paper.Surface, &paper.Gc, 4, 0, 4, 0, 0, 3, 2, Black);
  EXPECT_EQ(paper.Text(), R"(
....###..
)");
}

TEST(Lines, HorizontalPositionsMoveUpAndDown) {
  Paper paper(6, 7);
  DrawLine(&paper.Surface, &paper.Gc, 0, 3, 1, 3, 0, 2, 0, Black);
  DrawLine(&paper.Surface, &paper.Gc, 2, 3, 3, 3, 0, 3, 1, ColourRed);
  DrawLine(&paper.Surface, &paper.Gc, 4, 3, 5, 3, 0, 3, 2, Black);
  EXPECT_EQ(paper.Text(), R"(
..rr..
..rr..
##rr..
##..##
....##
....##
......
)");
}

TEST(Lines, FlatSlantedLine) {
  Paper paper(9, 3);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 8, 2, 0, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
##.......
..####...
......###
)");
}

// Exact halves go on towards the end.
TEST(Lines, SteepLineUpwards) {
  Paper paper(3, 5);
  DrawLine(&paper.Surface, &paper.Gc, 0, 4, 2, 0, 0, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
..#
..#
.#.
.#.
#..
)");
}

// Offsets 0, -1, -1, 0, -2 of a width of five: three rows only, none below the line.
TEST(Lines, WideSlantedLineRepeatsItsOffsets) {
  Paper paper(6, 6);
  DrawLine(&paper.Surface, &paper.Gc, 1, 2, 4, 3, 0, 5, 2, Black);
  EXPECT_EQ(paper.Text(), R"(
.##...
.####.
.####.
...##.
......
......
)");
}

// The sixth copy lies one below.
TEST(Lines, WideSteepLineMovesSideways) {
  Paper paper(6, 3);
  DrawLine(&paper.Surface, &paper.Gc, 2, 0, 3, 2, 0, 6, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
####..
.####.
.####.
)");
}

TEST(Lines, LongDashesCountFromTheFirstEnd) {
  Paper paper(40, 1);
  DrawLine(&paper.Surface, &paper.Gc, 1, 0, 38, 0, 1, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
.############....############....######.
)");
}

TEST(Lines, ShortDashesOfALineDrawnBackwards) {
  Paper paper(14, 1);
  DrawLine(&paper.Surface, &paper.Gc, 13, 0, 0, 0, 2, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
##..####..####
)");
}

TEST(Lines, EveryOtherStyleHasShortDashes) {
  Paper paper(8, 1);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 7, 0, 99, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
####..##
)");
}

TEST(Lines, DashesOfAWideLineStandSideBySide) {
  Paper paper(4, 8);
  DrawLine(&paper.Surface, &paper.Gc, 1, 0, 1, 7, 2, 2, 2, Black);
  EXPECT_EQ(paper.Text(), R"(
.##.
.##.
.##.
.##.
....
....
.##.
.##.
)");
}

TEST(Lines, SlantedDashesCountPixels) {
  Paper paper(8, 8);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 7, 7, 2, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
#.......
.#......
..#.....
...#....
........
........
......#.
.......#
)");
}

TEST(Lines, NoWidthOrUnknownColourDrawsNothing) {
  Paper paper(4, 1);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 3, 0, 0, 0, 0, Black);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 3, 0, 0, -5, 0, Black);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 3, 0, 0, 1, 0, -1);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 3, 0, 0, 1, 0, 103);
  EXPECT_EQ(paper.Text(), R"(
....
)");
}

TEST(Lines, FarEndsKeepSlopeAndDashes) {
  constexpr gint Far = 2000000000;
  Paper paper(6, 3);
  DrawLine(&paper.Surface, &paper.Gc, -Far, -Far, Far, Far, 0, 1, 0, Black);
  // 2,000,000,000 is 2 more than a multiple of 6, so x = 0 is the third pixel of a dash.
  DrawLine(&paper.Surface, &paper.Gc, -Far, 2, Far, 2, 2, 1, 0, ColourRed);
  EXPECT_EQ(paper.Text(), R"(
#.....
.#....
rr#.rr
)");
}

TEST(Lines, ExtremeNumbersAreHarmless) {
  Paper paper(2, 2);
  DrawLine(&paper.Surface, &paper.Gc, G_MININT, G_MININT, G_MAXINT, G_MAXINT, 1, G_MAXINT, 0, 1);
  DrawLine(&paper.Surface, &paper.Gc, G_MAXINT, 0, G_MININT, 1, 2, 1, 0, ColourRed);
  DrawLine(&paper.Surface, &paper.Gc, 0, 0, 0, 1, 0, G_MAXINT, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
##
##
)");
}

TEST(Lines, PlaneOriginMovesThePicture) {
  Paper paper(4, 2, 100, 50);
  DrawLine(&paper.Surface, &paper.Gc, 99, 51, 101, 51, 0, 1, 0, Black);
  EXPECT_EQ(paper.Text(), R"(
....
##..
)");
}

// Plain restatement of the rules: a copy of the whole line for each offset.
class PlainLines {
 public:
  explicit PlainLines(Paper& paper) : paper_(paper) {}

  void Draw(gint x1, gint y1, gint x2, gint y2, gint style, gint width, gint position) {
    if (width == 1) {
      Single(x1, y1, x2, y2, style);
      return;
    }
    for (gint k = 0; k < width; ++k) {
      const bool even = k % 2 == 0;
      const gint straight = position == 0   ? (even ? k / 2 : -(k / 2) - 1)
                            : position == 1 ? -k - 1
                                            : k;
      const gint slanted = even ? -k / 2 : k / 2 - 1;
      if (x1 == x2) {
        Single(x1 + straight, y1, x2 + straight, y2, style);
      } else if (y1 == y2) {
        Single(x1, y1 + straight, x2, y2 + straight, style);
      } else if (std::abs(x1 - x2) < std::abs(y1 - y2)) {
        Single(x1 + slanted, y1, x2 + slanted, y2, style);
      } else {
        Single(x1, y1 + slanted, x2, y2 + slanted, style);
      }
    }
  }

 private:
  void Single(gint x1, gint y1, gint x2, gint y2, gint style) {
    const gint steps = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    for (gint i = 0; i <= steps; ++i) {
      const gint on = style == 1 ? 12 : 4;
      const gint period = style == 1 ? 16 : 6;
      if (style == 0 || i % period < on) {
        FillPixels(&paper_.Surface, x1 + Share(x2 - x1, i, steps), y1 + Share(y2 - y1, i, steps), 1,
                   1, 0);
      }
    }
  }
  // distance * i / steps, rounded half away from zero.
  static gint Share(gint distance, gint i, gint steps) {
    if (steps == 0) return 0;
    const gint sign = distance < 0 ? -1 : 1;
    return sign * ((2 * std::abs(distance) * i + steps) / (2 * steps));
  }

  Paper& paper_;
};

TEST(Lines, AgreeWithPlainCopiesOfTheLine) {
  std::mt19937 random(1);
  const auto number = [&](gint low, gint high) {
    return std::uniform_int_distribution<gint>(low, high)(random);
  };
  for (int round = 0; round < 500; ++round) {
    const gint x1 = number(-20, 60), y1 = number(-20, 60);
    const gint x2 = round % 4 == 0 ? x1 : number(-20, 60);
    const gint y2 = round % 4 == 1 ? y1 : number(-20, 60);
    const gint style = number(0, 2), width = number(1, 9), position = number(0, 2);
    Paper paper(40, 40), plain(40, 40);
    DrawLine(&paper.Surface, &paper.Gc, x1, y1, x2, y2, style, width, position, Black);
    PlainLines(plain).Draw(x1, y1, x2, y2, style, width, position);
    ASSERT_EQ(paper.Text(), plain.Text())
        << x1 << "," << y1 << " " << x2 << "," << y2 << " style " << style << " width " << width;
  }
}

}  // namespace
