// The rows of the item types: complete, distinct, and what the constant lists say.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "Constant.h"
#include "layout/Guards.h"
#include "layout/ItemTypes.h"

namespace {

// What is asked of a row, by the names of those of which it is true.
std::vector<std::string> Named(bool (*asked)(const ItemTypeRow& row)) {
  std::vector<std::string> names;
  for (const ItemTypeRow& row : ItemTypes()) {
    if (asked(row)) names.emplace_back(row.Name);
  }
  return names;
}

using Names = std::vector<std::string>;

TEST(ItemTypes, TheListsHoldWhatTheRowsSay) {
  const gint points[] = {0, 1, 1, 1, 1, 1, 0, 0, 0, 1, 0, 0, 1, 1, 1, 1};
  const gint order[] = {1, 3, 4, 5, 2, 12, 13, 14, 15, 9, 10, 11, 6, 7, 8};
  const char* labels[] = {"矩形枠",
                          "直線",
                          "矩形",
                          "楕円",
                          "棒グラフ",
                          "固定文字列",
                          "可変文字列",
                          "数値データ",
                          "ボタン",
                          "ラジオボタン",
                          "チェックボックス",
                          "ビットマップ",
                          "マーク",
                          "スクロールバー",
                          "スピンボタン",
                          ""};
  EXPECT_TRUE(std::equal(std::begin(points), std::end(points), std::begin(PtrnDataType),
                         std::end(PtrnDataType)));
  EXPECT_TRUE(
      std::equal(std::begin(order), std::end(order), std::begin(PtrnTable), std::end(PtrnTable)));
  ASSERT_EQ(std::size(labels), std::size(PtrnTypeList));
  for (std::size_t no = 0; no < std::size(labels); ++no) EXPECT_STREQ(labels[no], PtrnTypeList[no]);
}

TEST(ItemTypes, EachTypeHasARowOfItsOwn) {
  std::set<std::string_view> names;
  std::set<std::string_view> labels;
  std::set<gint> ranks;
  gint type = 0;
  for (const ItemTypeRow& row : ItemTypes()) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(++type, row.Type);
    EXPECT_EQ(&row, &ItemTypeOf(type));
    EXPECT_NE(row.Shape, ItemShape::None);
    EXPECT_EQ(HasTwoPoints(type), PtrnDataType[type] != 0);
    EXPECT_TRUE(names.insert(row.Name).second);
    EXPECT_TRUE(labels.insert(row.Label).second);
    EXPECT_TRUE(ranks.insert(row.PaintRank).second);
  }
  EXPECT_EQ(type, ItemTypeCount);
  EXPECT_FALSE(names.contains(""));
  EXPECT_FALSE(labels.contains(""));
}

TEST(ItemTypes, ANumberThatIsNoneHasAnEmptyRow) {
  for (const gint type : {-1, 0, 16, 99}) {
    EXPECT_FALSE(IsItemType(type));
    EXPECT_STREQ(ItemTypeOf(type).Name, "");
    EXPECT_EQ(ItemTypeOf(type).Shape, ItemShape::None);
    EXPECT_FALSE(HasTwoPoints(type));
  }
}

std::string ParameterAt(gint type, gint slot) {
  const Parameter* parameter = FindParameter(type, slot);
  return parameter == nullptr || parameter->Slot != slot ? "" : parameter->Name;
}

// A colour, font or switch that a row names is the first slot of a parameter of that type.
TEST(ItemTypes, RowsNameParametersOfTheirType) {
  for (const ItemTypeRow& row : ItemTypes()) {
    for (const gint slot : {row.Font, row.FrontColour, row.BackColour, row.BackSwitch,
                            row.CoverSwitch, row.CoverColour}) {
      EXPECT_TRUE(slot == NoSlot || !ParameterAt(row.Type, slot).empty()) << row.Name << slot;
    }
    EXPECT_EQ(row.FrontColour == NoSlot, row.BackColour == NoSlot) << row.Name;
    EXPECT_EQ(row.Font != NoSlot, ParameterAt(row.Type, TextSlot::Font) == "Font") << row.Name;
  }
}

TEST(ItemTypes, CursorKeysAreAParameterOfThoseThatHaveThem) {
  for (const ItemTypeRow& row : ItemTypes()) {
    EXPECT_EQ(row.HasCursorKeys, ParameterAt(row.Type, TextSlot::CursorKeys) == "CursorKeys")
        << row.Name;
  }
}

TEST(ItemTypes, WordsHaveTheirLengthAndFont) {
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Texts == ItemTexts::Words; }),
            (Names{"FixedString", "RadioButton", "CheckBox"}));
  for (const ItemTypeRow& row : ItemTypes()) {
    if (row.Texts != ItemTexts::Words) continue;
    EXPECT_EQ(ParameterAt(row.Type, TextSlot::Length), "Length") << row.Name;
    EXPECT_NE(row.Font, NoSlot) << row.Name;
  }
}

TEST(ItemTypes, FactsOfTheTypes) {
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.NeedsCode; }),
            (Names{"BarGraph", "VariableString", "Numeric", "ScrollBar", "SpinButton"}));
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Shape == ItemShape::Line; }),
            Names{"Line"});
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Shape == ItemShape::Oval; }),
            Names{"Ellipse"});
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Covers; }),
            (Names{"Frame", "Rectangle", "Ellipse", "BarGraph", "Button", "Bitmap", "ScrollBar",
                   "SpinButton"}));
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Family == ItemFamily::Shapes; }),
            (Names{"Frame", "Line", "Rectangle", "Ellipse", "BarGraph"}));
  EXPECT_EQ(Named([](const ItemTypeRow& row) { return row.Family == ItemFamily::Texts; }),
            (Names{"FixedString", "VariableString", "Numeric"}));
}

}  // namespace
