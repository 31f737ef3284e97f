#include <gtest/gtest.h>

#include "layout/Snap.h"
#include "layout/Store.h"
#include "support/Resource.h"

namespace {

class SnapTest : public testing::Test {
 protected:
  void SetUp() override {
    PtrnHedr = PTRNHEDR{};
    SetGrid(5, 4);
    FontHeight[3] = 14;
  }
  void TearDown() override {
    PtrnHedr = PTRNHEDR{};
    FontHeight[3] = 0;
  }

  // By index into the list 1, 2, 4, 6, 8, 10, 12, 16, 20, 24, 32, 40.
  static void SetGrid(gint x, gint y) {
    PtrnHedr.Parm2[2] = x;
    PtrnHedr.Parm2[3] = y;
  }
  static void ExpectSnapped(POINT from, gint half, POINT to) {
    NormalizePoint(&from, half);
    EXPECT_EQ(+from.x, +to.x);
    EXPECT_EQ(+from.y, +to.y);
  }
  static PTRNDATA Snapped(gint type, POINT point1, POINT point2) {
    PTRNDATA item{};
    item.Type = type;
    item.Parm[15] = 3;
    item.Point1 = point1;
    item.Point2 = point2;
    NormalizeZahyo(&item);
    return item;
  }
  static void ExpectPoints(const PTRNDATA& item, POINT point1, POINT point2) {
    EXPECT_EQ(+item.Point1.x, +point1.x);
    EXPECT_EQ(+item.Point1.y, +point1.y);
    EXPECT_EQ(+item.Point2.x, +point2.x);
    EXPECT_EQ(+item.Point2.y, +point2.y);
  }
};

TEST_F(SnapTest, ToTheNearestLine) {  // intervals 10 and 8
  ExpectSnapped({0, 0}, 0, {0, 0});
  ExpectSnapped({4, 3}, 0, {0, 0});
  ExpectSnapped({5, 4}, 0, {10, 8});
  ExpectSnapped({14, 11}, 0, {10, 8});
  ExpectSnapped({15, 12}, 0, {20, 16});
}

TEST_F(SnapTest, ToTheNearestHalfLine) {  // intervals 5 and 4
  ExpectSnapped({2, 1}, 1, {0, 0});
  ExpectSnapped({3, 2}, 1, {5, 4});
  ExpectSnapped({7, 5}, 1, {5, 4});
  ExpectSnapped({8, 6}, 1, {10, 8});
}

TEST_F(SnapTest, NegativePositionsLeanTowardsZero) {
  ExpectSnapped({-4, -3}, 0, {0, 0});
  ExpectSnapped({-14, -11}, 0, {0, 0});
  ExpectSnapped({-15, -12}, 0, {-10, -8});
  ExpectSnapped({-25, -20}, 0, {-20, -16});
}

TEST_F(SnapTest, TheFinestGridHalvedIsStillOneDot) {
  SetGrid(0, 0);
  ExpectSnapped({7, -3}, 1, {7, -3});
  ExpectSnapped({7, -3}, 0, {7, -3});
}

TEST_F(SnapTest, AnUnknownIntervalIsTheFinest) {
  for (const gint index : {-1, 12, 99, G_MAXINT, G_MININT}) {
    SetGrid(index, index);
    ExpectSnapped({13, 17}, 0, {13, 17});
    ExpectSnapped({13, 17}, 1, {13, 17});
  }
}

TEST_F(SnapTest, TheLargestNumbersDoNotOverflow) {
  SetGrid(11, 11);
  ExpectSnapped({G_MAXINT, G_MININT}, 0, {2147483640, -2147483600});
  const PTRNDATA item = Snapped(6, {G_MAXINT, G_MAXINT}, {G_MININT, G_MININT});
  EXPECT_EQ(+item.Point1.y, G_MAXINT);
}

TEST_F(SnapTest, TwoPointItemsSnapToTheHalfGridCornersInOrder) {
  for (const gint type : {1, 3, 4, 5, 9, 12, 13, 14, 15}) {
    SCOPED_TRACE(type);
    ExpectPoints(Snapped(type, {48, 41}, {13, 22}), {15, 24}, {50, 40});
    ExpectPoints(Snapped(type, {13, 41}, {48, 22}), {15, 24}, {50, 40});
  }
}

TEST_F(SnapTest, LinesKeepTheirDirection) {
  ExpectPoints(Snapped(2, {48, 41}, {13, 22}), {50, 40}, {15, 24});
}

TEST_F(SnapTest, OnePointItemsSnapToTheGridAndCentreInWholeRows) {
  // 14 dots need two rows of 8, two dots are left, one of them above.
  for (const gint type : {6, 7, 8, 10, 11}) {
    SCOPED_TRACE(type);
    ExpectPoints(Snapped(type, {13, 9}, {0, 0}), {10, 9}, {0, 0});
  }
}

TEST_F(SnapTest, AnOddRestGoesAbove) {
  FontHeight[3] = 13;  // three dots are left, two of them above
  EXPECT_EQ(+Snapped(6, {0, 8}, {0, 0}).Point1.y, 10);
  FontHeight[3] = 16;
  EXPECT_EQ(+Snapped(6, {0, 8}, {0, 0}).Point1.y, 8);
  FontHeight[3] = 17;  // 7 dots are left of three rows
  EXPECT_EQ(+Snapped(6, {0, 8}, {0, 0}).Point1.y, 12);
}

TEST_F(SnapTest, WithoutAFontTheRowIsHalved) {
  FontHeight[3] = 0;
  EXPECT_EQ(+Snapped(6, {0, 8}, {0, 0}).Point1.y, 12);
}

TEST_F(SnapTest, AHugeFontOnTheFinestGridTakesNoTime) {
  SetGrid(0, 0);
  FontHeight[3] = G_MAXINT;
  EXPECT_EQ(+Snapped(6, {0, 8}, {0, 0}).Point1.y, 8);
}

TEST_F(SnapTest, AnUnknownTypeIsLeftAlone) {
  for (const gint type : {0, 16, -1, G_MAXINT}) {
    ExpectPoints(Snapped(type, {48, 41}, {13, 22}), {48, 41}, {13, 22});
  }
}

}  // namespace
