// The check entries of the menus: type, unpickable types, zoom, grid, colour system, language.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "support/Resource.h"
#include "tests/edit/CheckEntry.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewCommandTest : public EditFixture {};

TEST_F(ViewCommandTest, ChoosingATypeOpensItsToolBox) {
  PtrnMode = ModeSelected;
  Toggle(PtrnSelct, 14, true);
  EXPECT_EQ(PtrnType, TypeSpinButton);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(PtrnData.Type, TypeSpinButton);
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 15"), 1);
}

TEST_F(ViewCommandTest, ChoosingTheChosenTypeAgainChangesNothing) {
  Toggle(PtrnSelct, 2, true);
  PtrnMode = ModeSelected;
  Screen.Take();
  Toggle(PtrnSelct, 2, true);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(ViewCommandTest, TakingTheMarkOffTheChosenTypeUnchoosesIt) {
  Toggle(PtrnSelct, 2, true);
  Toggle(PtrnSelct, 4, false);
  EXPECT_EQ(PtrnType, TypeRectangle);
  Toggle(PtrnSelct, 2, false);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 0"), 1);
}

TEST_F(ViewCommandTest, UnpickableTypesFollowTheMarkAndEndEditingEveryTime) {
  Toggle(PtrnUnSelct, 2, true);
  EXPECT_EQ(PtrnUnSlct[2], 1);
  Toggle(PtrnUnSelct, 2, true);
  EXPECT_EQ(PtrnUnSlct[2], 1);
  Toggle(PtrnUnSelct, 2, false);
  EXPECT_EQ(PtrnUnSlct[2], 0);
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 0"), 3);
}

TEST_F(ViewCommandTest, RedrawEndsEditingAndPaintsEverything) {
  PtrnType = TypeLine;
  PtrnRedraw(nullptr, nullptr);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox",
                                         "Dlg_ToolBox 0", "DrawRequest 1"));
}

TEST_F(ViewCommandTest, ZoomResizesTheCanvas) {
  PtrnType = TypeLine;
  Toggle(PtrnZoom, Zoom75, true);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom75);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(Screen.Calls.back(), "SizeRequest 1 200x100 75%");
}

TEST_F(ViewCommandTest, ZoomActsOnlyOnAChange) {
  Toggle(PtrnZoom, Zoom100, true);
  Toggle(PtrnZoom, Zoom50, false);
  EXPECT_THAT(Screen.Take(), IsEmpty());
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom100);
}

TEST_F(ViewCommandTest, AMarkTakenOffTheCurrentChoiceIsPutBack) {
  Toggle(PtrnZoom, Zoom100, false);
  Toggle(PtrnColrSet, 0, false);
  Toggle(PtrnLangSet, 0, false);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMenuActive1", "SetMenuActive1", "SetMenuActive1"));
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom100);
}

TEST_F(ViewCommandTest, GridFollowsItsMark) {
  Toggle(PtrnGrid, 0, true);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::GridShown], 1);
  EXPECT_EQ(Screen.Count("DrawRequest 1"), 1);
  Toggle(PtrnGrid, 0, true);
  EXPECT_EQ(Screen.Count("DrawRequest 1"), 1);
  Toggle(PtrnGrid, 0, false);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::GridShown], 0);
  EXPECT_EQ(Screen.Count("DrawRequest 1"), 2);
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 0"), 2);
}

TEST_F(ViewCommandTest, ColourSystemRepaintsOnAChange) {
  Toggle(PtrnColrSet, 0, true);
  EXPECT_THAT(Screen.Take(), IsEmpty());
  Toggle(PtrnColrSet, 3, true);
  EXPECT_EQ(ColorCode, 3);
  EXPECT_EQ(Screen.Calls.back(), "DrawRequest 1");
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 0"), 1);
}

TEST_F(ViewCommandTest, LanguageLoadsItsFonts) {
  WriteProfile("[FONT]\nFONTNAME20=second,-x-y-medium-r-normal--23-*-*-*-c-*-*-*\n");
  Toggle(PtrnLangSet, 1, true);
  EXPECT_EQ(Language, 1);
  EXPECT_EQ(FontHeight[0], 23);
  EXPECT_EQ(Screen.Calls.back(), "DrawRequest 1");
  EXPECT_EQ(Screen.Count("Dlg_ToolBox 0"), 1);
}

TEST_F(ViewCommandTest, ACommandWithoutAnEntryCountsAsSwitchedOn) {
  PtrnZoom(nullptr, Entry(Zoom200));
  PtrnColrSet(nullptr, Entry(1));
  PtrnSelct(nullptr, Entry(0));
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom200);
  EXPECT_EQ(ColorCode, 1);
  EXPECT_EQ(PtrnType, TypeFrame);
}

TEST_F(ViewCommandTest, NumbersOutOfRangeAreIgnored) {
  for (const gint number : {-1, 15, 1000}) {
    PtrnSelct(nullptr, Entry(number));
    PtrnUnSelct(nullptr, Entry(number));
    PtrnZoom(nullptr, Entry(number));
    PtrnColrSet(nullptr, Entry(number));
    PtrnLangSet(nullptr, Entry(number));
  }
  EXPECT_THAT(Screen.Take(), IsEmpty());
  EXPECT_EQ(PtrnType, 0);
}

TEST_F(ViewCommandTest, AnOddZoomStaysUntilAnotherOneIsChosen) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = 9;
  Toggle(PtrnGrid, 0, true);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], 9);
  Toggle(PtrnZoom, Zoom500, true);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom500);
}

}  // namespace
