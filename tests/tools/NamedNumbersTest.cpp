// Parameters under their names: shown so, and built of it.
#include <gmock/gmock.h>

#include "tests/tools/Files.h"
#include "tools/json/Convert.h"

using testing::HasSubstr;
using testing::Not;

namespace {

std::string ProjectBytes(const std::string& parm1, const std::string& parm2,
                         const std::string& parm3, const std::string& parm4) {
  return Int(1001) + parm1 + parm2 + parm3 + parm4 + Field("", 258) + Field("", 22) +
         Field("", 82) + Field("", 82);
}

std::string Project() {
  return ProjectBytes(
      Ints({1, 2, 1}, 20), Ints({40, 91, 90, 7, 1, 1, 0, 1, 0, 3, 2, 10, 56, 92}, 30),
      Ints({32, 81, 98, 5, 1, 11, 3, 97, 480, 320}, 20), Ints({2, 6, 7, 4, 5, 99}, 20));
}

constexpr const char* NamedProject = R"({
  "Version": 1001,
  "Parm1": {
    "DisplaySize": 1,
    "Languages": 2,
    "ColourSystems": 1
  },
  "Parm2": {
    "TitleHeight": 40,
    "TitleColour": 91,
    "TitleAreaColour": 90,
    "TitleFont": 7,
    "TitleCentred": 1,
    "LogoShown": 1,
    "HardCopyShown": 0,
    "VersionScreen": 1,
    "DebugScreen": 0,
    "DateFormat": 3,
    "DateFont": 2,
    "WorkAreaColour": 10,
    "ButtonAreaHeight": 56,
    "ButtonAreaColour": 92
  },
  "Parm3": {
    "TitleHeight": 32,
    "TitleColour": 81,
    "TitleAreaColour": 98,
    "TitleFont": 5,
    "TitleCentred": 1,
    "WorkAreaColour": 11,
    "FrameWidth": 3,
    "FrameColour": 97,
    "Width": 480,
    "Height": 320
  },
  "Parm4": {
    "MouseCursor": 2,
    "KeyColour": 6,
    "KeyBackColour": 7,
    "GridX": 4,
    "GridY": 5,
    "GridColour": 99
  },
  "ProgPath": "",
  "LogoName": "",
  "PtrnStart": "",
  "PtrnStop": ""
}
)";

TEST(NamedNumbers, OfAProjectAreShown) {
  EXPECT_EQ(JsonOfFile(FileKind::Project, Project(), Numbers::Named).Result, NamedProject);
}

TEST(NamedNumbers, OfAProjectAreBuilt) {
  EXPECT_EQ(FileOfJson(FileKind::Project, NamedProject).Result, Project());
  EXPECT_EQ(FileOfJson(FileKind::Project, R"({"Parm3":{"Height":9}})").Result,
            ProjectBytes(Ints({}, 20), Ints({}, 30), Ints({0, 0, 0, 0, 0, 0, 0, 0, 0, 9}, 20),
                         Ints({}, 20)));
}

TEST(NamedNumbers, OfAProjectHaveToBeKnown) {
  EXPECT_EQ(FileOfJson(FileKind::Project, R"({"Parm1":{"TitleHeight":1}})").Error,
            "Parm1.TitleHeight: unknown key");
  EXPECT_EQ(FileOfJson(FileKind::Project, R"({"Parm4":{"GridX":"wide"}})").Error,
            "Parm4.GridX: a whole number of 32 bits is expected");
}

TEST(NamedNumbers, AListWithANumberThatHasNoNameStays) {
  const std::string bytes =
      ProjectBytes(Ints({1, 0, 0, 0, 8}, 20), Ints({}, 30), Ints({}, 20), Ints({0, 0, 0, 2}, 20));
  const auto json = JsonOfFile(FileKind::Project, bytes, Numbers::Named).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, HasSubstr("\"Parm1\": [1,0,0,0,8,0,"));
  EXPECT_THAT(*json, HasSubstr("\"GridX\": 2,"));
  EXPECT_EQ(FileOfJson(FileKind::Project, *json).Result, bytes);
}

TEST(NamedNumbers, OfALayoutAreShownAndBuilt) {
  const auto bytes = FileOfJson(FileKind::Layout, R"({"Parm1":{"Width":320},"Parm2":{"GridX":3},
      "Items":[{"Type":2,"Parm":{"X2":9,"Colour":[1,2,3,4],"Width":5}}]})");
  ASSERT_TRUE(bytes.Result) << bytes.Error;
  const auto json = JsonOfFile(FileKind::Layout, *bytes.Result, Numbers::Named).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, HasSubstr("\"Width\": 320,"));
  EXPECT_THAT(*json, HasSubstr("\"GridX\": 3,"));
  EXPECT_THAT(*json, HasSubstr("\"Colour\": [1,2,3,4],"));
  EXPECT_THAT(*json, Not(HasSubstr("\"Parm\": [")));
  EXPECT_EQ(FileOfJson(FileKind::Layout, *json).Result, bytes.Result);
}

}  // namespace
