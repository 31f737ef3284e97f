// Deleting, moving and copying what lies inside the area.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

enum Command { Drop = 0, Delete = 1, MoveItems = 2, CopyItems = 3 };

class AreaTest : public EditFixture {
 protected:
  AreaTest() {
    Add(MakeItem(TypeRectangle, 10, 10, 30, 30));
    Add(MakeItem(TypeRectangle, 60, 60, 90, 90));
    Add(MakeItem(TypeLine, 40, 12, 20, 38));
    AreaPoint1 = {10, 10};
    AreaPoint2 = {40, 40};
    PtrnMode = ModeArea;
  }
  static void Add(const PTRNDATA& item) { AddPtrnData(&item); }
  static void Run(Command command) { AreaBoxButn(nullptr, Entry(command)); }
  static void Answer(DLGPARM parm) {
    Screen.CopyMove = [parm](DLGPARM& edited) {
      edited = parm;
      return 1;
    };
  }
  static std::vector<std::string> AllPoints() {
    std::vector<std::string> points;
    for (gint no = 0; no < GetPtrnCount(); ++no) points.push_back(PointsOf(Stored(no)));
    return points;
  }
};

TEST_F(AreaTest, BoundsCount) {
  PTRNDATA item = MakeItem(TypeRectangle, 10, 10, 40, 40);
  EXPECT_EQ(AreaButnCheck(&item), 1);
  item.Point2.x = 41;
  EXPECT_EQ(AreaButnCheck(&item), 0);
  item.Point2 = {40, 41};
  EXPECT_EQ(AreaButnCheck(&item), 0);
  item.Point2 = {40, 40};
  item.Point1 = {9, 10};
  EXPECT_EQ(AreaButnCheck(&item), 0);
  item.Point1 = {10, 9};
  EXPECT_EQ(AreaButnCheck(&item), 0);
}

TEST_F(AreaTest, OnePointItemsCountWithTheirPaintedExtent) {
  PTRNDATA item = MakeItem(TypeFixedString, 20, 20, 500, 500);
  EXPECT_EQ(AreaButnCheck(&item), 1) << "never painted: the anchor alone";
  item.Size = {20, 20};
  EXPECT_EQ(AreaButnCheck(&item), 1);
  item.Size = {21, 20};
  EXPECT_EQ(AreaButnCheck(&item), 0);
  item.Size = {G_MAXINT, 20};
  EXPECT_EQ(AreaButnCheck(&item), 0);
}

TEST_F(AreaTest, CancellingDropsTheArea) {
  Run(Drop);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 3);
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMenuActive1", "DrawRequest 1"));
}

TEST_F(AreaTest, DeletingTakesEverythingInside) {
  Run(Delete);
  EXPECT_THAT(AllPoints(), ElementsAre("(60,60)-(90,90)"));
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu", "SetMenuActive1", "DrawRequest 1"));
}

TEST_F(AreaTest, AnAreaMayBeSpannedFromAnyCorner) {
  AreaPoint1 = {40, 10};
  AreaPoint2 = {10, 40};
  Run(Delete);
  EXPECT_THAT(AllPoints(), ElementsAre("(60,60)-(90,90)"));
  EXPECT_EQ(AreaPoint1.x, 10);
  EXPECT_EQ(AreaPoint2.x, 40);
}

TEST_F(AreaTest, DeletingNothingStillTakesASnapshot) {
  AreaPoint1 = {0, 0};
  AreaPoint2 = {5, 5};
  Run(Delete);
  EXPECT_EQ(GetPtrnCount(), 3);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(PtrnSaveCount, 1);
}

TEST_F(AreaTest, MovingShiftsWhatLiesInside) {
  Answer({9, 100, 7, 9});
  Run(MoveItems);
  EXPECT_THAT(AllPoints(),
              ElementsAre("(110,17)-(130,37)", "(60,60)-(90,90)", "(140,19)-(120,45)"));
  EXPECT_THAT(PointParmsOf(Stored(0)), ElementsAre(110, 17, 130, 37));
  EXPECT_EQ(gint{Stored(0).ID_No}, 0);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(Screen.Count("Dlg_AreaMove"), 1);
}

TEST_F(AreaTest, CopiesStandBehindAllExistingItems) {
  Answer({3, 1, 2, 10});
  Run(CopyItems);
  EXPECT_THAT(AllPoints(), ElementsAre("(10,10)-(30,30)", "(60,60)-(90,90)", "(40,12)-(20,38)",  //
                                       "(11,12)-(31,32)", "(12,14)-(32,34)", "(13,16)-(33,36)",  //
                                       "(41,14)-(21,40)", "(42,16)-(22,42)", "(43,18)-(23,44)"));
  EXPECT_EQ(gint{Stored(5).ID_No}, 30);
  EXPECT_EQ(gint{Stored(6).ID_No}, 10);
  EXPECT_EQ(Screen.Count("Dlg_AreaCopy"), 1);
}

TEST_F(AreaTest, CopyingNoTimesStillTakesASnapshot) {
  Answer({0, 1, 2, 10});
  Run(CopyItems);
  EXPECT_EQ(GetPtrnCount(), 3);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(PtrnFlag, 1);
}

TEST_F(AreaTest, ACancelledDialogChangesNothingButEndsTheArea) {
  Run(MoveItems);
  PtrnMode = ModeArea;
  Run(CopyItems);
  EXPECT_THAT(AllPoints(), ElementsAre("(10,10)-(30,30)", "(60,60)-(90,90)", "(40,12)-(20,38)"));
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(AreaTest, AnAreaSpannedWithTheMouseHoldsZoomedPositions) {
  AreaPoint1 = AreaPoint2 = {0, 0};
  PtrnMode = ModeIdle;
  PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom200;
  Press(84, 84);
  Move(10, 12);
  Release(10, 12);
  Run(Delete);
  EXPECT_THAT(AllPoints(), ElementsAre("(60,60)-(90,90)"));
}

}  // namespace
