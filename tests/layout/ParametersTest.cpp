// The parameter tables against the slot constants, and what is looked up in them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "Constant.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Parameters.h"
#include "tests/layout/SlotConstants.h"

using testing::IsEmpty;
using testing::IsSupersetOf;

namespace {

// Which types each group of constants is for.
const std::map<std::string, std::vector<gint>> TypesOfGroup = {
    {"ItemSlot", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
    {"FrameSlot", {1}},
    {"LineSlot", {2}},
    {"ShapeSlot", {3, 4}},
    {"BarSlot", {5}},
    {"TextSlot", {6, 7, 8}},
    {"ButtonSlot", {9}},
    {"ChoiceSlot", {10, 11}},
    {"BitmapSlot", {12}},
    {"MarkSlot", {13}},
    {"ScrollSlot", {14}},
    {"SpinSlot", {15}},
};

std::set<std::pair<std::string, gint>> NamesOf(std::span<const Parameter> parameters) {
  std::set<std::pair<std::string, gint>> names;
  for (const Parameter& parameter : parameters) names.emplace(parameter.Name, parameter.Slot);
  return names;
}

std::vector<std::span<const Parameter>> AllTables() {
  std::vector<std::span<const Parameter>> tables = {HeaderParameters(), ViewParameters()};
  for (gint type = TypeFrame; type <= TypeSpinButton; ++type) {
    tables.push_back(ItemParameters(type));
  }
  return tables;
}

TEST(ParametersTest, SlotsOfATableLieInOrderWithoutOverlap) {
  for (const auto& table : AllTables()) {
    gint next = 0;
    for (const Parameter& parameter : table) {
      EXPECT_GE(parameter.Slot, next) << parameter.Name;
      next = parameter.Slot + parameter.Count();
    }
    EXPECT_LE(next, 30);
  }
  const Parameter& last = ViewParameters().back();
  EXPECT_LE(last.Slot + last.Count(), 10);
}

TEST(ParametersTest, NamesOfATableDiffer) {
  for (const auto& table : AllTables()) {
    std::set<std::string> names;
    for (const Parameter& parameter : table) {
      EXPECT_TRUE(names.insert(parameter.Name).second) << parameter.Name;
    }
  }
}

TEST(ParametersTest, EveryConstantHasARowAndEveryRowAConstant) {
  SlotConstants constants = WrittenConstants("include/layout/ItemSlots.h");
  ASSERT_EQ(constants.size(), TypesOfGroup.size() + 2);
  using Names = std::set<std::pair<std::string, gint>>;
  const auto named = [&constants](const std::string& group) {
    return Names(constants[group].begin(), constants[group].end());
  };
  EXPECT_EQ(NamesOf(HeaderParameters()), named("HedrSlot"));
  EXPECT_EQ(NamesOf(ViewParameters()), named("ViewSlot"));
  const Names common = named("ItemSlot");
  for (const auto& [group, types] : TypesOfGroup) {
    Names rows;
    for (const gint type : types) rows.merge(NamesOf(ItemParameters(type)));
    EXPECT_THAT(rows, IsSupersetOf(named(group))) << group;
    if (group == "ItemSlot") continue;
    Names known = common;
    known.merge(named(group));
    EXPECT_THAT(known, IsSupersetOf(rows)) << group;
  }
}

TEST(ParametersTest, EveryParameterButCoordinatesHasALabel) {
  for (const auto& table : AllTables()) {
    for (const Parameter& parameter : table) {
      const std::string name = parameter.Name;
      const bool place = name == "X1" || name == "Y1" || name == "X2" || name == "Y2";
      EXPECT_EQ(parameter.Label == nullptr, place) << name;
    }
  }
}

TEST(ParametersTest, TypesPlacedByOnePointHaveNoSecond) {
  for (gint type = TypeFrame; type <= TypeSpinButton; ++type) {
    EXPECT_EQ(FindParameter(type, ItemSlot::X2) != nullptr, PtrnDataType[type] != 0) << type;
    EXPECT_EQ(FindParameter(type, ItemSlot::Y2) != nullptr, PtrnDataType[type] != 0) << type;
  }
}

TEST(ParametersTest, ListedValuesFillTheirRange) {
  for (const auto& table : AllTables()) {
    for (const Parameter& parameter : table) {
      const ValueRange& range = parameter.Range;
      EXPECT_EQ(range.Values != nullptr, range.Kind == Unit::Choice) << parameter.Name;
      if (range.Values == nullptr) continue;
      EXPECT_EQ(range.Least, 0) << parameter.Name;
      gint count = 0;
      while (range.Values[count][0] != '\0') ++count;
      EXPECT_EQ(range.Most, count - 1) << parameter.Name;
    }
  }
}

TEST(ParametersTest, ZoomsAreListedInTheOrderOfTheirPercents) {
  const gint percents[] = {500, 200, 100, 75, 50};
  const ValueRange& range = FindParameter(ViewParameters(), ViewSlot::Zoom)->Range;
  ASSERT_EQ(range.Most, 4);
  for (gint index = 0; index <= 4; ++index) {
    EXPECT_EQ(range.Values[index], std::to_string(percents[index]) + "%");
    EXPECT_EQ(ZoomPercent(index), percents[index]);
  }
}

TEST(ParametersTest, FoundByAnyOfItsSlots) {
  for (gint slot = 4; slot < 8; ++slot) {
    EXPECT_STREQ(FindParameter(TypeLine, slot)->Name, "Colour") << slot;
  }
  EXPECT_STREQ(FindParameter(TypeLine, 15)->Label, "線幅");
  EXPECT_EQ(FindParameter(TypeLine, 8), nullptr);
  EXPECT_STREQ(FindParameter(TypeButton, 8)->Name, "TextColour");
  EXPECT_EQ(FindParameter(TypeButton, 9), nullptr);
  EXPECT_STREQ(FindParameter(HeaderParameters(), 21)->Name, "ButtonAreaHeight");
  for (const gint type : {0, 16, -1, G_MAXINT, G_MININT}) {
    EXPECT_EQ(FindParameter(type, 0), nullptr) << type;
    EXPECT_THAT(ItemParameters(type), IsEmpty()) << type;
  }
}

TEST(ParametersTest, TheLowestMessageIsTheLimitThatIsTold) {
  PTRNDATA item{};
  item.Type = TypeButton;
  item.Parm[ButtonSlot::TextOffset] = -1;
  item.Parm[ButtonSlot::BorderWidth] = 0;
  EXPECT_STREQ(FindBrokenLimit(item).Broken->Name, "BorderWidth");
  EXPECT_EQ(FindBrokenLimit(item).By->Message, 4);
  item.Parm[ButtonSlot::BorderWidth] = 1;
  EXPECT_STREQ(FindBrokenLimit(item).Broken->Name, "TextOffset");
  item.Parm[ButtonSlot::TextOffset] = 0;
  EXPECT_EQ(FindBrokenLimit(item).By, nullptr);
  EXPECT_EQ(FindBrokenLimit(item).Broken, nullptr);
}

TEST(ParametersTest, EachValueOfAParameterHasToKeepItsLimit) {
  constexpr Parameter Rows[] = {
      {"Pair", 0, Spread::EvenOdd, "", {Unit::Number, 0, 9}, {{{1, 7, nullptr, Unless(2)}}}},
  };
  using Values = std::vector<gint>;
  EXPECT_EQ(FindBrokenLimit(Rows, Values{1, 1, 0}).By, nullptr);
  EXPECT_EQ(FindBrokenLimit(Rows, Values{1, 0, 0}).By, &Rows[0].Limits[0]);
  EXPECT_EQ(FindBrokenLimit(Rows, Values{1, 0, 5}).By, nullptr) << "the limit does not count";
}

}  // namespace
