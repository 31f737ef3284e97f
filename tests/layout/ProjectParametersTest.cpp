// The parameters of a project against their slot constants and their record.
#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <string>

#include "layout/Parameters.h"
#include "layout/ProjectRecord.h"
#include "tests/layout/SlotConstants.h"

namespace {

struct List {
  const char* Constants;
  std::span<const Parameter> Parameters;
  gint Size;
};

std::vector<List> Lists() {
  return {{"ProjectSlot", ProjectParameters(), std::size(PROJDATA{}.Parm1)},
          {"ParentSlot", ParentParameters(), std::size(PROJDATA{}.Parm2)},
          {"ChildSlot", ChildParameters(), std::size(PROJDATA{}.Parm3)},
          {"CommonSlot", CommonParameters(), std::size(PROJDATA{}.Parm4)}};
}

TEST(ProjectParametersTest, EveryConstantHasARowAndEveryRowAConstant) {
  const SlotConstants constants = WrittenConstants("include/layout/ProjectSlots.h");
  ASSERT_EQ(constants.size(), 4u);
  for (const List& list : Lists()) {
    std::map<std::string, gint> rows;
    for (const Parameter& parameter : list.Parameters) rows[parameter.Name] = parameter.Slot;
    EXPECT_EQ(rows, constants.at(list.Constants)) << list.Constants;
    EXPECT_EQ(rows.size(), list.Parameters.size()) << "two rows of one name";
  }
}

TEST(ProjectParametersTest, SlotsFillTheBeginningOfTheirListWithoutOverlap) {
  for (const List& list : Lists()) {
    gint next = 0;
    for (const Parameter& parameter : list.Parameters) {
      EXPECT_EQ(parameter.Slot, next) << parameter.Name;
      next = parameter.Slot + parameter.Count();
    }
    EXPECT_LE(next, list.Size) << list.Constants;
  }
}

TEST(ProjectParametersTest, EachHasALabelOfItsOwn) {
  for (const List& list : Lists()) {
    std::set<std::string> labels;
    for (const Parameter& parameter : list.Parameters) {
      ASSERT_NE(parameter.Label, nullptr) << parameter.Name;
      EXPECT_TRUE(labels.insert(parameter.Label).second) << parameter.Label;
    }
  }
}

TEST(ProjectParametersTest, AHeightIsTooLargeAsWellAsTooSmall) {
  std::array<gint, 30> values{};
  for (const gint height : {0, 99}) {
    values[12] = height;
    EXPECT_EQ(FindBrokenLimit(ParentParameters(), values).By, nullptr) << height;
  }
  for (const gint height : {-1, 100}) {
    values[12] = height;
    EXPECT_STREQ(FindBrokenLimit(ParentParameters(), values).By->Text,
                 "ボタン領域の高さ (設定範囲 0 〜 99)")
        << height;
  }
}

}  // namespace
