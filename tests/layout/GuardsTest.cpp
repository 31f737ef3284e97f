#include <gtest/gtest.h>

#include "layout/Guards.h"
#include "support/Resource.h"

namespace {

constexpr gint Odd[] = {-1, -1000, G_MININT, G_MAXINT, 1000};

TEST(GuardsTest, ZoomPercent) {
  const gint percents[] = {500, 200, 100, 75, 50};
  for (gint i = 0; i < 5; ++i) EXPECT_EQ(ZoomPercent(i), percents[i]);
  EXPECT_EQ(ZoomPercent(5), 500);
  for (const gint index : Odd) EXPECT_EQ(ZoomPercent(index), 500) << index;
}

TEST(GuardsTest, GridDots) {
  const gint dots[] = {1, 2, 4, 6, 8, 10, 12, 16, 20, 24, 32, 40};
  for (gint i = 0; i < 12; ++i) EXPECT_EQ(GridDots(i), dots[i]);
  EXPECT_EQ(GridDots(12), 1) << "the end mark of the list is no interval";
  for (const gint index : Odd) EXPECT_EQ(GridDots(index), 1) << index;
}

TEST(GuardsTest, DisplaySize) {
  const SIZE sizes[] = {{800, 600},  {1024, 768},  {1280, 1024}, {1152, 864},
                        {1280, 960}, {1400, 1050}, {1600, 1200}};
  for (gint i = 0; i < 7; ++i) {
    EXPECT_EQ(+DisplaySize(i).cx, +sizes[i].cx);
    EXPECT_EQ(+DisplaySize(i).cy, +sizes[i].cy);
  }
  EXPECT_EQ(+DisplaySize(7).cx, 800);
  for (const gint index : Odd) EXPECT_EQ(+DisplaySize(index).cy, 600) << index;
}

TEST(GuardsTest, CalendarFormat) {
  for (gint i = 1; i <= 6; ++i) EXPECT_EQ(CalendarFormat(i), i);
  EXPECT_EQ(CalendarFormat(0), 0);
  EXPECT_EQ(CalendarFormat(7), 0);
  for (const gint index : Odd) EXPECT_EQ(CalendarFormat(index), 0) << index;
}

TEST(GuardsTest, AnyLanguageButTheFirstTwoIsTheThird) {
  EXPECT_EQ(TextIndex(0), 0);
  EXPECT_EQ(TextIndex(1), 1);
  EXPECT_EQ(TextIndex(2), 2);
  EXPECT_EQ(TextIndex(3), 2);
  for (const gint index : Odd) EXPECT_EQ(TextIndex(index), 2) << index;
}

TEST(GuardsTest, NumbersOfResources) {
  EXPECT_TRUE(IsItemType(1) && IsItemType(15));
  EXPECT_TRUE(IsColour(0) && IsColour(102));
  EXPECT_TRUE(IsFont(0) && IsFont(20));
  EXPECT_TRUE(IsMark(0) && IsMark(353));
  EXPECT_FALSE(IsItemType(0) || IsItemType(16));
  EXPECT_FALSE(IsColour(-1) || IsColour(103));
  EXPECT_FALSE(IsFont(-1) || IsFont(21));
  EXPECT_FALSE(IsMark(-1) || IsMark(354));
}

TEST(GuardsTest, FontHeight) {
  FontHeight[0] = 14;
  FontHeight[19] = 24;
  FontHeight[5] = -3;
  EXPECT_EQ(GuardedFontHeight(0), 14);
  EXPECT_EQ(GuardedFontHeight(19), 24);
  EXPECT_EQ(GuardedFontHeight(5), 0);
  EXPECT_EQ(GuardedFontHeight(20), 0);
  for (const gint font : Odd) EXPECT_EQ(GuardedFontHeight(font), 0) << font;
  FontHeight[0] = FontHeight[5] = FontHeight[19] = 0;
}

}  // namespace
