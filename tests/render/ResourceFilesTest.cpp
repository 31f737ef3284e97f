#include <gtest/gtest.h>

#include <cstring>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

using namespace std::string_literals;

class ResourceFiles : public testing::Test {
 protected:
  void SetUp() override {
    g_strlcpy(ProjPath, folder_.Path().c_str(), sizeof ProjPath);
    g_strlcpy(PathName, folder_.Path().c_str(), sizeof PathName);
    MarkDataInit();
  }
  void TearDown() override {
    ProjPath[0] = PathName[0] = '\0';
    Language = 0;
    std::memset(ColrData, 0, sizeof ColrData);
    std::memset(MarkData, 0, sizeof MarkData);
  }
  void Profile(const std::string& text) { folder_.Write("VarnixMaster.ini", text); }

  TempFolder folder_;
};

TEST_F(ResourceFiles, PaletteIsReadInColourOrder) {
  folder_.Write("PtrnColr", Bytes().Ints({65535, 4660, 1, 256, 512, 768}).Zeros(1200 - 24).Str());
  LoadColrFile();
  EXPECT_EQ(ColrData[0].red, 65535);
  EXPECT_EQ(ColrData[0].green, 4660);
  EXPECT_EQ(ColrData[0].blue, 1);
  EXPECT_EQ(ColrData[1].blue, 768);
  EXPECT_EQ(DrawColr[0].red, 65535);
  EXPECT_EQ(DrawColr[0].green, 4660);
  EXPECT_EQ(DrawColr[0].pixel, 0xff1200u);
  EXPECT_EQ(DrawColr[1].pixel, 0x010203u);
}

TEST_F(ResourceFiles, ComponentsKeepTheirLowSixteenBits) {
  ColrData[99] = {0x12345, -1, 65536};
  SetDrawColr();
  EXPECT_EQ(DrawColr[99].red, 0x2345);
  EXPECT_EQ(DrawColr[99].green, 0xffff);
  EXPECT_EQ(DrawColr[99].blue, 0);
  EXPECT_EQ(DrawColr[99].pixel, 0x23ff00u);
}

TEST_F(ResourceFiles, MissingAndShortPalettesAreBlack) {
  for (const bool present : {false, true}) {
    if (present) folder_.Write("PtrnColr", std::string(1199, '\x7f'));
    std::memset(ColrData, 0x55, sizeof ColrData);
    LoadColrFile();
    for (gint i = 0; i < ColrCount; ++i) {
      EXPECT_EQ(ColrData[i].red | ColrData[i].green | ColrData[i].blue, 0);
      EXPECT_EQ(DrawColr[i].pixel, 0u);
    }
  }
}

TEST_F(ResourceFiles, PaletteIsWrittenAsTwelveHundredBytes) {
  ColrData[0] = {1, 2, 3};
  ColrData[99] = {65535, 0, 256};
  SaveColrFile();
  EXPECT_EQ(folder_.Read("PtrnColr"),
            Bytes().Ints({1, 2, 3}).Zeros(1200 - 24).Ints({65535, 0, 256}).Str());
  EXPECT_EQ(DrawColr[99].pixel, 0xff0001u);
}

TEST_F(ResourceFiles, MarksAreReadAndRebuilt) {
  folder_.Write("PtrnMark", Bytes().Zeros(512 * 100).Raw("\x81").Zeros(179200 - 51201).Str());
  LoadMarkFile();
  EXPECT_EQ(MarkData[100].mark[0], 0x81);
  EXPECT_STREQ(Mark_XPM[100].mark[3], "X......X........................");
}

TEST_F(ResourceFiles, MissingAndShortMarksAreEmpty) {
  for (const bool present : {false, true}) {
    if (present) folder_.Write("PtrnMark", std::string(179199, '\xff'));
    std::memset(MarkData, 0xff, sizeof MarkData);
    LoadMarkFile();
    EXPECT_EQ(MarkData[0].mark[0], 0);
    EXPECT_EQ(MarkData[349].mark[511], 0);
    EXPECT_STREQ(Mark_XPM[0].mark[3], "................");
  }
}

TEST_F(ResourceFiles, MarksAreWrittenAsTheyStand) {
  MarkData[0].mark[0] = 0x12;
  MarkData[349].mark[511] = 0x34;
  SaveMarkFile();
  EXPECT_EQ(folder_.Read("PtrnMark"), "\x12"s + std::string(179198, '\0') + "\x34");
}

TEST_F(ResourceFiles, FontsOfTheLanguageAreListed) {
  Profile(
      "[VARNIXPACK]\nLANGUAGE=1\n[FONT]\nFONTNAME0=no,-a-b-medium-r-normal--10-*-*-*-c-*-*-*\n"
      // "中" in the profile's own encoding.
      "FONTNAME20=\xc3\xe6 16,-misc-fixed-medium-r-normal--16-130-75-75-c-140-jisx0208.1983-0\n"
      "FONTNAME21=x,-a-b-medium-r-normal--*-140-75-75-c-*-*-*\nFONTNAME22=only\n"
      "FONTNAME39=last,-a-b-medium-r-normal--12345-*-*-*-c-*-*-*\n");
  FontDataInit(1);
  EXPECT_EQ(Language, 1);
  EXPECT_STREQ(FontList[0], "中 16");
  EXPECT_STREQ(FontName[0], "-misc-fixed-medium-r-normal--16-130-75-75-c-140-jisx0208.1983-0");
  EXPECT_EQ(FontHeight[0], 16);
  EXPECT_EQ(FontHeight[1], 14);
  EXPECT_STREQ(FontList[2], "only");
  EXPECT_STREQ(FontName[2], "");
  EXPECT_EQ(FontHeight[2], 0);
  EXPECT_EQ(FontHeight[19], 1234);
  EXPECT_EQ(FontNameList[19], FontList[19]);
  EXPECT_EQ(GetTextSize(0, "A").cy, 13) << "the font is loaded";
  EXPECT_EQ(GetTextSize(2, "A").cy, 0) << "no name, no font";
}

TEST_F(ResourceFiles, LanguageIsKeptWithoutMode) {
  Profile("[VARNIXPACK]\nLANGUAGE=1\n[FONT]\nFONTNAME40=c,-a-b-m-r-n--20-*-*-*-c-*-*-*\n");
  Language = 2;
  FontDataInit(0);
  EXPECT_EQ(Language, 2);
  EXPECT_EQ(FontHeight[0], 20);
}

TEST_F(ResourceFiles, UnknownLanguageCountsAsTheFirst) {
  Profile("[VARNIXPACK]\nLANGUAGE=7\n[FONT]\nFONTNAME0=c,-a-b-m-r-n--20-*-*-*-c-*-*-*\n");
  FontDataInit(1);
  EXPECT_EQ(Language, 0);
  EXPECT_EQ(FontHeight[0], 20);
}

}  // namespace
