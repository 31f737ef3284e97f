// A save that replaces another layout, or items by none, with each of its file calls going wrong:
// what stood there is never lost, and the save is done as a whole or not at all.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/common/Child.h"
#include "tests/faults/ProjectAtHand.h"
#include "tests/faults/Sweep.h"

namespace {

constexpr const char* Other = "project/Other.ptn";
constexpr const char* KeptOther = "project/Other.ptn.bak";

class KeptLayoutTest : public ProjectAtHand {
 protected:
  ~KeptLayoutTest() override { FileCalls::RefuseNewFiles(false); }

  // "Screen" is open, changed, and bears the title of "Other" now.
  void Begin() const {
    Restore();
    Open();
    CopyText(PtrnHedr.PtrnName1, "Other");
    CopyText(PtrnName, "Other");
    PtrnFlag = 2;
  }
  // "Screen" is open under its own title and has lost its item.
  void BeginEmptied() const {
    Restore();
    Open();
    DelPtrnData(0);
    ASSERT_EQ(GetPtrnCount(), 0);
    PtrnFlag = 2;
  }
  static bool Save() {
    PtrnDataSave(nullptr, nullptr);
    return PtrnFlag == 1;
  }
  std::string Content(const std::string& file) const {
    return Folder.Exists(file) ? Folder.Read(file) : "";
  }
  // What was there before stands in its place or is kept.
  void ExpectNothingLost(const std::string& file) {
    const std::string old = Laid[file];
    EXPECT_TRUE(Content(file) == old || Content(file + ".bak") == old);
  }
  // Whatever call fails, nothing is lost, and the next save brings it to an end. The number of
  // calls that failed in turn.
  int FailEachCall(const std::string& file, const std::function<void()>& begin,
                   const std::function<void(int)>& arrange) {
    for (int call = 1; !HasFailure(); ++call) {
      SCOPED_TRACE("call " + std::to_string(call));
      begin();
      arrange(call);
      const bool saved = Save();
      const std::string failed = FileCalls::Heal();
      SCOPED_TRACE("it was " + failed);
      ExpectNothingLost(file);
      if (failed.empty()) {
        EXPECT_TRUE(saved);
        return call - 1;
      }
      EXPECT_TRUE(Save());
      EXPECT_NE(Content(file), Laid[file]);
      EXPECT_EQ(Content(file + ".bak"), Laid[file]) << "what the first save kept is still kept";
    }
    return 0;
  }
  // The same for a save over another layout and for one of no items.
  void FailEachCall(const std::function<void(int)>& arrange) {
    constexpr int LeastCalls = 30;  // look, keep a copy, write, each with its file and its folder
    EXPECT_GE(FailEachCall(
                  Other, [this] { Begin(); }, arrange),
              LeastCalls);
    EXPECT_GE(FailEachCall(
                  "project/Screen.ptn", [this] { BeginEmptied(); }, arrange),
              LeastCalls);
  }
};

TEST_F(KeptLayoutTest, WhateverFailsNothingIsLost) {
  for (const int error : {ENOSPC, EIO, EROFS, EDQUOT, EACCES, ENOMEM, EINTR}) {
    SCOPED_TRACE(error);
    FailEachCall([error](int call) { FileCalls::GoWrong(call, error); });
    ASSERT_FALSE(HasFailure());
  }
}

TEST_F(KeptLayoutTest, WhenTheDeviceIsGoneNothingIsLost) {
  FailEachCall([](int call) { FileCalls::GoWrong(call, EIO, FileCalls::Fault::Lasting); });
  EXPECT_FALSE(HasFailure());
}

// Room for the kept file alone, for neither, for both: the layout is saved with it or not at all.
TEST_F(KeptLayoutTest, AFullDiskKeepsBothOrNeither) {
  Begin();
  ASSERT_TRUE(Save());
  const std::string written = Folder.Read(Other);
  const std::size_t enough = Laid[Other].size() + written.size();
  for (std::size_t room = 0; room <= enough; room += room + 100 < enough ? 100 : 1) {
    SCOPED_TRACE(room);
    Begin();
    FileCalls::LeaveRoom(room);
    const bool saved = Save();
    FileCalls::Heal();
    EXPECT_EQ(saved, room == enough);
    EXPECT_EQ(Folder.Read(Other), saved ? written : Laid[Other]);
    EXPECT_EQ(PtrnFlag, saved ? 1 : 2);
    ExpectNothingLost(Other);
    ASSERT_FALSE(HasFailure());
  }
}

// Where no file can be made nothing can be kept, so nothing is replaced.
TEST_F(KeptLayoutTest, AFolderThatTakesNoNewEntryKeepsItsLayout) {
  Begin();
  FileCalls::RefuseNewFiles(true);
  EXPECT_FALSE(Save());
  FileCalls::RefuseNewFiles(false);
  EXPECT_EQ(Folder.Read(Other), Laid[Other]);
  EXPECT_TRUE(Save());
  EXPECT_EQ(Folder.Read(KeptOther), Laid[Other]);
}

// The kept file is a file of its own: a save that has to write in place does not reach it.
TEST_F(KeptLayoutTest, ASaveInPlaceLeavesTheKeptFile) {
  for (int call = 1; call <= 2; ++call) {
    SCOPED_TRACE(call);
    Begin();
    std::filesystem::permissions(Folder.Path(Other), std::filesystem::perms{0664});
    FileCalls::GoWrong("fchmod", call, EPERM);
    Save();
    EXPECT_EQ(FileCalls::Heal(), "fchmod");
    ExpectNothingLost(Other);
    FileCalls::RefuseNewFiles(true);
    PtrnFlag = 2;
    Save();
    FileCalls::RefuseNewFiles(false);
    ExpectNothingLost(Other);
  }
}

// Killed behind each call that changes something.
TEST_F(KeptLayoutTest, AKilledSaveLosesNothing) {
  Begin();
  FileCalls::Heal();
  ASSERT_TRUE(Save());
  const std::string written = Folder.Read(Other);
  const int changes = FileCalls::Changes();
  EXPECT_GT(changes, 5);
  for (int change = 1; change <= changes; ++change) {
    SCOPED_TRACE(change);
    Begin();
    EXPECT_FALSE(HoldsInChild([change] {
      FileCalls::KillBehind(change);
      return Save();
    }));
    EXPECT_TRUE(Folder.Read(Other) == Laid[Other] || Folder.Read(Other) == written);
    ExpectNothingLost(Other);
  }
}

}  // namespace
