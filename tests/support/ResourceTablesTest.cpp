#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "support/Resource.h"

namespace {

TEST(FontDescriptorHeight, IsThePixelSize) {
  EXPECT_EQ(
      14, FontDescriptorHeight("-misc-fixed-medium-r-normal--14-130-75-75-c-140-jisx0208.1983-0"));
  EXPECT_EQ(16, FontDescriptorHeight("-a-b-c-d-e-f-16"));
  EXPECT_EQ(0, FontDescriptorHeight("-a-b-c-d-e-f-0-"));
}

TEST(FontDescriptorHeight, IsATenthOfThePointSizeWhereThePixelSizeIsFree) {
  EXPECT_EQ(14, FontDescriptorHeight("-misc-fixed-medium-r-normal--*-140-75-75-c-140-jisx0208-0"));
  EXPECT_EQ(12, FontDescriptorHeight("-a-b-c-d-e-f-*-129"));
  EXPECT_EQ(0, FontDescriptorHeight("-a-b-c-d-e-f-*-*-"));
  EXPECT_EQ(0, FontDescriptorHeight("-a-b-c-d-e-f-*"));
  EXPECT_EQ(0, FontDescriptorHeight("-a-b-c-d-e-f-*-"));
}

TEST(FontDescriptorHeight, TakesFourDigits) {
  EXPECT_EQ(1234, FontDescriptorHeight("-a-b-c-d-e-f-12345-"));
  EXPECT_EQ(123, FontDescriptorHeight("-a-b-c-d-e-f-*-12345-"));
}

TEST(FontDescriptorHeight, IsZeroWithoutASizeField) {
  for (const gchar* descriptor :
       {"", "fixed", "-a-b-c-d-e-f", "-a-b-c-d-e-f-", "-a-b-c-d-e-f--14", "-a-b-c-d-e-f-x14"}) {
    EXPECT_EQ(0, FontDescriptorHeight(descriptor)) << descriptor;
  }
}

TEST(FontNameList, ShowsTheDisplayNamesAndEndsEmpty) {
  for (gint font = 0; font < FontCount; ++font) EXPECT_EQ(FontList[font], FontNameList[font]);
  EXPECT_STREQ("", FontNameList[FontCount]);
}

TEST(MarkData, SizesByGroupOfFifty) {
  const gint expected[7][2] = {{16, 32}, {16, 32}, {32, 32}, {32, 32},
                               {64, 32}, {32, 64}, {64, 64}};
  for (gint group = 0; group < 7; ++group) {
    EXPECT_EQ(expected[group][0], MarkDataSize[group].cx);
    EXPECT_EQ(expected[group][1], MarkDataSize[group].cy);
  }
}

TEST(MarkData, RowsFollowEachOtherLowestBitFirst) {
  MARKDATA mark = {};
  MarkDataSet(0, &mark, 0, 0, 1);
  EXPECT_EQ(0x01, mark.mark[0]);
  MarkDataSet(0, &mark, 7, 0, 1);
  EXPECT_EQ(0x81, mark.mark[0]);
  MarkDataSet(0, &mark, 0, 1, 1);  // 16 pixels wide: row 1 begins in byte 2
  EXPECT_EQ(0x01, mark.mark[2]);
  MarkDataSet(0, &mark, 15, 31, 1);
  EXPECT_EQ(0x80, mark.mark[63]);
}

TEST(MarkData, OnlyAOneSetsAPixel) {
  for (const gint other : {0, 2, -1}) {
    MARKDATA mark = {};
    mark.mark[0] = 0xff;
    MarkDataSet(0, &mark, 3, 0, other);
    EXPECT_EQ(0xf7, mark.mark[0]) << other;
  }
}

TEST(MarkData, RowLengthIsThatOfTheGroup) {
  const struct {
    gint Mark;
    gint Byte;  // of pixel (3, 1)
  } cases[] = {{0, 2}, {99, 2}, {100, 4}, {199, 4}, {200, 8}, {249, 8}, {250, 4}, {300, 8}};
  for (const auto& one : cases) {
    MARKDATA mark = {};
    MarkDataSet(one.Mark, &mark, 3, 1, 1);
    EXPECT_EQ(0x08, mark.mark[one.Byte]) << "mark " << one.Mark;
    EXPECT_EQ(1, MarkDataGet(one.Mark, &mark, 3, 1));
    EXPECT_EQ(511, std::count(std::begin(mark.mark), std::end(mark.mark), 0));
  }
}

TEST(MarkData, TheLargestMarkFillsItsRecord) {
  MARKDATA mark = {};
  MarkDataSet(349, &mark, 63, 63, 1);
  EXPECT_EQ(0x80, mark.mark[511]);
}

TEST(MarkData, ClearingLeavesTheOtherPixels) {
  MARKDATA mark;
  std::fill(std::begin(mark.mark), std::end(mark.mark), guint8{0xFF});
  MarkDataSet(0, &mark, 9, 0, 0);
  EXPECT_EQ(0xFD, mark.mark[1]);
  EXPECT_EQ(0, MarkDataGet(0, &mark, 9, 0));
  EXPECT_EQ(1, MarkDataGet(0, &mark, 8, 0));
}

TEST(MarkData, OutsideThereIsNothing) {
  MARKDATA full;
  std::fill(std::begin(full.mark), std::end(full.mark), guint8{0xFF});
  MARKDATA empty = {};
  const gint outside[][3] = {
      {0, -1, 0}, {0, 0, -1},  {0, 16, 0},       {0, 0, 32},       {250, 32, 0},
      {-1, 0, 0}, {350, 0, 0}, {G_MAXINT, 0, 0}, {G_MININT, 0, 0}, {300, G_MAXINT, G_MAXINT}};
  for (const auto& place : outside) {
    EXPECT_EQ(0, MarkDataGet(place[0], &full, place[1], place[2]));
    MarkDataSet(place[0], &empty, place[1], place[2], 1);
  }
  EXPECT_EQ(512, std::count(std::begin(empty.mark), std::end(empty.mark), 0));
}

}  // namespace
