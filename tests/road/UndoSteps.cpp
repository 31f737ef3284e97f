#include <gtest/gtest.h>

#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "tests/road/RoadTest.h"

namespace {

class UndoSteps : public RoadTest {};

// Draws and registers boxes one after the other, all of the type chosen once.
void DrawBoxes(gint count) {
  ChooseMenu(MenuBar(), {"編集", "矩形"});
  for (gint no = 0; no < count; no++) {
    DragOnCanvas(20 + no * 40, 40, 44 + no * 40, 80);
    ClickCanvas(400, 400, RightButton);
    ChooseMenu(PopupMenu[1], {" 登録   "});
    EXPECT_TRUE(See([no] { return GetPtrnCount() == no + 1; }));
  }
}

void Undo() {
  PressKey(GDK_KEY_z, {GDK_KEY_Control_L});
}

bool CanUndo() {
  return Look([] { return gtk_widget_get_sensitive(EditMenu[0]) != FALSE; });
}

TEST_F(UndoSteps, TakesBackTenSteps) {
  Play([this] {
    NewLayout(640, 480);
    EXPECT_FALSE(CanUndo());
    DrawBoxes(12);
    for (gint left = 11; left >= 2; left--) {
      EXPECT_TRUE(CanUndo());
      Undo();
      EXPECT_TRUE(See([left] { return GetPtrnCount() == left; })) << left;
    }
    EXPECT_FALSE(CanUndo());
    Undo();
    EXPECT_EQ(Look([] { return GetPtrnCount(); }), 2);
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["DataCount"], 2);
  });
}

TEST_F(UndoSteps, TakesBackADeletionAndAMove) {
  Play([this] {
    NewLayout(640, 480);
    DrawBoxes(1);
    ClickCanvas(26, 40);
    DragOnCanvas(26, 40, 66, 100);
    ClickCanvas(400, 400, RightButton);
    ChooseMenu(PopupMenu[1], {" 登録   "});
    ClickCanvas(66, 100);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    PressKey(GDK_KEY_Delete);
    EXPECT_TRUE(See([] { return GetPtrnCount() == 0; }));
    Undo();
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    Undo();
    Settle();
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][0], 20);
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][1], 40);
  });
}

TEST_F(UndoSteps, UndoAfterASaveEmptiesTheLayout) {
  Play([this] {
    NewLayout(640, 480);
    DrawBoxes(2);
    SaveByKey();
    EXPECT_TRUE(CanUndo());
    Undo();
    EXPECT_TRUE(See([] { return GetPtrnCount() == 0; }));
    // The file keeps what was saved.
    EXPECT_EQ(Saved(LayoutName)["DataCount"], 2);
  });
}

}  // namespace
