// A project on a disk of its own that is full, or write-protected: a real one where the system lets
// the test mount it, else file calls that say so.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iostream>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/Registry.h"
#include "tests/common/Child.h"
#include "tests/faults/ProjectAtHand.h"

namespace {

class DiskTest : public ProjectAtHand {
 protected:
  // A disk in place of the project folder, for this process alone; what is mounted goes with it.
  bool MountDisk() const {
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("disk", ProjectFolder.c_str(), "tmpfs", 0, "size=512k") != 0) {
      return false;
    }
    ::Restore(Folder.Path(), Laid);
    return true;
  }
  // Takes what room there is.
  void FillDisk() const {
    std::ofstream filler(Folder.Path("project/filler"));
    while (filler << std::string(4096, 'f') << std::flush) {
    }
  }
  bool ProtectDisk() const {
    return mount(nullptr, ProjectFolder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  }
  FolderImage Project() const { return ImageOf(ProjectFolder); }

  // Writes everything that a project folder holds; nothing of it can be written.
  void WriteEverything() const {
    const FolderImage before = Project();
    AddItem("NEW");
    ASSERT_EQ(GetPtrnCount(), 2);
    PtrnDataSave(nullptr, nullptr);
    EXPECT_EQ(PtrnFlag, 2) << "still to be saved";
    EXPECT_EQ(GetPtrnCount(), 2);
    RegstPtrnCode("ANOTHER", 3);
    RegstPtrnText("a text", 3);
    ColrData[3] = {4, 4, 4};
    MarkData[3].mark[3] = 3;
    SaveColrFile();
    SaveMarkFile();
    EXPECT_EQ(ProjFileWrite(ProjPath, "Renamed"), 0);
    EXPECT_EQ(FileCopy(ProjPath, "PtrnColr", "", ProjPath, "Copy", ""), 0);
    EXPECT_EQ(FileWrite(ProjPath, "Plant", "prj", "x", 1, 300000), 0);
    EXPECT_EQ(Project(), before);
    EXPECT_EQ(ColrData[3].red, 4);
  }
  // Once there is room, the same layout is saved.
  void SaveAfterAll() const {
    const std::string before = Folder.Read("project/Screen.ptn");
    PtrnDataSave(nullptr, nullptr);
    EXPECT_EQ(PtrnFlag, 1);
    EXPECT_NE(Folder.Read("project/Screen.ptn"), before);
  }
};

TEST_F(DiskTest, OnAFullDiskEverythingStaysAsItWas) {
  EXPECT_TRUE(HoldsInChild([this] {
    const bool real = MountDisk();
    std::cout << (real ? "a real disk\n" : "no disk can be mounted: file calls stand in\n");
    real ? FillDisk() : FileCalls::LeaveRoom(0);
    WriteEverything();
    FileCalls::Heal();
    unlink(Folder.Path("project/filler").c_str());
    SaveAfterAll();
    return !HasFailure();
  }));
}

// With room for less than any file needs, writing begins before it fails.
TEST_F(DiskTest, OnADiskThatBecomesFullEverythingStaysAsItWas) {
  EXPECT_TRUE(HoldsInChild([this] {
    FileCalls::LeaveRoom(30);
    WriteEverything();
    FileCalls::Heal();
    SaveAfterAll();
    return !HasFailure();
  }));
}

// The folder takes no new file and the disk has no more room: found out before the old content
// goes.
TEST_F(DiskTest, OnAFullDiskNothingIsWrittenInPlace) {
  EXPECT_TRUE(HoldsInChild([this] {
    MountDisk() ? FillDisk() : FileCalls::LeaveRoom(0);
    const FolderImage before = Project();
    FileCalls::RefuseNewFiles(true);
    EXPECT_EQ(FileWrite(ProjPath, "Plant", "prj", std::string(50000, 'x').c_str(), 50000, 0), 0);
    EXPECT_EQ(FileWrite(ProjPath, "Plant", "prj", "x", 1, 300000), 0);
    EXPECT_EQ(Project(), before);
    return !HasFailure();
  }));
}

TEST_F(DiskTest, OnAWriteProtectedDiskEverythingStaysAsItWas) {
  EXPECT_TRUE(HoldsInChild([this] {
    const bool real = MountDisk() && ProtectDisk();
    std::cout << (real ? "a real disk\n" : "no disk can be mounted: file calls stand in\n");
    if (!real) FileCalls::GoWrong("open to write", 1, EROFS, FileCalls::Fault::Lasting);
    WriteEverything();
    EXPECT_EQ(FileDelete(ProjPath, "Other", "ptn"), real ? 0 : 1);
    return !HasFailure();
  }));
}

// Not even the program folder lets this user write: no profile, no snapshots.
TEST_F(DiskTest, FoldersOfSomebodyElseStayAsTheyWere) {
  for (const char* name : {"", "project", "program", "program/save", "source"}) {
    chmod(Folder.Path(name).c_str(), 0555);
  }
  EXPECT_TRUE(HoldsForPlainUser([this] {
    WriteEverything();
    EXPECT_EQ(PtrnSaveCount, 0);
    LogicDataEdit1();
    LogicDataEdit2();
    LogicDataEdit3();
    LogicDataEdit4();
    return !HasFailure();
  }));
  EXPECT_EQ(Image(), Laid);
  for (const char* name : {"", "project", "program", "program/save", "source"}) {
    chmod(Folder.Path(name).c_str(), 0755);
  }
}

}  // namespace
