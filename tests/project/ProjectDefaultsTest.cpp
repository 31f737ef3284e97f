#include <gtest/gtest.h>

#include "tests/project/ProjectFixture.h"

namespace {

using ProjectDefaultsTest = ProjectFixture;

TEST_F(ProjectDefaultsTest, EveryKeyFillsItsFields) {
  WriteProfile(
      "[PROJDATA]\nPROG=/home/user/source\nPTRNSIZE=1\nLANGUAGE=2\nCOLOR=3\nMAIN1=10,11,12\n"
      "MAIN2=13,14\nMAIN3=15,16\nMAIN4=17,18\nMAIN5=19,20\nMAIN6=21\nMAIN7=22,23\n"
      "CHILD1=30,31,32\nCHILD2=33,34\nCHILD3=35\nCHILD4=36,37\nCHILD5=38,39\nMOUSE=40\n"
      "KEYCOLOR=41,42\nGRIDDATA=43,44,45\nCOLOR0=1,2,3\nCOLOR99=65535,4,5\n");
  EditData = PROJDATA{};
  ProjSetDefault();
  EXPECT_STREQ(EditData.ProgPath, "/home/user/source");
  for (gint i = 0; i < 3; ++i) EXPECT_EQ(EditData.Parm1[i], 1 + i) << i;
  for (gint i = 0; i < 14; ++i) EXPECT_EQ(EditData.Parm2[i], 10 + i) << i;
  for (gint i = 0; i < 10; ++i) EXPECT_EQ(EditData.Parm3[i], 30 + i) << i;
  for (gint i = 0; i < 6; ++i) EXPECT_EQ(EditData.Parm4[i], 40 + i) << i;
  EXPECT_EQ(ColrData[0].red, 1);
  EXPECT_EQ(ColrData[0].green, 2);
  EXPECT_EQ(ColrData[0].blue, 3);
  EXPECT_EQ(ColrData[99].red, 65535);
  EXPECT_EQ(ColrData[99].blue, 5);
}

TEST_F(ProjectDefaultsTest, MissingKeysGiveZeroAndTheRestStays) {
  std::memset(&EditData, 0x11, sizeof EditData);
  std::strcpy(EditData.PtrnStart, "Start");
  ColrData[7] = {1, 1, 1};
  ProjSetDefault();
  EXPECT_STREQ(EditData.ProgPath, "");
  EXPECT_STREQ(EditData.LogoName, "");
  EXPECT_EQ(EditData.Parm1[2], 0);
  EXPECT_EQ(EditData.Parm2[13], 0);
  EXPECT_EQ(EditData.Parm3[9], 0);
  EXPECT_EQ(EditData.Parm4[5], 0);
  EXPECT_EQ(ColrData[7].red, 0);
  EXPECT_STREQ(EditData.PtrnStart, "Start");
  EXPECT_EQ(EditData.Parm1[3], 0x11111111);
  EXPECT_EQ(EditData.Parm2[14], 0x11111111);
  EXPECT_EQ(EditData.Parm3[10], 0x11111111);
  EXPECT_EQ(EditData.Parm4[6], 0x11111111);
}

}  // namespace
