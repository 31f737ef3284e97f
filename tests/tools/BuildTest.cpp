// Building is the inverse of showing, and takes friendlier sources besides.
#include <gmock/gmock.h>

#include "tests/tools/Files.h"
#include "tools/json/Convert.h"

namespace {

std::string Built(FileKind kind, std::string_view json) {
  const Conversion file = FileOfJson(kind, json);
  EXPECT_EQ(file.Error, "");
  return file.Result.value_or("");
}

// The bytes built from what is shown of `bytes`.
std::string ThereAndBack(FileKind kind, std::string_view bytes) {
  const Conversion json = JsonOfFile(kind, bytes);
  EXPECT_EQ(json.Error, "");
  return Built(kind, json.Result.value_or(""));
}

// The header of an empty layout with these settings.
std::string Header(const std::string& parm1, const std::string& parm2, int count, int texts,
                   int undefined) {
  return Int(1001) + parm1 + parm2 + std::string(3 * 82 + 2 * 22, '\0') + Int(count) + Int(texts) +
         Int(undefined);
}

std::string Record(int type, const std::string& parm, int undefined = 0) {
  return Int(type) + parm + Int(0) + Int(0) + Int(undefined);
}

TEST(Build, IsTheInverseOfShow) {
  EXPECT_EQ(ThereAndBack(FileKind::Layout, SmallLayout()), SmallLayout());
  const std::string project = Int(1001) + Ints({1, -2}, 20) + Ints({3}, 30) + Ints({4}, 20) +
                              Ints({5}, 20) + Field("/tmp/日本", 258) + Field("logo.png", 22) +
                              Field(NihonEuc, 82) + Field("stop", 82);
  EXPECT_EQ(ThereAndBack(FileKind::Project, project), project);
  std::string palette(1200, '\0');
  palette.replace(1188, 12, Int(65535) + Int(256) + Int(1));
  EXPECT_EQ(ThereAndBack(FileKind::Palette, palette), palette);
  std::string marks(179200, '\0');
  for (std::size_t k = 0; k < marks.size(); k += 97) marks[k] = static_cast<char>(k);
  EXPECT_EQ(ThereAndBack(FileKind::Marks, marks), marks);
  const std::string registry =
      Field("SYSTEM", 22) + Ints({100, 0, 0}, 3) + Field("PUMP", 22) + Ints({3, 100, 9}, 3);
  EXPECT_EQ(ThereAndBack(FileKind::Registry, registry), registry);
  const std::string texts = Field(NihonEuc, 102) + Field("", 102) + Field("x", 102);
  EXPECT_EQ(ThereAndBack(FileKind::Texts, texts), texts);
}

TEST(Build, MissingKeysAreZeroAndTheVersionIsThePrograms) {
  EXPECT_EQ(Built(FileKind::Layout, "{}"), Header(Ints({}, 30), Ints({}, 10), 0, 0, 0));
  EXPECT_EQ(Built(FileKind::Project, "{}"), Int(1001) + std::string(804, '\0'));
  EXPECT_EQ(Built(FileKind::Registry, "[{}]"), std::string(34, '\0'));
  EXPECT_EQ(Built(FileKind::Palette, "[]"), std::string(1200, '\0'));
}

TEST(Build, CountsAndSizesAreRecomputed) {
  EXPECT_EQ(Built(FileKind::Layout, R"({"DataCount":99,"TextSize":-1,"UndfFlag":5,"Items":[
                    {"Type":3,"UndfFlag":2},{"Type":3,"Text2":"ab"}]})"),
            Header(Ints({}, 30), Ints({}, 10), 2, 12, 1) + Record(3, Ints({}, 30), 2) +
                Record(3, Ints({}, 30)) + std::string(6, '\0') + "ab" + std::string(4, '\0'));
}

TEST(Build, GroupsItemsByTypeInPaintingOrder) {
  EXPECT_EQ(Built(FileKind::Layout, R"({"Items":[
                    {"Type":2,"Text1":"a"},{"Type":1,"Text1":"b"},{"Type":2,"Text1":"c"}]})"),
            Header(Ints({}, 30), Ints({}, 10), 3, 18, 0) + Record(1, Ints({}, 30)) +
                Record(2, Ints({}, 30)) + Record(2, Ints({}, 30)) + "b" + std::string(5, '\0') +
                "a" + std::string(5, '\0') + "c" + std::string(5, '\0'));
}

TEST(Build, TypesAndSlotsByName) {
  // Colour 9 in all four systems of the text, 1 to 4 of the background; font 2.
  const std::string source = R"({
    "_comment": "a hand-written layout",
    "Parm1": {"Kind": 2, "Width": 640, "Height": 480, "WorkAreaColour": 7},
    "Parm2": {"Zoom": 2, "GridColour": 5},
    "Items": [{"Type": "FixedString", "_comment": "the heading",
               "Parm": {"X1": 10, "Y1": 20, "TextColour": 9, "BackColour": [1, 2, 3, 4],
                        "Font": 2, "TopLayer": 1, "_comment": "c"}}]})";
  const std::string parm1 =
      Ints({2, 640, 480, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 7}, 30);
  const std::string parm2 = Ints({2, 0, 0, 0, 0, 0, 5}, 10);
  const std::string parm = Ints(
      {10, 20, 0, 0, 9, 9, 9, 9, 1, 2, 3, 4, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0},
      30);
  EXPECT_EQ(Built(FileKind::Layout, source),
            Header(parm1, parm2, 1, 5, 0) + Record(6, parm) + std::string(5, '\0'));
}

TEST(Build, AllTypeNames) {
  const char* const names[] = {"Frame",    "Line",        "Rectangle",      "Ellipse",
                               "BarGraph", "FixedString", "VariableString", "Numeric",
                               "Button",   "RadioButton", "CheckBox",       "Bitmap",
                               "Mark",     "ScrollBar",   "SpinButton"};
  int type = 1;
  for (const char* name : names) {
    EXPECT_EQ(Built(FileKind::Layout, std::string(R"({"Items":[{"Type":")") + name + "\"}]}"),
              Header(Ints({}, 30), Ints({}, 10), 1, 5, 0) + Record(type, Ints({}, 30)) +
                  std::string(5, '\0'))
        << name;
    ++type;
  }
}

TEST(Build, DrawnMarks) {
  // The first group of marks is 16 dots wide: two bytes a row, the lowest bit at the left.
  const std::string marks = Built(
      FileKind::Marks, R"([{"No":1,"Name":"corner","Rows":["#.......#","","...............#"]}])");
  ASSERT_EQ(marks.size(), 179200u);
  std::string expected(179200, '\0');
  expected[512 + 0] = '\x01';
  expected[512 + 1] = '\x01';
  expected[512 + 5] = '\x80';
  EXPECT_TRUE(marks == expected);
}

TEST(Build, LookAlikesAreFolded) {
  // Full-width tilde U+FF5E becomes the wave dash of EUC-JP.
  EXPECT_EQ(Built(FileKind::Texts, "[\"\\uff5e\"]"), Field("\xA1\xC1", 102));
}

TEST(Build, TextsOfExactlyTheLimitFit) {
  const std::string hundred(100, 'x');
  EXPECT_EQ(Built(FileKind::Texts, "[\"" + hundred + "\"]"), Field(hundred, 102));
}

}  // namespace
