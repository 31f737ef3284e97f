// The undo history.
#include <gmock/gmock.h>
#include <unistd.h>

#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

class UndoTest : public EditFixture {
 protected:
  // One change: a line with the number as its x position.
  static void Change(gint number) {
    PushPtrnData();
    const PTRNDATA item = MakeValidItem(TypeLine, number, 0, number, 50);
    AddPtrnData(&item);
    PtrnFlag = 2;
  }
};

TEST_F(UndoTest, SlotsAreNamedByTheProcessGroup) {
  EXPECT_EQ(std::string(PtrnSavePath), ProgramFolder + "/save");
  EXPECT_TRUE(Folder.Exists("program/save"));
  const std::string group = std::to_string(getpgid(0));
  EXPECT_EQ(PtrnSaveName[0], "PtrnSave" + group + "_0");
  EXPECT_EQ(PtrnSaveName[9], "PtrnSave" + group + "_9");
  Change(1);
  EXPECT_TRUE(Folder.Exists("program/save/PtrnSave" + group + "_0.ptn"));
}

TEST_F(UndoTest, OneStepBackRestoresItemsAndHeader) {
  Change(1);
  PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom100;
  Change(2);
  PtrnHedr.Parm1[HedrSlot::Width] = 999;
  PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom50;
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 200);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom100);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(PtrnFlag, 2);
}

TEST_F(UndoTest, TheGridDisplayStaysAsItIs) {
  Change(1);
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PopPtrnData();
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::GridShown], 1);
}

TEST_F(UndoTest, ElevenChangesKeepTenSnapshots) {
  for (gint number = 1; number <= 11; ++number) Change(number);
  EXPECT_EQ(PtrnSaveCount, 10);
  EXPECT_EQ(SnapshotCount(), 10);
  for (gint count = 10; count >= 1; --count) {
    PopPtrnData();
    EXPECT_EQ(GetPtrnCount(), count);
    EXPECT_EQ(gint{Stored(count - 1).Point1.x}, count);
  }
  Screen.Take();
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_TRUE(Screen.Take().empty());
}

TEST_F(UndoTest, AnUndoneSlotIsUsedAgain) {
  Change(1);
  Change(2);
  PopPtrnData();
  EXPECT_EQ(SnapshotCount(), 2);
  Change(3);
  EXPECT_EQ(SnapshotCount(), 2);
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(gint{Stored(0).Point1.x}, 1);
}

TEST_F(UndoTest, BothDirectionsBringTheMenusUpToDate) {
  Change(1);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu"));
  PopPtrnData();
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu"));
}

TEST_F(UndoTest, UndoRightAfterASaveEmptiesTheStoreAndKeepsTheHeader) {
  Change(1);
  Change(2);
  PtrnDataSave(nullptr, nullptr);
  EXPECT_EQ(SnapshotCount(), 0);
  EXPECT_EQ(PtrnSaveCount, 2);
  PtrnHedr.Parm1[HedrSlot::Width] = 333;
  PtrnEditBack(nullptr, nullptr);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 333);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(PtrnSaveCount, 1);
}

TEST_F(UndoTest, TheCommandShowsTheLayoutUnderItsOldName) {
  CopyText(PtrnHedr.PtrnName1, "Before");
  Change(1);
  CopyText(PtrnHedr.PtrnName1, "After");
  CopyText(PtrnName, "After");
  Screen.Take();
  PtrnEditBack(nullptr, nullptr);
  EXPECT_STREQ(PtrnName, "Before");
  EXPECT_THAT(
      Screen.Take(),
      ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0", "SetMainMenu",
                  "SetWindTitle [Plant] [Before]", "SizeRequest 1 200x100 100%"));
}

TEST_F(UndoTest, ANewHistoryBeginsEmpty) {
  Change(1);
  PtrnSaveInit();
  EXPECT_EQ(PtrnSaveCount, 0);
  PtrnSaveExit();
  EXPECT_EQ(SnapshotCount(), 0);
}

TEST_F(UndoTest, TheFolderIsChosenOnce) {
  const std::string first = PtrnSavePath;
  CopyText(PathName, Folder.Path("elsewhere"));
  PtrnSaveInit();
  EXPECT_EQ(std::string(PtrnSavePath), first);
}

}  // namespace
