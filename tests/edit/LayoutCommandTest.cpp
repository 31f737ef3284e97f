// New, open, close, save, settings, print, exit, and the guard before a changed layout goes.
#include <gmock/gmock.h>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

constexpr const char* SaveQuestion =
    "Dlg_MessageBox レイアウトデータ保存確認|レイアウトデータが変更されています。|保存しますか "
    "？|2";

enum Answer { Cancel = 0, Yes = 1, No = 2 };

class LayoutCommandTest : public EditFixture {
 protected:
  static void MakeChanged() {
    const PTRNDATA item = MakeValidItem(TypeLine, 1, 2, 3, 4);
    AddPtrnData(&item);
    PtrnFlag = 2;
  }
  bool LayoutExists(const std::string& name) const {
    return Folder.Exists("project/" + name + ".ptn");
  }
  // A stored layout of 320 x 240 dots with one line; nothing is open afterwards.
  static void StoreLayout(const char* name) {
    MakeChanged();
    PtrnHedr.Parm1[HedrSlot::Width] = 320;
    PtrnHedr.Parm1[HedrSlot::Height] = 240;
    PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom50;
    PtrnFileWrite(ProjPath, name);
    ExtPtrnData();
    PtrnHedr = {};
    PtrnFlag = 0;
  }
};

TEST_F(LayoutCommandTest, TheGuardLetsAnUnchangedLayoutGoWithoutAsking) {
  EXPECT_EQ(SavePtrnData(), 1);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_TRUE(Screen.Take().empty());
}

TEST_F(LayoutCommandTest, TheGuardSavesAfterYesAndSave) {
  MakeChanged();
  PushPtrnData();
  Screen.Take();
  Screen.MessageAnswers = {Yes};
  Screen.CloseAnswers = {Yes};
  EXPECT_EQ(SavePtrnData(), 1);
  EXPECT_THAT(Screen.Take(), ElementsAre(SaveQuestion, "PtrnFileClose"));
  EXPECT_TRUE(LayoutExists("Screen"));
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(SnapshotCount(), 0);
}

TEST_F(LayoutCommandTest, TheGuardDiscardsAfterNoOrDiscard) {
  MakeChanged();
  Screen.MessageAnswers = {No};
  EXPECT_EQ(SavePtrnData(), 1);
  EXPECT_EQ(PtrnFlag, 0);
  MakeChanged();
  Screen.MessageAnswers = {Yes};
  Screen.CloseAnswers = {No};
  EXPECT_EQ(SavePtrnData(), 1);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_FALSE(LayoutExists("Screen"));
}

TEST_F(LayoutCommandTest, TheGuardStopsWhenEitherDialogIsCancelled) {
  MakeChanged();
  Screen.MessageAnswers = {Cancel};
  EXPECT_EQ(SavePtrnData(), 0);
  Screen.MessageAnswers = {Yes};
  Screen.CloseAnswers = {Cancel};
  EXPECT_EQ(SavePtrnData(), 0);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_FALSE(LayoutExists("Screen"));
}

TEST_F(LayoutCommandTest, BeginningALayoutResetsTheView) {
  PtrnType = TypeLine;
  PtrnMode = ModeSelected;
  ColorCode = 2;
  PtrnUnSlct[0] = PtrnUnSlct[14] = 1;
  MakeChanged();
  PtrnDataInit();
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(ColorCode, 0);
  EXPECT_EQ(PtrnUnSlct[0], 0);
  EXPECT_EQ(PtrnUnSlct[14], 0);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 0"));
}

TEST_F(LayoutCommandTest, EndingALayoutShowsTheStartPicture) {
  MakeChanged();
  PtrnDataExit();
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 0);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetWindTitle [Plant] []", "SizeRequest 0 0x0 0%"));
}

TEST_F(LayoutCommandTest, ANewLayoutIsNamedByItsFirstTitle) {
  Screen.LayoutSettings = [] {
    EXPECT_EQ(EditHedr.Parm1[HedrSlot::Kind], 1);
    CopyText(EditHedr.PtrnName1, "Pumps");
    EditHedr.Parm1[HedrSlot::Width] = 300;
    EditHedr.Parm1[HedrSlot::Height] = 150;
    EditHedr.Parm2[ViewSlot::Zoom] = Zoom200;
    return 1;
  };
  PtrnDataNew(nullptr, Entry(1));
  EXPECT_STREQ(PtrnName, "Pumps");
  EXPECT_STREQ(PtrnHedr.PtrnName1, "Pumps");
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0",
                          "SetCursor 0", "EditPtrnData", "SetMainMenu",
                          "SetWindTitle [Plant] [Pumps]", "SizeRequest 1 300x150 200%"));
}

TEST_F(LayoutCommandTest, ACancelledNewLayoutRefreshesNothing) {
  PtrnDataNew(nullptr, Entry(0));
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(Screen.Calls.back(), "EditPtrnData");
}

TEST_F(LayoutCommandTest, ANewLayoutWaitsForTheGuard) {
  MakeChanged();
  PtrnDataNew(nullptr, Entry(0));
  EXPECT_THAT(Screen.Calls, Not(Contains("EditPtrnData")));
  EXPECT_EQ(PtrnFlag, 2);
}

TEST_F(LayoutCommandTest, OpeningTakesTheZoomOfTheProfile) {
  StoreLayout("Tanks");
  WriteProfile("[PTRNDATA]\nZOOM=3\n");
  Screen.LayoutOpen = [] {
    CopyText(PtrnName, "Tanks");
    return 1;
  };
  PtrnDataOpen(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom75);
  EXPECT_THAT(
      Screen.Take(),
      ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0",
                  "SetWindTitle [Plant] []", "SizeRequest 0 0x0 0%", "PtrnFileOpen", "SetCursor 0",
                  "SetMainMenu", "SetWindTitle [Plant] [Tanks]", "SizeRequest 1 320x240 75%"));
}

TEST_F(LayoutCommandTest, AnOddZoomOfTheProfileCountsAsTheFirst) {
  StoreLayout("Tanks");
  WriteProfile("[PTRNDATA]\nZOOM=12\n");
  Screen.LayoutOpen = [] {
    CopyText(PtrnName, "Tanks");
    return 1;
  };
  PtrnDataOpen(nullptr, nullptr);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], Zoom500);
}

TEST_F(LayoutCommandTest, ACancelledOpenLeavesNoLayout) {
  PtrnDataOpen(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 0);
}

TEST_F(LayoutCommandTest, OpeningAMissingLayoutShowsAnEmptyOne) {
  Screen.LayoutOpen = [] {
    CopyText(PtrnName, "Gone");
    return 1;
  };
  PtrnDataOpen(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(Screen.Calls.back(), "SizeRequest 1 0x0 500%");
}

TEST_F(LayoutCommandTest, ClosingAnUnchangedLayoutAsksNothing) {
  PtrnDataClose(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_THAT(Screen.Calls, Not(Contains("PtrnFileClose")));
  EXPECT_EQ(Screen.Calls.back(), "SizeRequest 0 0x0 0%");
}

TEST_F(LayoutCommandTest, ClosingAChangedLayoutFollowsTheAnswer) {
  MakeChanged();
  Screen.CloseAnswers = {Cancel};
  PtrnDataClose(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  Screen.CloseAnswers = {No};
  PtrnDataClose(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_FALSE(LayoutExists("Screen"));
  MakeChanged();
  Screen.CloseAnswers = {Yes};
  PtrnDataClose(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_TRUE(LayoutExists("Screen"));
}

TEST_F(LayoutCommandTest, SavingWritesAChangedLayoutAlone) {
  PtrnDataSave(nullptr, nullptr);
  EXPECT_FALSE(LayoutExists("Screen"));
  MakeChanged();
  Screen.Take();
  PtrnDataSave(nullptr, nullptr);
  EXPECT_TRUE(LayoutExists("Screen"));
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(Screen.Calls.back(), "SetMainMenu");
}

TEST_F(LayoutCommandTest, ChangedSettingsCanBeUndoneAndMayRenameTheLayout) {
  MakeChanged();
  PtrnDataSave(nullptr, nullptr);
  PtrnSaveCount = 0;
  Screen.LayoutSettings = [] {
    EXPECT_STREQ(EditHedr.PtrnName1, "Screen");
    CopyText(EditHedr.PtrnName1, "Renamed");
    EditHedr.Parm1[HedrSlot::Width] = 150;
    return 1;
  };
  PtrnDataEdit(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_STREQ(PtrnName, "Renamed");
  EXPECT_EQ(Screen.Calls.back(), "SizeRequest 1 150x100 100%");
  PtrnDataSave(nullptr, nullptr);
  EXPECT_TRUE(LayoutExists("Screen"));
  EXPECT_TRUE(LayoutExists("Renamed"));
}

TEST_F(LayoutCommandTest, TheSnapshotOfChangedSettingsHoldsTheOldHeader) {
  Screen.LayoutSettings = [] {
    EditHedr.Parm1[HedrSlot::Width] = 150;
    return 1;
  };
  PtrnDataEdit(nullptr, nullptr);
  PtrnEditBack(nullptr, nullptr);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 200);
}

TEST_F(LayoutCommandTest, CancelledSettingsChangeNothing) {
  Screen.LayoutSettings = [] {
    EditHedr.Parm1[HedrSlot::Width] = 150;
    return 0;
  };
  PtrnDataEdit(nullptr, nullptr);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 200);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(PtrnSaveCount, 0);
}

TEST_F(LayoutCommandTest, PrintingOnlyClosesThePanel) {
  PtrnType = TypeLine;
  PtrnDataPrint(nullptr, nullptr);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0"));
}

// A main loop that a command is called from.
class LayoutExitTest : public LayoutCommandTest {
 protected:
  LayoutExitTest() { MainLoop = g_main_loop_new(nullptr, FALSE); }
  ~LayoutExitTest() override {
    g_main_loop_unref(MainLoop);
    MainLoop = nullptr;
  }
  // True when the command ended the loop by itself.
  static bool ExitEndsTheLoop() {
    struct Watch {
      bool Forced = false;
    } watch;
    g_idle_add(
        [](gpointer data) -> gboolean {
          PtrnExit(nullptr, nullptr);
          if (g_main_loop_is_running(MainLoop)) {
            static_cast<Watch*>(data)->Forced = true;
            g_main_loop_quit(MainLoop);
          }
          return G_SOURCE_REMOVE;
        },
        &watch);
    g_main_loop_run(MainLoop);
    return !watch.Forced;
  }
};

TEST_F(LayoutExitTest, AnUnchangedLayoutLetsTheProgramEnd) {
  EXPECT_TRUE(ExitEndsTheLoop());
}

TEST_F(LayoutExitTest, CancellingTheGuardKeepsTheProgramRunning) {
  MakeChanged();
  Screen.MessageAnswers = {Cancel};
  EXPECT_FALSE(ExitEndsTheLoop());
  EXPECT_EQ(PtrnFlag, 2);
}

TEST_F(LayoutCommandTest, LeavingWithoutAMainLoopOnlyReleasesTheLayout) {
  PtrnExit(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
}

}  // namespace
