// A full disk and a folder that refuses: the layout in memory and the old file stay.
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "support/Text.h"
#include "tests/edit/EditFixture.h"

namespace {

// No file can grow while this lives, as on a full disk.
class FullDisk {
 public:
  FullDisk() : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &oldLimit_);
    const rlimit none{0, oldLimit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &oldLimit_);
    std::signal(SIGXFSZ, oldHandler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit oldLimit_{};
  void (*oldHandler_)(int);
};

class WriteFaultTest : public EditFixture {
 protected:
  WriteFaultTest() {
    Change();
    PtrnDataSave(nullptr, nullptr);
    PtrnSaveInit();
    SavedFile = Folder.Read("project/Screen.ptn");
  }
  // Registers one more line.
  static void Change() {
    PtrnData = MakeValidItem(TypeLine, 10, 20, 50, 60);
    PtrnNo = -1;
    ToolBoxButn(nullptr, Entry(0));
  }
  // Entries of the project folder, temporary ones included.
  std::vector<std::string> ProjectEntries() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(ProjectFolder)) {
      names.push_back(entry.path().filename());
    }
    return names;
  }

  std::string SavedFile;
};

TEST_F(WriteFaultTest, AFailedSaveKeepsLayoutAndOldFile) {
  Change();
  {
    const FullDisk full;
    PtrnDataSave(nullptr, nullptr);
  }
  EXPECT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(PtrnFlag, 2) << "still to be saved";
  EXPECT_EQ(Folder.Read("project/Screen.ptn"), SavedFile);
  EXPECT_THAT(ProjectEntries(), testing::UnorderedElementsAre("Screen.ptn", "PtrnCode"));
}

TEST_F(WriteFaultTest, ALayoutThatCannotBeSavedIsNotClosed) {
  Change();
  Screen.CloseAnswers = {1};
  {
    const FullDisk full;
    PtrnDataClose(nullptr, nullptr);
  }
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(Folder.Read("project/Screen.ptn"), SavedFile);
}

TEST_F(WriteFaultTest, ALayoutThatCannotBeSavedStopsWhatWouldDropIt) {
  Change();
  Screen.MessageAnswers = {1};
  Screen.CloseAnswers = {1};
  {
    const FullDisk full;
    EXPECT_EQ(SavePtrnData(), 0);
  }
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(GetPtrnCount(), 2);
}

TEST_F(WriteFaultTest, ACommitOnAFullDiskStandsInMemory) {
  const std::string registry = Folder.Read("project/PtrnCode");
  {
    const FullDisk full;
    PtrnData = MakeValidItem(TypeButton, 10, 20, 50, 60);
    CopyText(PtrnData.ID_Code, "OTHER");
    PtrnNo = -1;
    EXPECT_EQ(ToolButn_OK(), 1);
  }
  EXPECT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(Folder.Read("project/PtrnCode"), registry);
}

TEST_F(WriteFaultTest, ASnapshotThatCouldNotBeWrittenDoesNotCount) {
  Change();
  EXPECT_EQ(PtrnSaveCount, 1);
  {
    const FullDisk full;
    Change();
  }
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(GetPtrnCount(), 3);
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 1);
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 1);
}

TEST_F(WriteFaultTest, AFullHistoryLosesOnlyItsOldestSnapshotToAFullDisk) {
  for (gint i = 0; i < 10; ++i) Change();
  {
    const FullDisk full;
    Change();
  }
  EXPECT_EQ(PtrnSaveCount, 9);
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 10);
}

// The child gives up the right to write anywhere; its findings come back as its exit status.
TEST_F(WriteFaultTest, AReadOnlyProjectKeepsLayoutAndOldFile) {
  constexpr mode_t ReadOnlyFolder = 0555;
  constexpr uid_t Nobody = 65534;
  for (const std::string& folder : {Folder.Path(), ProgramFolder, ProjectFolder}) {
    ASSERT_EQ(chmod(folder.c_str(), ReadOnlyFolder), 0);
  }
  EXPECT_EXIT(
      {
        if (geteuid() == 0 && setuid(Nobody) != 0) _exit(2);
        Change();
        PtrnDataSave(nullptr, nullptr);
        _exit(GetPtrnCount() == 2 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
  EXPECT_EQ(Folder.Read("project/Screen.ptn"), SavedFile);
  for (const std::string& folder : {Folder.Path(), ProgramFolder, ProjectFolder}) {
    chmod(folder.c_str(), 0755);
  }
}

}  // namespace
