// Moving the item in hand by steps.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ArrowKeyTest : public EditFixture {
 protected:
  static void TakeInHand(const PTRNDATA& item) {
    PtrnData = item;
    PtrnType = item.Type;
    PtrnMode = ModeSelected;
    Screen.Calls.clear();
  }
};

TEST_F(ArrowKeyTest, AStepOfOneDotWhereTheGridHasNone) {
  TakeInHand(MakeItem(TypeRectangle, 40, 20, 100, 60));
  EXPECT_EQ(MoveItemInHand(1, 0), 1);
  EXPECT_EQ(PointsOf(PtrnData), "(41,20)-(101,60)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetToolBoxPoint", "DrawRequest 0"));
  MoveItemInHand(0, -2);
  EXPECT_EQ(PointsOf(PtrnData), "(41,18)-(101,58)");
  EXPECT_EQ(PtrnData.Parm[0], 40) << "the parameters wait for the commit";
}

TEST_F(ArrowKeyTest, BoxesGoByHalfAGridStepAndTextsByAWholeOne) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 10 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 6;  // 12 dots
  TakeInHand(MakeItem(TypeRectangle, 40, 20, 100, 60));
  MoveItemInHand(-1, 1);
  EXPECT_EQ(PointsOf(PtrnData), "(35,26)-(95,66)");
  TakeInHand(MakeItem(TypeFixedString, 40, 20, 0, 0));
  MoveItemInHand(-1, 1);
  EXPECT_EQ(PointsOf(PtrnData), "(30,32)-(-10,12)");
}

TEST_F(ArrowKeyTest, SomeOfTheItemStaysOnTheLayout) {
  TakeInHand(MakeItem(TypeRectangle, 0, 20, 3, 60));
  for (gint step = 0; step < 10; step++) EXPECT_EQ(MoveItemInHand(-1, 0), 1);
  EXPECT_EQ(PointsOf(PtrnData), "(-3,20)-(0,60)");
  for (gint step = 0; step < 300; step++) MoveItemInHand(1, 0);
  EXPECT_EQ(PointsOf(PtrnData), "(199,20)-(202,60)");
  for (gint step = 0; step < 300; step++) MoveItemInHand(0, 1);
  EXPECT_EQ(PointsOf(PtrnData), "(199,99)-(202,139)");
  TakeInHand(MakeItem(TypeCheckBox, 2, 2, 0, 0));
  for (gint step = 0; step < 5; step++) MoveItemInHand(-1, -1);
  EXPECT_EQ(+PtrnData.Point1.x, 0);
  EXPECT_EQ(+PtrnData.Point1.y, 0);
}

TEST_F(ArrowKeyTest, NothingMovesWithoutAnItemInHand) {
  const PTRNDATA box = MakeItem(TypeRectangle, 40, 20, 100, 60);
  for (const gint mode : {ModeIdle, ModeCreating, ModePicked, ModeDragging, ModeArea}) {
    TakeInHand(box);
    PtrnMode = mode;
    EXPECT_EQ(MoveItemInHand(1, 1), 0) << mode;
    EXPECT_EQ(PointsOf(PtrnData), PointsOf(box)) << mode;
  }
  TakeInHand(box);
  PtrnFlag = 0;
  EXPECT_EQ(MoveItemInHand(1, 1), 0);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(ArrowKeyTest, FarAwayPointsOfADamagedFileDoNotOverflow) {
  TakeInHand(MakeItem(TypeRectangle, G_MININT, 0, G_MAXINT, 10));
  EXPECT_EQ(MoveItemInHand(-1, 0), 1);
  EXPECT_EQ(PointsOf(PtrnData), "(-2147483648,0)-(2147483646,10)");
}

}  // namespace
