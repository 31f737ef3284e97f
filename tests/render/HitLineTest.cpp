#include <gtest/gtest.h>

#include <climits>

#include "tests/render/HitProbe.h"

namespace {

TEST(HitLine, HasAHandleAtEachEnd) {
  Check(TwoPoints(TypeLine, 100, 100, 200, 160), {{100, 100, 1},
                                                  {95, 105, 1},
                                                  {105, 95, 1},
                                                  {200, 160, 2},
                                                  {205, 155, 2},
                                                  {100, 160, 0},
                                                  {200, 100, 0}});
}

TEST(HitLine, FeelsAVerticalLineFiveDotsToEachSide) {
  for (const bool reversed : {false, true}) {
    const PTRNDATA line =
        reversed ? TwoPoints(TypeLine, 50, 200, 50, 100) : TwoPoints(TypeLine, 50, 100, 50, 200);
    Check(line, {{50, 150, 9},
                 {55, 150, 9},
                 {56, 150, 0},
                 {45, 150, 9},
                 {44, 150, 0},
                 {50, 94, 0},
                 {50, 206, 0},
                 {55, 106, 9}});
  }
}

TEST(HitLine, FeelsAHorizontalLineFourDotsToEachSide) {
  for (const bool reversed : {false, true}) {
    const PTRNDATA line =
        reversed ? TwoPoints(TypeLine, 200, 50, 100, 50) : TwoPoints(TypeLine, 100, 50, 200, 50);
    Check(line, {{150, 50, 9},
                 {150, 54, 9},
                 {150, 55, 0},
                 {150, 46, 9},
                 {150, 45, 0},
                 {94, 50, 0},
                 {206, 50, 0}});
  }
}

TEST(HitLine, IgnoresItsWidth) {
  PTRNDATA line = TwoPoints(TypeLine, 50, 100, 50, 200);
  line.Parm[LineSlot::Width] = 40;
  Check(line, {{56, 150, 0}, {55, 150, 9}});
}

TEST(HitLine, FeelsASlantedLineTenDotsUpAndDown) {
  Check(TwoPoints(TypeLine, 0, 0, 200, 100), {{100, 50, 9},
                                              {100, 60, 9},
                                              {100, 61, 0},
                                              {100, 40, 9},
                                              {100, 39, 0},
                                              {120, 50, 9},
                                              {121, 50, 0}});
}

TEST(HitLine, OfASlantedLineStaysInsideTheBoxGrownByFive) {
  Check(TwoPoints(TypeLine, 0, 0, 200, 100),
        {{-5, 6, 9}, {-6, 0, 0}, {205, 94, 9}, {206, 103, 0}, {10, -5, 9}, {10, -6, 0}});
}

TEST(HitLine, OfALineThatRunsBackwardsHasItsBoxShrunkAtTheTurnedEnds) {
  // The box goes from first point - 5 to second point + 5: x from 195 down to 5.
  Check(TwoPoints(TypeLine, 200, 0, 0, 100),
        {{100, 50, 9}, {195, 6, 9}, {196, 10, 0}, {5, 94, 9}, {4, 90, 0}});
}

TEST(HitLine, WithoutLengthIsItsFirstHandle) {
  Check(TwoPoints(TypeLine, 70, 70, 70, 70), {{70, 70, 1}, {75, 65, 1}, {76, 70, 0}, {70, 76, 0}});
}

TEST(HitText, WithoutExtentIsASmallBoxNarrowerToTheLeft) {
  for (const gint type :
       {TypeFixedString, TypeVariableString, TypeNumeric, TypeRadioButton, TypeCheckBox}) {
    SCOPED_TRACE(type);
    Check(TwoPoints(type, 100, 100, 0, 0), {{100, 100, 9},
                                            {99, 100, 9},
                                            {98, 100, 0},
                                            {105, 100, 9},
                                            {106, 100, 0},
                                            {100, 95, 9},
                                            {100, 94, 0},
                                            {100, 105, 9},
                                            {100, 106, 0}});
  }
}

TEST(HitText, IsHitAnywhereInItsExtent) {
  for (const gint type :
       {TypeFixedString, TypeVariableString, TypeNumeric, TypeRadioButton, TypeCheckBox}) {
    SCOPED_TRACE(type);
    PTRNDATA item = TwoPoints(type, 100, 100, 0, 0);
    item.Size = {40, 16};
    Check(item, {{100, 100, 9},
                 {140, 116, 9},
                 {120, 108, 9},
                 {99, 100, 0},
                 {141, 116, 0},
                 {140, 117, 0},
                 {100, 99, 0}});
  }
}

TEST(HitText, WithOneExtentZeroIsALine) {
  PTRNDATA item = TwoPoints(TypeFixedString, 100, 100, 0, 0);
  item.Size = {40, 0};
  Check(item, {{140, 100, 9}, {140, 101, 0}, {100, 99, 0}});
}

TEST(HitTest, SurvivesTheGreatestCoordinates) {
  for (gint type = 0; type <= 16; ++type) {
    for (const gint far : {INT_MIN, INT_MAX}) {
      PTRNDATA item = TwoPoints(type, far, far, -1 - far, far);
      item.Size = {far, far};
      const POINT middle{10, 10};
      EXPECT_EQ(SearchPtrnData(&middle, &item), 0) << type;
      const POINT corner{far, far};
      EXPECT_GE(SearchPtrnData(&corner, &item), 0) << type;
    }
  }
}

}  // namespace
