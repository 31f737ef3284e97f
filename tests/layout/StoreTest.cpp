#include <gtest/gtest.h>

#include "layout/Store.h"

namespace {

PTRNDATA Numbered(gint number) {
  PTRNDATA item{};
  item.Type = 1;
  item.ID_No = number;
  return item;
}

class StoreTest : public testing::Test {
 protected:
  void SetUp() override { IntPtrnData(); }
  void TearDown() override { ExtPtrnData(); }

  static void Fill(gint count) {
    for (gint number = 0; number < count; ++number) {
      const PTRNDATA item = Numbered(number);
      AddPtrnData(&item);
    }
  }
  static gint NumberAt(gint no) {
    PTRNDATA item{};
    return GetPtrnData(no, &item) ? item.ID_No : -1;
  }
};

TEST_F(StoreTest, StartsEmpty) {
  PTRNDATA item{};
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(GetPtrnData(0, &item), 0);
  EXPECT_EQ(SetPtrnData(0, &item), 0);
  EXPECT_EQ(ViewPtrnData(0), nullptr);
}

TEST_F(StoreTest, CopiesWholeItemsInAndOut) {
  PTRNDATA item = Numbered(7);
  item.Parm[29] = 12;
  item.Text3[101] = 'x';
  item.CheckFlag = 1;
  AddPtrnData(&item);
  item.ID_No = 8;

  PTRNDATA out{};
  ASSERT_EQ(GetPtrnData(0, &out), 1);
  EXPECT_EQ(+out.ID_No, 7);
  EXPECT_EQ(out.Parm[29], 12);
  EXPECT_EQ(out.Text3[101], 'x');
  EXPECT_EQ(+out.CheckFlag, 1);

  ASSERT_EQ(SetPtrnData(0, &item), 1);
  EXPECT_EQ(NumberAt(0), 8);
  EXPECT_EQ(+ViewPtrnData(0)->ID_No, 8);
}

TEST_F(StoreTest, GrowsPastItsFirstHundred) {
  Fill(201);
  EXPECT_EQ(GetPtrnCount(), 201);
  EXPECT_EQ(NumberAt(99), 99);
  EXPECT_EQ(NumberAt(100), 100);
  EXPECT_EQ(NumberAt(200), 200);
}

TEST_F(StoreTest, DeletingMovesLaterItemsDown) {
  Fill(4);
  DelPtrnData(1);
  EXPECT_EQ(GetPtrnCount(), 3);
  EXPECT_EQ(NumberAt(0), 0);
  EXPECT_EQ(NumberAt(1), 2);
  EXPECT_EQ(NumberAt(2), 3);
}

TEST_F(StoreTest, DeletesEveryChosenItem) {
  Fill(7);
  const auto odd = [](const PTRNDATA* item) { return item->ID_No % 2 == 1; };
  EXPECT_EQ(DelPtrnDataIf(odd), 3);
  ASSERT_EQ(GetPtrnCount(), 4);
  for (gint no = 0; no < 4; ++no) EXPECT_EQ(NumberAt(no), 2 * no);
  EXPECT_EQ(DelPtrnDataIf(odd), 0);
}

TEST_F(StoreTest, IndexesOutsideDoNothing) {
  Fill(2);
  PTRNDATA item = Numbered(9);
  for (const gint no : {-1, 2, 1000000, G_MAXINT, G_MININT}) {
    DelPtrnData(no);
    EXPECT_EQ(SetPtrnData(no, &item), 0) << no;
    EXPECT_EQ(GetPtrnData(no, &item), 0) << no;
  }
  EXPECT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(NumberAt(0), 0);
  EXPECT_EQ(NumberAt(1), 1);
}

TEST_F(StoreTest, AnItemOfTheStoreCanBeAddedAgain) {
  Fill(100);
  AddPtrnData(ViewPtrnData(3));
  EXPECT_EQ(NumberAt(100), 3);
}

TEST_F(StoreTest, InitialisingAndReleasingBothEmptyIt) {
  Fill(5);
  IntPtrnData();
  EXPECT_EQ(GetPtrnCount(), 0);
  Fill(5);
  ExtPtrnData();
  EXPECT_EQ(GetPtrnCount(), 0);
}

}  // namespace
