// What press, motion and release do in each state.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MouseStateTest : public EditFixture {
 protected:
  MouseStateTest() {
    const PTRNDATA box = MakeValidItem(TypeRectangle, 100, 20, 160, 60);
    AddPtrnData(&box);
  }
  // The box is in hand and shows its handles.
  static void Select() {
    Press(100, 30);
    Release(100, 30);
    Screen.Calls.clear();
  }
};

TEST_F(MouseStateTest, PressOnAnItemPicksIt) {
  Press(100, 30);
  EXPECT_EQ(PtrnMode, ModePicked);
  EXPECT_EQ(PtrnNo, 0);
  EXPECT_EQ(PtrnType, TypeRectangle);
  EXPECT_EQ(PointsOf(PtrnData), "(100,20)-(160,60)");
  EXPECT_THAT(Screen.Take(),
              ElementsAre("DrawRequest 0", "SetCursor 0", "SetMenuActive1", "Dlg_ToolBox 3"));
}

TEST_F(MouseStateTest, PickingWinsOverCreating) {
  PtrnSelct(nullptr, Entry(TypeLine - 1));
  Press(100, 30);
  EXPECT_EQ(PtrnMode, ModePicked);
  EXPECT_EQ(PtrnType, TypeRectangle);
}

TEST_F(MouseStateTest, TheFirstItemOfTheStoreIsPickedAmongOverlappingOnes) {
  // A frame is painted below a rectangle, yet stands later in the store.
  const PTRNDATA frame = MakeValidItem(TypeFrame, 100, 20, 160, 60);
  AddPtrnData(&frame);
  Press(100, 30);
  EXPECT_EQ(PtrnNo, 0);
}

TEST_F(MouseStateTest, PressOnEmptyGroundWithoutATypeSpansAnArea) {
  Press(10, 15);
  EXPECT_EQ(PtrnMode, ModeArea);
  EXPECT_EQ(PtrnNo, -1);
  EXPECT_THAT(Screen.Take(), ElementsAre("DrawRequest 0", "SetCursor 1"));
  Move(50, 70);
  EXPECT_THAT(Screen.Take(), ElementsAre("DrawRequest 0"));
  EXPECT_EQ(AreaPoint1.x, 10);
  EXPECT_EQ(AreaPoint1.y, 15);
  EXPECT_EQ(AreaPoint2.x, 50);
  EXPECT_EQ(AreaPoint2.y, 70);
}

TEST_F(MouseStateTest, PressOnEmptyGroundWithATypeBeginsAnItem) {
  PtrnSelct(nullptr, Entry(TypeRectangle - 1));
  Screen.Take();
  Press(10, 15);
  EXPECT_EQ(PtrnMode, ModeCreating);
  EXPECT_EQ(PtrnNo, -1);
  EXPECT_EQ(PointsOf(PtrnData), "(10,15)-(10,15)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetToolBoxPoint", "DrawRequest 0"));
}

TEST_F(MouseStateTest, DraggingOutATwoPointItemMovesItsSecondPoint) {
  PtrnSelct(nullptr, Entry(TypeEllipse - 1));
  Press(10, 15);
  Screen.Take();
  Move(40, 45);
  EXPECT_EQ(PointsOf(PtrnData), "(10,15)-(40,45)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetToolBoxPoint", "DrawRequest 0"));
  Release(50, 55);
  EXPECT_EQ(PointsOf(PtrnData), "(10,15)-(50,55)");
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive2 21", "SetToolBoxPoint", "SetCursor 1", "DrawRequest 0"));
}

TEST_F(MouseStateTest, DraggingOutAOnePointItemMovesItsAnchor) {
  PtrnSelct(nullptr, Entry(TypeFixedString - 1));
  Press(10, 15);
  Move(40, 45);
  EXPECT_EQ(PointsOf(PtrnData), "(40,45)-(10,15)");
  Release(50, 55);
  EXPECT_EQ(PointsOf(PtrnData), "(50,55)-(10,15)");
}

TEST_F(MouseStateTest, MotionInIdleTellsWhetherAnItemIsUnderThePointer) {
  Move(100, 30);
  Move(10, 10);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 1", "SetCursor 0"));
}

TEST_F(MouseStateTest, TheToolBoxFollowsThePointerBeforeTheFirstPress) {
  PtrnSelct(nullptr, Entry(TypeLine - 1));
  Screen.Take();
  Move(12, 34);
  EXPECT_EQ(PointsOf(PtrnData), "(12,34)-(12,34)");
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 0", "SetToolBoxPoint"));
}

TEST_F(MouseStateTest, MotionWhilePickedDoesNothing) {
  Press(100, 30);
  Screen.Take();
  Move(120, 50);
  EXPECT_THAT(Screen.Take(), IsEmpty());
  EXPECT_EQ(PointsOf(PtrnData), "(100,20)-(160,60)");
}

TEST_F(MouseStateTest, ReleaseAfterPickingShowsTheHandles) {
  Press(100, 30);
  Screen.Take();
  Release(100, 30);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive2 31", "SetToolBoxPoint", "SetCursor 1", "DrawRequest 0"));
}

TEST_F(MouseStateTest, MotionOverTheSelectedItemShowsWhatAPressWouldGrab) {
  Select();
  Move(100, 20);  // Point1
  Move(160, 60);  // Point2
  Move(100, 60);  // the other corners
  Move(160, 20);
  Move(130, 20);  // top, bottom
  Move(130, 60);
  Move(100, 40);  // left, right
  Move(160, 40);
  Move(110, 20);  // edge
  Move(130, 50);  // inside
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 6", "SetCursor 6", "SetCursor 7", "SetCursor 7",
                                         "SetCursor 4", "SetCursor 4", "SetCursor 5", "SetCursor 5",
                                         "SetCursor 3", "SetCursor 1"));
}

TEST_F(MouseStateTest, PressBesideTheSelectedItemLetsItGoAndKeepsTheToolBox) {
  Select();
  Press(10, 10);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(PtrnType, TypeRectangle);
  EXPECT_EQ(PointsOf(PtrnData), "(100,20)-(160,60)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 0", "SetMenuActive2 16", "DrawRequest 0"))
      << "nothing is left to register, delete or copy";
  Release(10, 10);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(MouseStateTest, PressOnTheSelectedItemBeginsADrag) {
  Select();
  Press(102, 22);
  EXPECT_EQ(PtrnMode, ModeDragging);
  EXPECT_EQ(PtrnPost, 1);
  EXPECT_EQ(PtrnPoint1.x, 100);
  EXPECT_EQ(PtrnPoint2.y, 60);
  EXPECT_EQ(PtrnPoint3.x, 102);
  EXPECT_EQ(PtrnPoint3.y, 22);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 6", "SetToolBoxPoint", "DrawRequest 0"));
}

TEST_F(MouseStateTest, ADragRepaintsTheOverlayAlone) {
  Select();
  Press(100, 20);
  Screen.Take();
  for (gint step = 0; step < 20; ++step) Move(90 - step, 15);
  EXPECT_EQ(Screen.Count("DrawRequest 0"), 20);
  EXPECT_EQ(Screen.Count("DrawRequest 1"), 0);
}

TEST_F(MouseStateTest, ReleaseAfterADragSelectsAgainWithoutMovingFurther) {
  Select();
  Press(100, 20);
  Move(90, 15);
  Screen.Take();
  Release(80, 10);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_EQ(PointsOf(PtrnData), "(90,15)-(160,60)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetToolBoxPoint", "SetCursor 1", "DrawRequest 0"));
}

TEST_F(MouseStateTest, ReleaseKeepsTheAreaForItsCommands) {
  Press(10, 10);
  Move(50, 50);
  Screen.Take();
  Release(60, 60);
  EXPECT_EQ(PtrnMode, ModeArea);
  EXPECT_EQ(AreaPoint2.x, 50);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 0"));
}

TEST_F(MouseStateTest, APressInABusyStateIsIgnored) {
  for (const gint mode : {ModeCreating, ModePicked, ModeDragging, ModeArea}) {
    PtrnMode = mode;
    Press(100, 30);
    EXPECT_EQ(PtrnMode, mode);
  }
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(MouseStateTest, AReleaseOutsideTheLayoutIsIgnored) {
  for (const gint mode : {ModeCreating, ModePicked, ModeDragging, ModeArea}) {
    PtrnMode = mode;
    Release(200, 50);
    EXPECT_EQ(PtrnMode, mode);
  }
  EXPECT_THAT(Screen.Take(), IsEmpty());
  PtrnMode = ModeDragging;
  Release(199, 50);
  EXPECT_EQ(PtrnMode, ModeSelected);
}

TEST_F(MouseStateTest, APressOnTheRightOrBottomEdgeIsOutside) {
  Press(200, 50);
  Press(50, 100);
  EXPECT_EQ(PtrnMode, ModeIdle);
  Press(199, 99);
  EXPECT_EQ(PtrnMode, ModeArea);
}

TEST_F(MouseStateTest, WithoutALayoutTheMouseDoesNothing) {
  PtrnFlag = 0;
  Press(100, 30);
  Move(100, 30);
  PtrnMode = ModePicked;
  Release(100, 30);
  EXPECT_EQ(PtrnMode, ModePicked);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(MouseStateTest, ItemsOfAnUnpickableTypeAreNeitherPickedNorGrabbed) {
  Select();
  PtrnUnSlct[TypeRectangle - 1] = 1;
  POINT corner{100, 20};
  EXPECT_EQ(SearchPtrnData1(&corner), -1);
  EXPECT_EQ(SearchPtrnData2(&corner), 0);
  Press(100, 20);
  EXPECT_EQ(PtrnMode, ModeIdle);
  PtrnUnSlct[TypeRectangle - 1] = 0;
  EXPECT_EQ(SearchPtrnData1(&corner), 0);
  EXPECT_EQ(SearchPtrnData2(&corner), 1);
}

TEST_F(MouseStateTest, ZoomedPositionsPickAndDrag) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom500;
  Press(502, 151);
  Release(502, 151);
  EXPECT_EQ(PtrnNo, 0);
  Press(800, 300);
  Move(904, 354);
  Release(904, 354);
  EXPECT_EQ(PointsOf(PtrnData), "(100,20)-(180,70)");
}

}  // namespace
