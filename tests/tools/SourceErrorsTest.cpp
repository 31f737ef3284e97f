// Wrong sources are refused, and the reason names the place.
#include <gmock/gmock.h>

#include "tools/json/Convert.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string ErrorOf(FileKind kind, std::string_view json) {
  const Conversion file = FileOfJson(kind, json);
  EXPECT_FALSE(file.Result) << json;
  return file.Error;
}

std::string LayoutError(const std::string& json) {
  return ErrorOf(FileKind::Layout, json);
}

TEST(SourceErrors, TextThatEucCannotHold) {
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":6},{"Type":6,"Text2":"a😀b"}]})"),
            "Items[1].Text2: EUC-JP cannot hold \"😀\"");
  EXPECT_EQ(LayoutError(R"({"PtrnName3":"한"})"), "PtrnName3: EUC-JP cannot hold \"한\"");
  EXPECT_EQ(ErrorOf(FileKind::Project, R"({"PtrnStart":"é😀"})"),
            "PtrnStart: EUC-JP cannot hold \"😀\"");
  EXPECT_EQ(ErrorOf(FileKind::Texts, R"(["a","😀"])"), "list[1]: EUC-JP cannot hold \"😀\"");
}

TEST(SourceErrors, TextTooLong) {
  const std::string long101(101, 'x');
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":6,"Text1":")" + long101 + "\"}]}"),
            "Items[0].Text1: 101 bytes in EUC-JP, at most 100 fit");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":6,"ID_Name":")" + long101.substr(0, 81) + "\"}]}"),
            "Items[0].ID_Name: 81 bytes in EUC-JP, at most 80 fit");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":6,"ID_Code":")" + long101.substr(0, 21) + "\"}]}"),
            "Items[0].ID_Code: 21 bytes in EUC-JP, at most 20 fit");
  EXPECT_EQ(LayoutError(R"({"BmapName":")" + long101.substr(0, 21) + "\"}"),
            "BmapName: 21 bytes in EUC-JP, at most 20 fit");
  EXPECT_EQ(ErrorOf(FileKind::Project, R"({"ProgPath":")" + std::string(258, 'x') + "\"}"),
            "ProgPath: 258 bytes, at most 257 fit");
  EXPECT_EQ(ErrorOf(FileKind::Registry, R"([{"ID_Code":")" + long101 + "\"}]"),
            "list[0].ID_Code: 101 bytes in EUC-JP, at most 20 fit");
}

TEST(SourceErrors, LengthIsCountedInEuc) {
  // 51 characters of two bytes each in EUC-JP, three in UTF-8.
  std::string text;
  for (int k = 0; k < 51; ++k) text += "日";
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":6,"Text3":")" + text + "\"}]}"),
            "Items[0].Text3: 102 bytes in EUC-JP, at most 100 fit");
}

TEST(SourceErrors, UnknownKeys) {
  EXPECT_EQ(LayoutError(R"({"Parm3":[]})"), "Parm3: unknown key");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":2,"Text4":""}]})"), "Items[0].Text4: unknown key");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":"Line","Parm":{"Font":1}}]})"),
            "Items[0].Parm.Font: unknown key");
  EXPECT_EQ(LayoutError(R"({"Parm1":{"Depth":1}})"), "Parm1.Depth: unknown key");
  EXPECT_EQ(ErrorOf(FileKind::Project, R"({"Name":"x"})"), "Name: unknown key");
}

TEST(SourceErrors, WrongTypes) {
  EXPECT_EQ(LayoutError("[]"), "source: an object is expected");
  EXPECT_EQ(LayoutError(R"({"Items":{}})"), "Items: a list is expected");
  EXPECT_EQ(LayoutError(R"({"Items":[5]})"), "Items[0]: an object is expected");
  EXPECT_EQ(LayoutError(R"({"Items":[{}]})"), "Items[0].Type: missing");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":0}]})"), "Items[0].Type: an item type is 1 to 15");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":16}]})"), "Items[0].Type: an item type is 1 to 15");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":"Circle"}]})"),
            "Items[0].Type: unknown item type \"Circle\"");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":2,"Text1":5}]})"),
            "Items[0].Text1: a text is expected");
  EXPECT_EQ(LayoutError("{\"PtrnName1\":\"a\\u0000b\"}"), "PtrnName1: a text cannot hold NUL");
  EXPECT_EQ(LayoutError(R"({"Parm2":[1,2]})"), "Parm2: a list of 10 numbers is expected");
  EXPECT_EQ(LayoutError(R"({"Parm2":[1,2,3,4,5,6,7,8,9,"x"]})"),
            "Parm2[9]: a whole number of 32 bits is expected");
  EXPECT_EQ(LayoutError(R"({"Items":[{"Type":2,"Parm":{"Colour":[1,2]}}]})"),
            "Items[0].Parm.Colour: a number or a list of 4 is expected");
}

TEST(SourceErrors, NumbersThatAreNone) {
  for (const char* number : {"2147483648", "-2147483649", "18446744073709551615", "1.5", "1e3",
                             "true", "null", "\"1\""}) {
    EXPECT_EQ(LayoutError(std::string("{\"Version\":") + number + "}"),
              "Version: a whole number of 32 bits is expected")
        << number;
  }
  for (const char* number : {"2147483647", "-2147483648"}) {
    EXPECT_TRUE(FileOfJson(FileKind::Layout, std::string("{\"Version\":") + number + "}").Result);
  }
}

TEST(SourceErrors, Marks) {
  const auto error = [](const char* json) { return ErrorOf(FileKind::Marks, json); };
  EXPECT_EQ(error(R"([{"No":350}])"), "list[0].No: a mark number is 0 to 349");
  EXPECT_EQ(error(R"([{"No":3},{"No":3}])"), "list[1].No: mark 3 is there twice");
  EXPECT_EQ(error(R"([{"No":0,"Rows":["#################"]}])"),
            "list[0].Rows[0]: 17 bytes, at most 16 fit");
  EXPECT_EQ(error(R"([{"No":0,"Rows":["..x"]}])"),
            "list[0].Rows[0]: a row is written in \"#\" and \".\"");
  EXPECT_EQ(error(R"(["00"])"), "list: 350 hexadecimal texts are expected");
}

TEST(SourceErrors, MarkTextsMustBeWholeHexadecimal) {
  std::string json = "[\"" + std::string(1022, '0') + "0g\"";
  for (int k = 1; k < 350; ++k) json += ",\"" + std::string(1024, '0') + "\"";
  EXPECT_EQ(ErrorOf(FileKind::Marks, json + "]"), "list[0]: 1024 hexadecimal digits are expected");
}

TEST(SourceErrors, Palette) {
  EXPECT_EQ(ErrorOf(FileKind::Palette, "[[1,2]]"), "list[0]: a list of 3 numbers is expected");
  std::string json = "[[0,0,0]";
  for (int k = 0; k < 100; ++k) json += ",[0,0,0]";
  EXPECT_EQ(ErrorOf(FileKind::Palette, json + "]"), "list: 101 entries, at most 100 fit");
}

TEST(SourceErrors, SourceThatIsNoJson) {
  const std::string whole = R"({"PtrnName1":"日本","Items":[{"Type":2,"Parm":{"X1":1}}]})";
  ASSERT_TRUE(FileOfJson(FileKind::Layout, whole).Result);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_THAT(LayoutError(whole.substr(0, size)), HasSubstr("parse error")) << size;
  }
  EXPECT_THAT(LayoutError("\xff\xfe"), HasSubstr("parse error"));
  EXPECT_THAT(LayoutError("{\"PtrnName1\":\"\xC6\xFC\"}"), HasSubstr("parse error"));
  EXPECT_THAT(LayoutError(std::string(1'000'000, '[')), HasSubstr("parse error"));
}

TEST(SourceErrors, DeepSourcesAreRefusedToo) {
  const std::string deep = std::string(1'000'000, '[') + std::string(1'000'000, ']');
  EXPECT_EQ(LayoutError(deep), "source: an object is expected");
}

TEST(SourceErrors, ManyUnknownKeysAreRefusedAtOnce) {
  std::string json = "{";
  for (int k = 0; k < 200'000; ++k) json += "\"k" + std::to_string(k) + "\":0,";
  EXPECT_THAT(LayoutError(json + "\"k\":0}"), StartsWith("k"));
}

}  // namespace
