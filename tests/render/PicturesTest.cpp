#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "PtrnMisc.h"
#include "render/LayoutPicture.h"
#include "render/Pictures.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

struct Shape {
  const gchar** Picture;
  const char* Header;
};

const Shape Recoloured[] = {
    {XPM_SpinButn, "16 32 3 1"},   {XPM_UpArrow1, "32 32 3 1"},    {XPM_UpArrow2, "32 32 3 1"},
    {XPM_DownArrow1, "32 32 3 1"}, {XPM_DownArrow2, "32 32 3 1"},  {XPM_LeftArrow1, "32 32 3 1"},
    {XPM_LeftArrow2, "32 32 3 1"}, {XPM_RightArrow1, "32 32 3 1"}, {XPM_RightArrow2, "32 32 3 1"},
    {XPM_Printer, "32 32 3 1"},
};

// Gives the pictures their built-in colours back.
class Pictures : public testing::Test {
 protected:
  void SetUp() override {
    for (const Shape& shape : Recoloured) saved_.emplace_back(shape.Picture + 1, shape.Picture + 4);
    g_strlcpy(PathName, folder_.Path().c_str(), sizeof PathName);
  }
  void TearDown() override {
    for (std::size_t i = 0; i < saved_.size(); ++i) {
      std::copy(saved_[i].begin(), saved_[i].end(), Recoloured[i].Picture + 1);
    }
    PathName[0] = '\0';
  }
  void Profile(const char* text) { folder_.Write("VarnixMaster.ini", text); }

  TempFolder folder_;
  std::vector<std::vector<const gchar*>> saved_;
};

TEST_F(Pictures, HaveTheirSizesAndColours) {
  for (const Shape& shape : Recoloured) {
    EXPECT_STREQ(shape.Picture[0], shape.Header);
    EXPECT_STREQ(shape.Picture[1], "  c #FFFFFF");
    EXPECT_STREQ(shape.Picture[2], ". c #C0C0C0");
    EXPECT_STREQ(shape.Picture[3], "X c #000000");
    const std::size_t width = std::strncmp(shape.Header, "16", 2) == 0 ? 16 : 32;
    for (gint row = 4; row < 36; ++row) {
      EXPECT_EQ(std::strlen(shape.Picture[row]), width);
      EXPECT_EQ(std::strspn(shape.Picture[row], " .X"), width);
    }
  }
}

TEST_F(Pictures, ProfileRecoloursAllButOneArrow) {
  Profile(
      "[COLOR]\nXPM_COLR1=111111,222222,333333\nXPM_COLR2=444444,555555,666666\n"
      "XPM_COLR3=777777,888888,999999\n");
  XPM_DataInit();
  EXPECT_STREQ(XPM_Printer[1], "  c #111111");
  EXPECT_STREQ(XPM_Printer[2], ", c #222222");
  EXPECT_STREQ(XPM_Printer[3], "X c #333333");
  EXPECT_STREQ(XPM_SpinButn[1], "  c #444444");
  for (const gchar** arrow : {XPM_UpArrow1, XPM_UpArrow2, XPM_DownArrow1, XPM_LeftArrow1,
                              XPM_LeftArrow2, XPM_RightArrow1, XPM_RightArrow2}) {
    EXPECT_STREQ(arrow[1], "  c #777777");
    EXPECT_STREQ(arrow[2], ", c #888888");
    EXPECT_STREQ(arrow[3], "X c #999999");
  }
  EXPECT_STREQ(XPM_DownArrow2[1], "  c #FFFFFF");
  EXPECT_STREQ(XPM_DownArrow2[2], ". c #C0C0C0");
  EXPECT_STREQ(XPM_DownArrow2[3], "X c #000000");
}

TEST_F(Pictures, FieldsOfAnotherLengthStayAsBuiltIn) {
  Profile("[COLOR]\nXPM_COLR3=12345,,1234567\n");
  XPM_DataInit();
  EXPECT_STREQ(XPM_UpArrow1[1], "  c #FFFFFF");
  EXPECT_STREQ(XPM_UpArrow1[2], ". c #C0C0C0");
  EXPECT_STREQ(XPM_UpArrow1[3], "X c #000000");
}

TEST_F(Pictures, PixelsWithoutADefinitionTakeTheFirstColour) {
  const gchar* picture[] = {"3 1 3 1", "  c #FF0000", ", c #00FF00", "X c #000000", " .X"};
  Paper paper(3, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 3, 1, picture);
  EXPECT_EQ(paper.Text(), R"(
rr#
)");
}

TEST_F(Pictures, OfTwoColoursOfALetterTheFirstCounts) {
  const gchar* picture[] = {"2 1 3 1", "  c #000000", "X c #FF0000", "X c #00FF00", "X "};
  Paper paper(2, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  EXPECT_EQ(paper.Text(), R"(
r#
)");
  // So it does when it is the first colour of all, which letters without one take, too.
  const gchar* first[] = {"3 1 3 1", "X c #FF0000", "X c #00FF00", "  c #000000", "X .", nullptr};
  Paper other(3, 1);
  DrawXpm(&other.Surface, &other.Gc, 0, 0, 3, 1, first);
  EXPECT_EQ(other.Text(), R"(
r#r
)");
}

TEST_F(Pictures, AColourLineWithoutALetterIsPassedOver) {
  const gchar* picture[] = {"3 1 3 1", "X c #FF0000", "", "  c #00FF00", "X "};
  Paper paper(3, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 3, 1, picture);
  EXPECT_EQ(paper.Text(), R"(
rgr
)");
}

TEST_F(Pictures, PixelsThatARowLacksTakeTheFirstColour) {
  const gchar* picture[] = {"3 2 2 1", "  c #FF0000", "X c #000000", "X", "XXX"};
  Paper paper(3, 2);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 3, 2, picture);
  EXPECT_EQ(paper.Text(), R"(
#rr
###
)");
}

TEST_F(Pictures, DigitsOfAColourAreOfEitherCase) {
  const gchar* picture[] = {"2 1 2 1", "  c #ff0000", "X c #00Ff00", " X"};
  Paper paper(2, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  EXPECT_EQ(paper.Text(), R"(
rg
)");
}

TEST_F(Pictures, OfTheGreatestSizesAreDrawn) {
  // One row or column, one dot for each of its pixels.
  const auto draws = [](gint width, gint height, gint colours) {
    const std::string header =
        std::to_string(width) + " " + std::to_string(height) + " " + std::to_string(colours) + " 1";
    const std::string row(static_cast<std::size_t>(std::max(width, 1)), 'X');
    std::vector<const gchar*> picture{header.c_str()};
    picture.insert(picture.end(), static_cast<std::size_t>(std::max(colours, 1)), "X c #000000");
    picture.insert(picture.end(), static_cast<std::size_t>(std::max(height, 1)), row.c_str());
    Paper paper(1, 1);
    DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 1, 1, picture.data());
    return paper.Surface.At(0, 0) == 0;
  };
  EXPECT_TRUE(draws(256, 1, 1));
  EXPECT_FALSE(draws(257, 1, 1));
  EXPECT_TRUE(draws(1, 256, 1));
  EXPECT_FALSE(draws(1, 257, 1));
  EXPECT_TRUE(draws(1, 1, 16));
  EXPECT_FALSE(draws(1, 1, 17));
  EXPECT_FALSE(draws(0, 1, 1));
  EXPECT_FALSE(draws(1, 0, 1));
  EXPECT_FALSE(draws(1, 1, 0));
}

TEST_F(Pictures, ColoursThatAreNoNumbersAreBlack) {
  const gchar* picture[] = {"2 1 2 1", "  c #zzzzzz", "X c None", " X"};
  Paper paper(2, 1);
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  EXPECT_EQ(paper.Text(), R"(
##
)");
}

TEST_F(Pictures, BrokenPictureTextDrawsNothing) {
  const gchar* noHeader[] = {"", "  c #000000", " "};
  const gchar* huge[] = {"99999 99999 1 1", "  c #000000", " "};
  const gchar* twoCharacters[] = {"1 1 1 2", "   c #000000", "  "};
  Paper paper(2, 1);
  for (const gchar* const* picture : {noHeader, huge, twoCharacters}) {
    DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, picture);
  }
  DrawXpm(&paper.Surface, &paper.Gc, 0, 0, 2, 1, nullptr);
  EXPECT_EQ(paper.Text(), R"(
..
)");
}

TEST_F(Pictures, CursorBitsComeFromBlanksAndCrosses) {
  std::vector<std::string> rows(32, std::string(32, ' '));
  rows[0][0] = 'X';
  rows[0][9] = '.';
  rows[31][31] = 'X';
  std::vector<const gchar*> picture = {"32 32 3 1", "  c None", ". c #FFFFFF", "X c #000000"};
  for (const std::string& row : rows) picture.push_back(row.c_str());
  guint8 data[128], mask[128];
  std::memset(data, 0xaa, sizeof data);
  std::memset(mask, 0xaa, sizeof mask);
  MakeCursor(picture.data(), data, mask);
  guint8 expectedData[128] = {}, expectedMask[128] = {};
  expectedData[0] = expectedMask[0] = 0x01;
  expectedMask[1] = 0x02;
  expectedData[127] = expectedMask[127] = 0x80;
  EXPECT_EQ(std::memcmp(data, expectedData, sizeof data), 0);
  EXPECT_EQ(std::memcmp(mask, expectedMask, sizeof mask), 0);
}

TEST_F(Pictures, EveryCursorHasInkAndAHotSpotOnItsMask) {
  XPM_DataInit();
  const POINT homes[8] = {{1, 1},  {15, 15}, {15, 16}, {15, 15},
                          {9, 15}, {15, 9},  {12, 12}, {12, 12}};
  for (gint i = 0; i < 8; ++i) {
    EXPECT_EQ(CursorHome[i].x, homes[i].x);
    EXPECT_EQ(CursorHome[i].y, homes[i].y);
    EXPECT_NE(CursorMask[i][4 * homes[i].y + homes[i].x / 8] & 1 << homes[i].x % 8, 0) << i;
    gint ink = 0;
    for (gint byte = 0; byte < 128; ++byte) {
      ink += CursorData[i][byte] != 0;
      EXPECT_EQ(CursorData[i][byte] & ~CursorMask[i][byte], 0) << "ink outside of the mask";
    }
    EXPECT_GT(ink, 8) << i;
  }
}

// A light edge keeps the dark shape visible on a dark palette, as its own colour does on a light
// one.
TEST_F(Pictures, EveryPointersDarkShapeLiesWithinALightEdge) {
  XPM_DataInit();
  const auto bit = [](const guint8* bits, gint x, gint y) {
    return (bits[4 * y + x / 8] & 1 << x % 8) != 0;
  };
  for (gint no = 0; no < 8; no++) {
    for (gint y = 1; y < 31; y++) {
      for (gint x = 1; x < 31; x++) {
        if (bit(CursorData[no], x, y)) {
          EXPECT_TRUE(bit(CursorMask[no], x - 1, y)) << no << ": " << x << ", " << y;
          EXPECT_TRUE(bit(CursorMask[no], x + 1, y)) << no << ": " << x << ", " << y;
          EXPECT_TRUE(bit(CursorMask[no], x, y - 1)) << no << ": " << x << ", " << y;
          EXPECT_TRUE(bit(CursorMask[no], x, y + 1)) << no << ": " << x << ", " << y;
        }
      }
    }
  }
}

TEST_F(Pictures, StartReadsCursorColoursAndFixedColours) {
  Profile("[COLOR]\nCURSOR_FG=65535,4096,0\nCURSOR_BG=0,1,65280\n");
  InitDrawData();
  EXPECT_EQ(CusrColr[0].red, 65535);
  EXPECT_EQ(CusrColr[0].green, 4096);
  EXPECT_EQ(CusrColr[0].pixel, 0xff1000u);
  EXPECT_EQ(CusrColr[1].green, 1);
  EXPECT_EQ(CusrColr[1].pixel, 0x0000ffu);
  EXPECT_EQ(DrawColr[100].pixel, 0xffffffu);
  EXPECT_EQ(DrawColr[101].pixel, 0x000000u);
  EXPECT_EQ(DrawColr[102].pixel, 0xff0000u);
  EXPECT_EQ(DrawColr[102].red, 65535);
  EXPECT_GT(GetTextSize(SmallFont, "A").cy, 0) << "the small font is there";
  EXPECT_EQ(GetTextSize(0, "A").cy, 0) << "no other font is";
  EXPECT_STREQ(Mark_XPM[MarkRadioOn].mark[0], "16 16 2 1");
}

}  // namespace
