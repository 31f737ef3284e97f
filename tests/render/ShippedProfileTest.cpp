// The profile as the build ships it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "PtrnMisc.h"

namespace {

class ShippedProfile : public testing::Test {
 protected:
  void SetUp() override { g_strlcpy(PathName, TEST_BUILD_DIR "/VarnixMaster", sizeof(PathName)); }
  void TearDown() override {
    Language = 0;
    FontDataInit(0);
  }
};

TEST_F(ShippedProfile, NamesTwentyFontsOfTenToTwentyFourDotsInEachLanguage) {
  gchar shown[100];
  gchar descriptor[100];
  for (gint no = 0; no < 60; ++no) {
    EXPECT_EQ(ProfileRead2("", "FONT", "FONTNAME", no, "ss", shown, descriptor), 2) << no;
  }
  for (Language = 0; Language < 3; ++Language) {
    FontDataInit(0);
    EXPECT_THAT(FontHeight, testing::Each(testing::AllOf(testing::Ge(10), testing::Le(24))));
  }
}

TEST_F(ShippedProfile, GivesNewProjectsAHundredColours) {
  gint red;
  gint green;
  gint blue;
  for (gint no = 0; no < 100; ++no) {
    EXPECT_EQ(ProfileRead2("", "PROJDATA", "COLOR", no, "iii", &red, &green, &blue), 3) << no;
  }
}

TEST_F(ShippedProfile, FillsEveryDefaultOfANewProject) {
  const struct {
    const gchar* Key;
    gint Fields;
  } keys[] = {{"PTRNSIZE", 1}, {"LANGUAGE", 1}, {"COLOR", 1},   {"MAIN1", 3},  {"MAIN2", 2},
              {"MAIN3", 2},    {"MAIN4", 2},    {"MAIN5", 2},   {"MAIN6", 1},  {"MAIN7", 2},
              {"CHILD1", 3},   {"CHILD2", 2},   {"CHILD3", 1},  {"CHILD4", 2}, {"CHILD5", 2},
              {"MOUSE", 1},    {"KEYCOLOR", 2}, {"GRIDDATA", 3}};
  for (const auto& [key, fields] : keys) {
    gint a;
    gint b;
    gint c;
    EXPECT_EQ(ProfileRead1("", "PROJDATA", key, std::string(fields, 'i').c_str(), &a, &b, &c),
              fields)
        << key;
  }
}

// Whatever were suggested, the second project would be made over the first, and the second layout
// saved over the first. The keys are there for who wants suggestions.
TEST_F(ShippedProfile, SuggestsNoNameAndNoFolder) {
  std::ifstream file(TEST_BUILD_DIR "/shipped/VarnixMaster.ini", std::ios::binary);
  const std::string shipped(std::istreambuf_iterator<char>(file), {});
  for (const gchar* key : {"NAME", "PTRN", "PROG", "TITLE"}) {
    EXPECT_THAT(shipped, testing::HasSubstr("\n" + std::string(key) + "=\n"));
  }
}

TEST_F(ShippedProfile, GivesEachItemTypeTwentySixInitialValues) {
  for (gint type = 1; type <= 15; ++type) {
    const std::string key = (type < 10 ? "PTRN-0" : "PTRN-") + std::to_string(type);
    gint v[26];
    EXPECT_EQ(ProfileRead1("", "PTRNDATA", key.c_str(), std::string(26, 'i').c_str(), &v[0], &v[1],
                           &v[2], &v[3], &v[4], &v[5], &v[6], &v[7], &v[8], &v[9], &v[10], &v[11],
                           &v[12], &v[13], &v[14], &v[15], &v[16], &v[17], &v[18], &v[19], &v[20],
                           &v[21], &v[22], &v[23], &v[24], &v[25]),
              26)
        << key;
  }
}

}  // namespace
