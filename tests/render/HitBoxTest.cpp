#include <gtest/gtest.h>

#include "tests/render/HitProbe.h"

namespace {

constexpr gint BoxTypes[] = {TypeFrame,  TypeRectangle, TypeBarGraph,  TypeButton,
                             TypeBitmap, TypeMark,      TypeScrollBar, TypeSpinButton};

TEST(PointInRect, CountsItsBoundsInAnyOrderOfTheCorners) {
  const POINT inside{5, 7};
  EXPECT_EQ(PointInRect(&inside, 5, 7, 9, 9), 1);
  EXPECT_EQ(PointInRect(&inside, 9, 9, 5, 7), 1);
  EXPECT_EQ(PointInRect(&inside, 1, 9, 5, 7), 1);
  EXPECT_EQ(PointInRect(&inside, 5, 7, 5, 7), 1);
  EXPECT_EQ(PointInRect(&inside, 6, 7, 9, 9), 0);
  EXPECT_EQ(PointInRect(&inside, 5, 8, 9, 9), 0);
  EXPECT_EQ(PointInRect(&inside, 1, 1, 4, 9), 0);
  EXPECT_EQ(PointInRect(&inside, 1, 6, 9, 1), 0);
}

TEST(HitBox, GivesEveryCodeAtItsPlaceForEveryBoxType) {
  for (const gint type : BoxTypes) {
    SCOPED_TRACE(type);
    Check(TwoPoints(type, 100, 100, 200, 160), {{100, 100, 1},
                                                {200, 160, 2},
                                                {100, 160, 3},
                                                {200, 100, 4},
                                                {150, 100, 5},
                                                {150, 160, 6},
                                                {100, 130, 7},
                                                {200, 130, 8},
                                                {120, 100, 9},
                                                {150, 130, 0}});
  }
}

TEST(HitBox, ReachesFiveDotsAroundEachHandleAndNoFurther) {
  Check(TwoPoints(TypeRectangle, 100, 100, 200, 160),
        {{95, 95, 1},   {105, 105, 1}, {95, 105, 1},  {105, 95, 1},  {94, 100, 0},  {100, 94, 0},
         {106, 100, 9}, {195, 155, 2}, {205, 165, 2}, {206, 160, 0}, {200, 166, 0}, {95, 165, 3},
         {105, 155, 3}, {94, 160, 0},  {195, 105, 4}, {205, 95, 4},  {206, 100, 0}, {145, 95, 5},
         {155, 105, 5}, {144, 100, 9}, {156, 100, 9}, {150, 106, 0}, {145, 165, 6}, {155, 155, 6},
         {150, 166, 0}, {95, 125, 7},  {105, 135, 7}, {106, 130, 0}, {195, 125, 8}, {205, 135, 8},
         {206, 130, 0}});
}

TEST(HitBox, FeelsItsEdgesTwoDotsToBothSidesAndNotItsInside) {
  Check(TwoPoints(TypeRectangle, 100, 100, 200, 160), {{120, 98, 9},
                                                       {120, 102, 9},
                                                       {120, 97, 0},
                                                       {120, 103, 0},
                                                       {120, 158, 9},
                                                       {120, 162, 9},
                                                       {120, 157, 0},
                                                       {120, 163, 0},
                                                       {98, 115, 9},
                                                       {102, 115, 9},
                                                       {97, 115, 0},
                                                       {103, 115, 0},
                                                       {198, 115, 9},
                                                       {202, 115, 9},
                                                       {197, 115, 0},
                                                       {203, 115, 0},
                                                       {120, 130, 0}});
}

TEST(HitBox, PrefersCornersToEdgeMiddlesOnSmallBoxes) {
  Check(TwoPoints(TypeButton, 10, 10, 16, 16),
        {{10, 10, 1}, {16, 16, 2}, {13, 13, 1}, {15, 15, 1}, {16, 10, 4}, {9, 17, 3}});
}

TEST(HitBox, WithReversedCornersKeepsItsHandlesButFeelsNoEdges) {
  // Stored boxes have their first point at the top left; the edge test relies on it.
  Check(TwoPoints(TypeRectangle, 200, 160, 100, 100), {{200, 160, 1},
                                                       {100, 100, 2},
                                                       {200, 100, 3},
                                                       {100, 160, 4},
                                                       {150, 160, 5},
                                                       {150, 100, 6},
                                                       {200, 130, 7},
                                                       {100, 130, 8},
                                                       {120, 100, 0},
                                                       {100, 115, 0}});
}

TEST(HitBox, TruncatesTheMiddleTowardZero) {
  // The middle of -101 and 0 is -50, of -51 and 0 it is -25.
  Check(TwoPoints(TypeRectangle, -101, -51, 0, 0), {{-45, -51, 5},
                                                    {-44, -51, 9},
                                                    {-55, -51, 5},
                                                    {-56, -51, 9},
                                                    {-101, -20, 7},
                                                    {-101, -30, 7},
                                                    {-101, -31, 9}});
}

TEST(HitTest, KnowsNoItemOutsideTheFifteenTypes) {
  const POINT point{10, 10};
  for (const gint type : {0, 16, -1, 1000000}) {
    const PTRNDATA item = TwoPoints(type, 10, 10, 50, 50);
    EXPECT_EQ(SearchPtrnData(&point, &item), 0) << type;
  }
}

TEST(HitEllipse, HasTheFourEdgeHandlesOnly) {
  Check(TwoPoints(TypeEllipse, 100, 100, 200, 160), {{150, 100, 5},
                                                     {155, 105, 5},
                                                     {150, 160, 6},
                                                     {100, 130, 7},
                                                     {200, 130, 8},
                                                     {100, 100, 0},
                                                     {200, 160, 0},
                                                     {100, 160, 0},
                                                     {200, 100, 0}});
}

TEST(HitEllipse, FeelsABandAroundItsOutline) {
  // Half axes 50 and 30 around (150, 130). At 45 degrees of the angle: 35.4 and 21.2.
  Check(TwoPoints(TypeEllipse, 100, 100, 200, 160),
        {{185, 151, 9}, {115, 109, 9}, {186, 152, 9}, {150, 130, 0}, {188, 153, 0}, {181, 148, 0}});
  // Straight above x = 60 of a circle of radius 100 around (100, 100): dx is 40, so the band is
  // dy * dy between 7400 and 9400, that is dy from 86.02 to 96.95.
  const PTRNDATA circle = TwoPoints(TypeEllipse, 0, 0, 200, 200);
  Check(circle, {{60, 187, 9}, {60, 186, 0}, {60, 196, 9}, {60, 197, 0}});
}

TEST(HitEllipse, WithoutExtentInOneDirectionHasHandlesOnly) {
  Check(TwoPoints(TypeEllipse, 100, 100, 100, 160), {{100, 100, 5}, {100, 145, 0}, {100, 130, 7}});
  Check(TwoPoints(TypeEllipse, 100, 100, 200, 100), {{100, 100, 7}, {125, 100, 0}, {150, 100, 5}});
}

TEST(HitEllipse, TakesItsCornersInAnyOrder) {
  Check(TwoPoints(TypeEllipse, 200, 160, 100, 100),
        {{150, 160, 5}, {150, 100, 6}, {200, 130, 7}, {100, 130, 8}, {185, 151, 9}});
}

}  // namespace
