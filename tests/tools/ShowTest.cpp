// What the JSON of each kind of file holds.
#include <gmock/gmock.h>

#include "tests/tools/Files.h"
#include "tools/json/Convert.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string Zeros(std::size_t count) {
  std::string text;
  for (std::size_t k = 0; k < count; ++k) text += k == 0 ? "0" : ",0";
  return text;
}

TEST(KindOfFile, IsToldByTheName) {
  EXPECT_EQ(KindOfFile("a.ptn"), FileKind::Layout);
  EXPECT_EQ(KindOfFile("a.b.prj"), FileKind::Project);
  EXPECT_EQ(KindOfFile("PtrnColr"), FileKind::Palette);
  EXPECT_EQ(KindOfFile("PtrnMark"), FileKind::Marks);
  EXPECT_EQ(KindOfFile("PtrnCode"), FileKind::Registry);
  EXPECT_EQ(KindOfFile("PtrnText3"), FileKind::Texts);
  EXPECT_EQ(KindOfFile("PtrnText4"), std::nullopt);
  EXPECT_EQ(KindOfFile("a.png"), std::nullopt);
}

TEST(Show, LayoutInFull) {
  const std::string expected = R"({
  "Version": 1001,
  "Parm1": [1,320,200,)" + Zeros(27) +
                               R"(],
  "Parm2": [2,0,3,4,)" + Zeros(6) +
                               R"(],
  "PtrnName1": "日本",
  "PtrnName2": "Two",
  "PtrnName3": "",
  "LogoName": "logo.bmp",
  "BmapName": "",
  "DataCount": 2,
  "TextSize": 29,
  "UndfFlag": 1,
  "Items": [
    {
      "Type": 2,
      "Parm": [10,20,110,20,7,7,7,7,0,0,0,0,0,0,1,3,)" +
                               Zeros(14) + R"(],
      "Text1": "",
      "Text2": "",
      "Text3": "",
      "ID_Type": 0,
      "ID_Name": "",
      "ID_Code": "",
      "ID_No": 0,
      "UndfFlag": 0
    },
    {
      "Type": 9,
      "Parm": [30,40,90,70,1,2,3,4,5,)" +
                               Zeros(21) + R"(],
      "Text1": "日本",
      "Text2": "Go",
      "Text3": "",
      "ID_Type": 5,
      "ID_Name": "Child",
      "ID_Code": "START_A1",
      "ID_No": 12,
      "UndfFlag": 1
    }
  ]
}
)";
  EXPECT_EQ(JsonOfFile(FileKind::Layout, SmallLayout()).Result, expected);
}

TEST(Show, GridFlagAndVersionAsStored) {
  std::string bytes = SmallLayout();
  bytes.replace(0, 4, Int(7));
  bytes.replace(124 + 4, 4, Int(1));
  const auto json = JsonOfFile(FileKind::Layout, bytes).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, HasSubstr("\"Version\": 7,"));
  EXPECT_THAT(*json, HasSubstr("\"Parm2\": [2,1,3,4,0"));
}

TEST(Show, ItemsOfUnknownTypeAreLeftOutWithTheirTexts) {
  std::string bytes = SmallLayout();
  bytes.replace(466, 4, Int(16));
  const auto json = JsonOfFile(FileKind::Layout, bytes).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, HasSubstr("\"Items\": [\n    {\n      \"Type\": 9,"));
  EXPECT_THAT(*json, HasSubstr("\"ID_Code\": \"START_A1\""));
}

TEST(Show, Project) {
  const std::string bytes = Int(1001) + Ints({1, 2}, 20) + Ints({3}, 30) + Ints({4}, 20) +
                            Ints({5}, 20) + Field("/tmp/日本", 258) + Field("logo.png", 22) +
                            Field(NihonEuc, 82) + Field("", 82);
  ASSERT_EQ(bytes.size(), 808u);
  EXPECT_EQ(JsonOfFile(FileKind::Project, bytes).Result, R"({
  "Version": 1001,
  "Parm1": [1,2,)" + Zeros(18) + R"(],
  "Parm2": [3,)" + Zeros(29) + R"(],
  "Parm3": [4,)" + Zeros(19) + R"(],
  "Parm4": [5,)" + Zeros(19) + R"(],
  "ProgPath": "/tmp/日本",
  "LogoName": "logo.png",
  "PtrnStart": "日本",
  "PtrnStop": ""
}
)");
}

TEST(Show, Palette) {
  std::string bytes(1200, '\0');
  bytes.replace(12, 12, Int(65535) + Int(256) + Int(-1));
  const auto json = JsonOfFile(FileKind::Palette, bytes).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, StartsWith("[\n  [0,0,0],\n  [65535,256,-1],\n  [0,0,0],\n"));
}

TEST(Show, Marks) {
  std::string bytes(179200, '\0');
  bytes[512] = '\x0f';
  bytes[512 + 511] = '\xa0';
  const auto json = JsonOfFile(FileKind::Marks, bytes).Result;
  ASSERT_TRUE(json);
  EXPECT_THAT(*json, StartsWith("[\n  \"" + std::string(1024, '0') + "\",\n  \"0f" +
                                std::string(1020, '0') + "a0\",\n"));
}

TEST(Show, Registry) {
  const std::string bytes =
      Field("SYSTEM", 22) + Ints({100, 0, 0}, 3) + Field("PUMP", 22) + Ints({3, 100, 9}, 3);
  EXPECT_EQ(JsonOfFile(FileKind::Registry, bytes).Result, R"([
  {
    "ID_Code": "SYSTEM",
    "DataCount": 100,
    "DataNo": 0,
    "DispNo": 0
  },
  {
    "ID_Code": "PUMP",
    "DataCount": 3,
    "DataNo": 100,
    "DispNo": 9
  }
]
)");
}

TEST(Show, Texts) {
  EXPECT_EQ(JsonOfFile(FileKind::Texts, Field(NihonEuc, 102) + Field("a\"b", 102)).Result,
            "[\n  \"日本\",\n  \"a\\\"b\"\n]\n");
  EXPECT_EQ(JsonOfFile(FileKind::Texts, "").Result, "[]\n");
}

TEST(Show, TextThatIsNotEucIsStillValidJson) {
  const std::string bytes = Field("\xff\xfe", 102);
  EXPECT_EQ(JsonOfFile(FileKind::Texts, bytes).Result, "[\n  \"\\\\xFF\\\\xFE\"\n]\n");
}

}  // namespace
