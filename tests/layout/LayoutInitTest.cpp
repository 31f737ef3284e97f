#include <gtest/gtest.h>

#include <cstring>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Store.h"
#include "tests/common/TempFolder.h"

namespace {

class LayoutInitTest : public testing::Test {
 protected:
  void SetUp() override {
    std::strcpy(PathName, folder_.Path().c_str());
    folder_.Write("VarnixMaster.ini", "[PTRNDATA]\nZOOM=2\nTITLE=One,Two,Three\n");
    ProjData = PROJDATA{};
    for (gint i = 0; i < 20; ++i) {
      ProjData.Parm1[i] = 100 + i;
      ProjData.Parm3[i] = 300 + i;
      ProjData.Parm4[i] = 400 + i;
    }
    for (gint i = 0; i < 30; ++i) ProjData.Parm2[i] = 200 + i;
    ProjData.Parm1[0] = 1;
    std::strcpy(ProjData.LogoName, "Logo.bmp");
    std::memset(&EditHedr, 0x55, sizeof EditHedr);
  }
  void TearDown() override {
    ProjData = PROJDATA{};
    PathName[0] = '\0';
  }

  // Every setting that is not named is expected to be 0.
  static void ExpectParm1(std::initializer_list<std::pair<gint, gint>> settings) {
    gint expected[30] = {};
    for (const auto& [slot, value] : settings) expected[slot] = value;
    for (gint i = 0; i < 30; ++i) EXPECT_EQ(EditHedr.Parm1[i], expected[i]) << "Parm1 " << i;
  }
  static void ExpectCommonFields() {
    const gint expected[10] = {2, 0, 403, 404, 0, 0, 405, 0, 0, 0};
    for (gint i = 0; i < 10; ++i) EXPECT_EQ(EditHedr.Parm2[i], expected[i]) << "Parm2 " << i;
    EXPECT_STREQ(EditHedr.PtrnName1, "One");
    EXPECT_STREQ(EditHedr.PtrnName2, "Two");
    EXPECT_STREQ(EditHedr.PtrnName3, "Three");
    EXPECT_STREQ(EditHedr.BmapName, "");
    EXPECT_EQ(EditHedr.Version, 0);
    EXPECT_EQ(+EditHedr.DataCount, 0);
    EXPECT_EQ(+EditHedr.TextSize, 0);
    EXPECT_EQ(+EditHedr.UndfFlag, 0);
  }

  TempFolder folder_;
};

TEST_F(LayoutInitTest, ParentWindow) {
  PtrnFileInit(0);
  ExpectParm1({{1, 1024}, {2, 768},  {3, 1},    {8, 200},  {9, 201},  {10, 202}, {11, 203},
               {12, 204}, {13, 205}, {14, 206}, {15, 207}, {16, 208}, {17, 209}, {18, 210},
               {19, 211}, {21, 212}, {22, 213}, {25, 400}, {27, 401}, {28, 402}});
  EXPECT_STREQ(EditHedr.LogoName, "Logo.bmp");
  ExpectCommonFields();
}

TEST_F(LayoutInitTest, ChildWindow) {
  PtrnFileInit(1);
  ExpectParm1({{0, 1},
               {1, 308},
               {2, 309},
               {4, 1},
               {8, 300},
               {9, 301},
               {10, 302},
               {11, 303},
               {12, 304},
               {19, 305},
               {23, 306},
               {24, 307},
               {25, 400},
               {27, 401},
               {28, 402}});
  EXPECT_STREQ(EditHedr.LogoName, "");
  ExpectCommonFields();
}

TEST_F(LayoutInitTest, AnyOtherKind) {
  for (const gint kind : {2, 3, -1}) {
    PtrnFileInit(kind);
    ExpectParm1({{0, 2}});
    ExpectCommonFields();
  }
}

TEST_F(LayoutInitTest, AnUnknownDisplaySizeTakesTheFirst) {
  ProjData.Parm1[0] = 7;
  PtrnFileInit(0);
  EXPECT_EQ(EditHedr.Parm1[1], 800);
  EXPECT_EQ(EditHedr.Parm1[2], 600);
  EXPECT_EQ(EditHedr.Parm1[3], 7);
}

TEST_F(LayoutInitTest, WithoutProfileZoomAndTitlesAreEmpty) {
  std::filesystem::remove(folder_.Path("VarnixMaster.ini"));
  PtrnFileInit(2);
  EXPECT_EQ(EditHedr.Parm2[0], 0);
  EXPECT_STREQ(EditHedr.PtrnName1, "");
}

TEST_F(LayoutInitTest, ALongTitleIsCutToItsField) {
  folder_.Write("VarnixMaster.ini",
                "[PTRNDATA]\nTITLE=" + std::string(95, 'a') + "," + std::string(98, 'b') + "\n");
  PtrnFileInit(0);
  EXPECT_EQ(EditHedr.PtrnName1, std::string(81, 'a'));
  EXPECT_EQ(EditHedr.PtrnName2, std::string(81, 'b'));
  EXPECT_STREQ(EditHedr.PtrnName3, "");
}

}  // namespace
