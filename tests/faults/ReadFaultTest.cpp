// What cannot be read must not be lost by the next save.
#include <gmock/gmock.h>

#include <cerrno>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/faults/ProjectAtHand.h"

namespace {

class ReadFaultTest : public ProjectAtHand {};

TEST_F(ReadFaultTest, ALayoutThatTheDeviceDoesNotDeliverIsNotOpened) {
  for (const char* name : {"fstat", "pread"}) {
    for (int call = 1;; ++call) {
      SCOPED_TRACE(name + std::to_string(call));
      PtrnDataExit();
      ::Screen.Take();
      FileCalls::GoWrong(name, call, EIO);
      OpenScreen();
      if (FileCalls::Heal().empty()) break;
      // The profile is read, too; without it the zoom is that of no profile.
      if (PtrnFlag == 1) {
        EXPECT_EQ(GetPtrnCount(), 1);
        EXPECT_STREQ(Stored(0).Text1, "text");
      } else {
        EXPECT_EQ(GetPtrnCount(), 0);
        EXPECT_EQ(::Screen.Calls.back(), "SizeRequest 0 0x0 0%");
      }
    }
    EXPECT_EQ(PtrnFlag, 1);
  }
}

TEST_F(ReadFaultTest, RenewalLeavesALayoutAloneThatTheDeviceDoesNotDeliver) {
  PtrnDataExit();
  ProjData.Parm2[0] = 55;
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    Restore();
    FileCalls::GoWrong("pread", call, EIO);
    ProjFileRenew(ProjPath);
    const bool failed = !FileCalls::Heal().empty();
    for (const char* layout : {"Screen", "Other"}) {
      PtrnHedr = {};
      IntPtrnData();
      EXPECT_EQ(ReadPtrnFile(ProjPath, layout), LayoutReading::Whole);
      EXPECT_EQ(GetPtrnCount(), 1);
      EXPECT_STREQ(Stored(0).Text1, "text");
    }
    if (!failed) break;
  }
}

TEST_F(ReadFaultTest, WhatADamagedLayoutHoldsOutlivesEveryFault) {
  const std::string damaged = Folder.Read("project/Screen.ptn").substr(0, 500);
  for (const bool save : {false, true}) {
    for (int call = 1;; ++call) {
      SCOPED_TRACE(std::to_string(call) + (save ? " of saving" : " of renewing"));
      Restore();
      Open();
      Folder.Write("project/Screen.ptn", damaged);
      FileCalls::GoWrong(call, EIO);
      if (save) {
        PtrnFlag = 2;
        PtrnDataSave(nullptr, nullptr);
      } else {
        PtrnDataExit();
        ProjFileRenew(ProjPath);
      }
      const bool failed = !FileCalls::Heal().empty();
      const bool kept = Folder.Exists("project/Screen.ptn.bak") &&
                        Folder.Read("project/Screen.ptn.bak") == damaged;
      EXPECT_TRUE(kept || Folder.Read("project/Screen.ptn") == damaged);
      if (!failed) {
        EXPECT_TRUE(kept);
        EXPECT_NE(Folder.Read("project/Screen.ptn"), damaged);
        break;
      }
    }
  }
}

TEST_F(ReadFaultTest, PaletteAndMarksThatCouldNotBeReadAreNotReplacedByNothing) {
  const std::string palette = Folder.Read("project/PtrnColr");
  const std::string marks = Folder.Read("project/PtrnMark");
  FileCalls::GoWrong("pread", 1, EIO, FileCalls::Fault::Lasting);
  LoadColrFile();
  LoadMarkFile();
  FileCalls::Heal();
  EXPECT_EQ(ColrData[7].red, 0);
  SaveColrFile();
  SaveMarkFile();
  EXPECT_EQ(Folder.Read("project/PtrnColr"), palette);
  EXPECT_EQ(Folder.Read("project/PtrnMark"), marks);
  // What the user makes afterwards is saved.
  ColrData[0] = {1, 1, 1};
  SaveColrFile();
  EXPECT_EQ(Folder.Read("project/PtrnColr").substr(0, 12),
            std::string("\1\0\0\0\1\0\0\0\1\0\0\0", 12));
}

TEST_F(ReadFaultTest, APaletteThatIsMissingIsMadeOfZeros) {
  std::filesystem::remove(Folder.Path("project/PtrnColr"));
  LoadColrFile();
  SaveColrFile();
  EXPECT_EQ(Folder.Read("project/PtrnColr"), std::string(1200, '\0'));
}

TEST_F(ReadFaultTest, AKnownProjectThatCannotBeLookedAtIsNotForgotten) {
  FileCalls::GoWrong("stat", 1, EIO, FileCalls::Fault::Lasting);
  ProjDataInit();
  FileCalls::Heal();
  EXPECT_THAT(Folder.Read("program/VarnixMaster.ini"), testing::HasSubstr("PROJNAME0=Plant,"));
}

TEST_F(ReadFaultTest, ASnapshotThatTheDeviceDoesNotDeliverChangesNothing) {
  AddItem("SECOND");
  ASSERT_EQ(PtrnSaveCount, 1);
  const std::string before = MemoryImage();
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    FileCalls::GoWrong("pread", call, EIO);
    PopPtrnData();
    if (FileCalls::Heal().empty()) break;
    EXPECT_EQ(MemoryImage(), before);
    EXPECT_EQ(PtrnSaveCount, 1);
  }
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_EQ(GetPtrnCount(), 1);
}

// The header of the snapshot comes before its records: what fails behind it takes nothing of it.
TEST_F(ReadFaultTest, ASnapshotThatFailsInItsRecordsLeavesTheHeader) {
  AddItem("SECOND");
  PtrnHedr.Parm2[ViewSlot::Zoom] = 4;
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 7;
  PtrnHedr.Parm1[HedrSlot::Width] = 1234;
  PtrnHedr.Parm1[HedrSlot::Height] = 567;
  CopyText(PtrnHedr.PtrnName1, "Renamed");
  const std::string before = MemoryImage();
  int failed = 0;
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    FileCalls::GoWrong("pread", call, EIO);
    PopPtrnData();
    if (FileCalls::Heal().empty()) break;
    ++failed;
    EXPECT_EQ(MemoryImage(), before);
    EXPECT_EQ(PtrnSaveCount, 1);
  }
  EXPECT_GE(failed, 2) << "the header and what follows it";
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 800) << "the project's, once nothing fails";
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::GridShown], 1);
}

// The flags are as many as the registry numbers: an old registry keeps its flags.
TEST_F(ReadFaultTest, ARegistryThatCannotBeWrittenKeepsItsFlags) {
  PtrnDataExit();
  Folder.Write("project/PtrnFlag", "flags of the old registry");
  const std::string registry = Folder.Read("project/PtrnCode");
  ASSERT_FALSE(registry.empty());
  for (const char* name : {"open to write", "pwrite", "fsync", "rename"}) {
    SCOPED_TRACE(name);
    FileCalls::GoWrong(name, 1, EIO);
    LogicDataEdit1();
    EXPECT_EQ(FileCalls::Heal(), name);
    EXPECT_EQ(Folder.Read("project/PtrnCode"), registry);
    EXPECT_EQ(Folder.Read("project/PtrnFlag"), "flags of the old registry");
  }
  LogicDataEdit1();
  EXPECT_EQ(Folder.Read("project/PtrnFlag"), std::string(101, '\0'));
}

// After eleven changes the oldest snapshot is dropped and the others move up. Whatever fails there,
// each undo leads to an earlier layout and none to nothing.
TEST_F(ReadFaultTest, AHistoryThatCannotMoveUpHasNoGap) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    Restore();
    Open();
    for (int change = 0; change < 10; ++change) AddItem("CODE");
    ASSERT_EQ(PtrnSaveCount, 10);
    FileCalls::GoWrong(call, EIO);
    PushPtrnData();
    const bool failed = !FileCalls::Heal().empty();
    if (!failed) {
      EXPECT_EQ(PtrnSaveCount, 10);
      break;
    }
    gint count = GetPtrnCount() + 1;
    while (PtrnSaveCount > 0) {
      PopPtrnData();
      EXPECT_LT(GetPtrnCount(), count);
      EXPECT_GE(GetPtrnCount(), 1);
      count = GetPtrnCount();
    }
  }
}

}  // namespace
