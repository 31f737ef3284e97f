#include <gtest/gtest.h>

#include <cstdlib>

#include "render/FontTable.h"
#include "render/fonts/FontSet.h"
#include "support/Resource.h"
#include "support/Text.h"
#include "tests/render/AsciiPicture.h"

namespace {

constexpr const char* Gothic12 = "-shinonome-gothic-medium-r-normal--12-*-*-*-c-*-*-*";
constexpr const char* Gothic16 = "-shinonome-gothic-medium-r-normal--16-*-*-*-c-*-*-*";
constexpr const char* Proportional10 = "-mplus-goth_p-medium-r-normal--10-*-*-*-p-*-*-*";

std::string Euc(std::string_view utf8) {
  return EucFromUtf8(utf8).value();
}

class TextOn : public testing::Test {
 protected:
  void SetUp() override { Load(Gothic12); }
  void TearDown() override { Load(""); }
  // Font 3 is the only one.
  static void Load(const char* descriptor) {
    for (gint i = 0; i < FontCount; ++i) {
      FontName[i][0] = '\0';
      FontHeight[i] = 0;
    }
    g_strlcpy(FontName[3], descriptor, sizeof FontName[3]);
    FontHeight[3] = FontDescriptorHeight(descriptor);
    SetDrawFont();
  }
};

TEST_F(TextOn, LatinAndKanjiAreExact) {
  Paper paper(24, 12);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, Euc("Ag日").c_str());
  EXPECT_EQ(paper.Text(), R"(
..#...........#######...
..#...........#.....#...
.#.#...####...#.....#...
.#.#..#...#...#.....#...
.#.#..#...#...#.....#...
#####.#...#...#######...
#...#.#..##...#.....#...
#...#..##.#...#.....#...
#...#.....#...#.....#...
......#...#...#.....#...
.......###....#######...
........................
)");
}

TEST_F(TextOn, HalfWidthKanaHasACharsetOfItsOwn) {
  Paper paper(6, 12);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, "\x8e\xb1");
  EXPECT_EQ(paper.Text(), R"(
......
#####.
....#.
..#.#.
..##..
..##..
..#...
.#....
.#....
#.....
......
......
)");
}

TEST_F(TextOn, BackgroundCoversAdvanceAndLineHeight) {
  FontHeight[3] = 14;
  Paper paper(8, 15);
  DrawText(&paper.Surface, &paper.Gc, 1, 0, 3, ColourBlack, ColourRed, "A");
  EXPECT_EQ(paper.Text(), R"(
.rrrrrr.
.rrrrrr.
.rr#rrr.
.rr#rrr.
.r#r#rr.
.r#r#rr.
.r#r#rr.
.#####r.
.#rrr#r.
.#rrr#r.
.#rrr#r.
.rrrrrr.
.rrrrrr.
.rrrrrr.
........
)");
}

// All cells of the font are alike, yet the ink counts: "日" ends three columns before its cell
// does, it rises 9 above the baseline and "g" goes 2 below it.
TEST_F(TextOn, SizeIsTheInkInTheCells) {
  const SIZE size = GetTextSize(3, Euc("Ag日").c_str());
  EXPECT_EQ(size.cx, 21);
  EXPECT_EQ(size.cy, 11);
}

TEST_F(TextOn, BlanksHaveAPlaceAndNoHeight) {
  const SIZE size = GetTextSize(3, "   ");
  EXPECT_EQ(size.cx, 12);
  EXPECT_EQ(size.cy, 0);
}

// The ink of "," stands in the middle of the line, that of "-" as well.
TEST_F(TextOn, TheInkIsCentredInTheLine) {
  Load(Gothic16);
  for (const char* text : {",", "-"}) {
    Paper paper(8, 16);
    DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, text);
    EXPECT_EQ(paper.Text(), text[0] == ',' ? R"(
........
........
........
........
........
........
.##.....
..#.....
..#.....
.#......
........
........
........
........
........
........
)"
                                           : R"(
........
........
........
........
........
........
........
#######.
........
........
........
........
........
........
........
........
)");
  }
}

// "i" begins one pixel behind its origin and ends two behind it; both bearings add up.
TEST_F(TextOn, SizeAddsTheBearings) {
  Load(Proportional10);
  const SIZE size = GetTextSize(3, "i");
  EXPECT_EQ(size.cx, 3);
  EXPECT_EQ(size.cy, 8);
}

// The ink of "i" rises 8 above the baseline: (8 + 10 - 0) / 2 = 9 is its baseline.
TEST_F(TextOn, BaselineFollowsTheInk) {
  Load(Proportional10);
  Paper paper(3, 10);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, "i");
  EXPECT_EQ(paper.Text(), R"(
...
.#.
...
...
.#.
.#.
.#.
.#.
.#.
...
)");
}

TEST_F(TextOn, NothingToDrawIsNoSize) {
  Paper paper(3, 1);
  for (const gint font : {-1, 0, 21, 1000000}) {
    const SIZE size = GetTextSize(font, "A");
    EXPECT_EQ(size.cx, 0);
    EXPECT_EQ(size.cy, 0);
    DrawText(&paper.Surface, &paper.Gc, 0, 0, font, ColourBlack, ColourRed, "A");
  }
  EXPECT_EQ(GetTextSize(3, "").cx, 0);
  EXPECT_EQ(GetTextSize(3, "").cy, 0);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, ColourRed, "");
  EXPECT_EQ(paper.Text(), R"(
...
)");
}

TEST_F(TextOn, UnknownColoursAreLeftOut) {
  Paper paper(6, 1);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, 103, ColourRed, "A");
  EXPECT_EQ(paper.Text(), R"(
rrrrrr
)");
}

TEST_F(TextOn, BytesThatAreNoTextAreSkipped) {
  const SIZE plain = GetTextSize(3, "AA");
  const SIZE broken = GetTextSize(3,
                                  "A\xff\x80\x8e\x8f\xa1"
                                  "A\xc6");
  EXPECT_EQ(broken.cx, plain.cx);
}

TEST_F(TextOn, IsClippedAtTheEdges) {
  Paper paper(3, 2, 2, 6);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, "A");
  DrawText(&paper.Surface, &paper.Gc, G_MAXINT, G_MININT, 3, ColourBlack, ColourRed, "A");
  EXPECT_EQ(paper.Text(), R"(
###
..#
)");
}

TEST_F(TextOn, AliasNamesWork) {
  Load("k14");
  FontHeight[3] = 14;
  EXPECT_EQ(GetTextSize(3, Euc("日本").c_str()).cx, 3 + 28);
  EXPECT_EQ(GetTextSize(3, "AB").cx, 13);
}

TEST_F(TextOn, ScalableFontsServeWhereNoBitmapFits) {
  Load("-nobody-unheard-medium-r-normal--37-*-*-*-c-*-*-*");
  Paper paper(80, 40);
  DrawText(&paper.Surface, &paper.Gc, 0, 0, 3, ColourBlack, -1, Euc("日A").c_str());
  const std::string text = paper.Text();
  EXPECT_NE(text.find('#'), std::string::npos);
  EXPECT_EQ(text.find('?'), std::string::npos) << "no smoothed edges";
  EXPECT_GT(GetTextSize(3, "A").cy, 15);
}

// Another root makes every bitmap font vanish, and back again.
TEST_F(TextOn, FontRootCanBeSet) {
  setenv("VARNIX_FONT_PATH", "/nonexistent", 1);
  EXPECT_FALSE(FontSet(Gothic12).NamesBitmapFont());
  unsetenv("VARNIX_FONT_PATH");
  EXPECT_TRUE(FontSet(Gothic12).NamesBitmapFont());
}

// The face has its centred label 2 from the left, on the line that begins at its top.
TEST_F(TextOn, ButtonIsAFramedBoxWithALabel) {
  Paper paper(11, 15);
  DrawButn(&paper.Surface, &paper.Gc, 0, 0, 10, 14, 1, 1, 0, ColourRed, ColourBlack, 0, 3, "A");
  EXPECT_EQ(paper.Text(), R"(
gggggggggog
grrrrrrrro.
grrr#rrrro.
grrr#rrrro.
grr#r#rrro.
grr#r#rrro.
grr#r#rrro.
gr#####rro.
gr#rrr#rro.
gr#rrr#rro.
gr#rrr#rro.
grrrrrrrro.
grrrrrrrro.
goooooooooo
g........o.
)");
}

using Names = std::vector<std::string>;

TEST(FontNames, CharsetIsPutIn) {
  EXPECT_EQ(
      ExactNames("-misc-fixed-medium-r-normal--14-130-75-75-c-140-jisx0208.1983-0", "iso8859-1"),
      (Names{"-misc-fixed-medium-r-normal--14-130-75-75-c-140-iso8859-1",
             "-misc-fixed-medium-r-normal--14-130-*-*-c-*-iso8859-1"}));
}

TEST(FontNames, ShortDescriptorsAreCompleted) {
  EXPECT_EQ(ExactNames("-*-fixed-*--16-*", "jisx0208.*-0").back(),
            "-*-fixed-*--16-**-jisx0208.*-0");
}

TEST(FontNames, RelatedFontsKeepSizeWeightAndSlant) {
  EXPECT_EQ(RelatedNames("-sony-fixed-bold-i-normal--16-120-100-100-c-80-jisx0201.1976-0",
                         "jisx0208.*-0"),
            (Names{"-sony-*-bold-i-*-*-16-*-*-*-*-*-jisx0208.*-0",
                   "-*-*-bold-i-*-*-16-*-*-*-*-*-jisx0208.*-0"}));
  EXPECT_EQ(RelatedNames("-a-b-medium-r-normal--*-120-*-*-c-*-*-*", "iso8859-1").front(),
            "-a-*-medium-r-*-*-*-120-*-*-*-*-iso8859-1");
  EXPECT_EQ(RelatedNames("-*-fixed-medium-r-*-*-*-*-*-*-*-*-*-*", "iso8859-1"), Names{});
}

TEST(FontSet, EveryCharsetIsDrawnWhereNoBitmapFontHasTheSize) {
  FontSet font("-nowhere-none-medium-r-normal--61-*-*-*-c-*-*-*");
  const gint latin = font.Measure("A").Width;
  EXPECT_GT(latin, 0);
  for (const char* text : {"\x8e\xb1", "\xb1\xb2", "\x8f\xb0\xa1"}) {
    EXPECT_GT(font.Measure(text).Width, 0) << text;
    EXPECT_EQ(font.Measure(std::string("A") + text).Width, latin + font.Measure(text).Width);
  }
}

}  // namespace
