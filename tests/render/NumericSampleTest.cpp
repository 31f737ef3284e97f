#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "layout/ItemSlots.h"
#include "render/LayoutPicture.h"

namespace {

struct Format {
  gint Digits;
  gint Decimals = 0;
  gint Grouping = 0;
  gint Hexadecimal = 0;
};

std::string Sample(const Format& format) {
  PTRNDATA item{};
  item.Type = TypeNumeric;
  item.Parm[TextSlot::Length] = format.Digits;
  item.Parm[TextSlot::Decimals] = format.Decimals;
  item.Parm[TextSlot::Grouping] = format.Grouping;
  item.Parm[TextSlot::Hexadecimal] = format.Hexadecimal;
  gchar text[100];
  NumericSample(&item, text, sizeof text);
  return text;
}

TEST(NumericSample, IsAnAsteriskForEachDigit) {
  EXPECT_EQ(Sample({1}), "*");
  EXPECT_EQ(Sample({6}), "******");
}

TEST(NumericSample, PutsThePointBeforeTheDecimals) {
  EXPECT_EQ(Sample({5, 2}), "**.**");
  EXPECT_EQ(Sample({3, 2}), ".**");
  EXPECT_EQ(Sample({6, 1}), "****.*");
}

TEST(NumericSample, GroupsFromTheRight) {
  EXPECT_EQ(Sample({7, 0, 1}), "***,***");
  EXPECT_EQ(Sample({9, 2, 1}), "**,***.**");
  EXPECT_EQ(Sample({6, 2, 1}), "***.**");
  EXPECT_EQ(Sample({3, 0, 1}), "***");
  EXPECT_EQ(Sample({5, 0, 1}), "*,***");
}

TEST(NumericSample, BeginsWithASeparatorWhenTheWholePartFillsItsGroups) {
  EXPECT_EQ(Sample({8, 0, 1}), ",***,***");
  EXPECT_EQ(Sample({4, 0, 1}), ",***");
  EXPECT_EQ(Sample({7, 2, 1}), ",***.**");
}

TEST(NumericSample, IsPlainInHexadecimal) {
  EXPECT_EQ(Sample({8, 2, 1, 1}), "********");
}

TEST(NumericSample, KeepsToItsDigitsWhateverTheNumbers) {
  EXPECT_EQ(Sample({0, 0, 1}), "");
  EXPECT_EQ(Sample({-5, 3, 1}), "");
  EXPECT_EQ(Sample({3, 3, 1}), "***");
  EXPECT_EQ(Sample({3, 99, 1}), "***");
  EXPECT_EQ(Sample({4, -7, 0}), "****");
  EXPECT_EQ(Sample({100}), std::string(99, '*'));
  EXPECT_EQ(Sample({INT_MAX, INT_MIN, 1}).size(), 99U);
  EXPECT_EQ(Sample({INT_MIN, INT_MAX, 1}), "");
}

}  // namespace
