// Replacing one file, with each call going wrong in turn and with the process being killed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "PtrnMisc.h"
#include "support/FileTools.h"
#include "tests/common/Child.h"
#include "tests/common/TempFolder.h"
#include "tests/faults/Sweep.h"

namespace {

class ReplaceFault : public testing::Test {
 protected:
  ~ReplaceFault() override {
    FileCalls::RefuseNewFiles(false);
    FileCalls::Heal();
  }
  FolderImage Image() const { return ImageOf(folder_.Path()); }
  // A writer of the folder, which holds these files at first.
  Sweep SweepOf(const FolderImage& files, const std::function<bool()>& write,
                bool in_place = false) const {
    return Sweep({.Begin = [this, files] { Restore(folder_.Path(), files); },
                  .Write = write,
                  .Image = [this] { return Image(); },
                  .Memory = [] { return std::string(); },
                  .Reports = true,
                  .Repeats = true,
                  .InPlace = in_place});
  }

  TempFolder folder_;
  const std::string path_ = folder_.Path("a");
};

void RunAll(Sweep sweep) {
  sweep.FailWithEveryError();
  sweep.CutEachWrite();
  for (const int error : {ENOSPC, EIO, EROFS, EDQUOT}) sweep.FailFromEachCall(error);
  EXPECT_GE(sweep.Calls(), 8) << "look, make, write, set the length, flush, close, rename, flush";
}

TEST_F(ReplaceFault, TheOldContentStands) {
  RunAll(SweepOf({{"a", "the old content"}}, [this] { return ReplaceFile(path_, "new"); }));
}

TEST_F(ReplaceFault, ANewFileIsNotLeftInHalf) {
  RunAll(SweepOf({}, [this] { return ReplaceFile(path_, "new"); }));
}

TEST_F(ReplaceFault, ZerosBeforeTheContentMakeNoDifference) {
  RunAll(SweepOf({{"a", "the old content"}}, [this] { return ReplaceFile(path_, "new", 70000); }));
}

// What is written in place is put back when a call fails.
TEST_F(ReplaceFault, InPlaceTheOldContentIsPutBack) {
  FileCalls::RefuseNewFiles(true);
  for (const std::size_t offset : {0, 2, 70000}) {
    SCOPED_TRACE(offset);
    Sweep sweep = SweepOf(
        {{"a", "the old content"}}, [&] { return ReplaceFile(path_, "new", offset); }, true);
    sweep.FailWithEveryError();
    EXPECT_GE(sweep.Calls(), 6) << "look, open, write, set the length, flush, close";
  }
}

TEST_F(ReplaceFault, AFolderThatTakesNoNewEntryIsGoneRound) {
  folder_.Write("a", "the old content");
  FileCalls::RefuseNewFiles(true);
  EXPECT_TRUE(ReplaceFile(path_, "new"));
  EXPECT_EQ(Image(), (FolderImage{{"a", "new"}}));
}

// The new content stands where only the flush of the folder failed; it is not surely on the device,
// so it does not count as written.
TEST_F(ReplaceFault, AFailedFlushOfTheFolderIsReported) {
  folder_.Write("a", "the old content");
  FileCalls::GoWrong("fsync of the folder", 1, EIO);
  EXPECT_FALSE(ReplaceFile(path_, "new"));
  EXPECT_EQ(FileCalls::Heal(), "fsync of the folder");
  EXPECT_EQ(Image(), (FolderImage{{"a", "new"}}));
}

// The room that could not be reserved whole is given back: the file is as long as it was.
TEST_F(ReplaceFault, InPlaceRoomReservedInPartIsGivenBack) {
  FileCalls::RefuseNewFiles(true);
  for (const int error : {ENOSPC, EDQUOT, EIO, EFBIG}) {
    SCOPED_TRACE(error);
    folder_.Write("a", "the old content");
    FileCalls::GoWrong("fallocate", 1, error);
    EXPECT_FALSE(ReplaceFile(path_, std::string(5000, 'n')));
    EXPECT_EQ(FileCalls::Heal(), "fallocate");
    EXPECT_EQ(Image(), (FolderImage{{"a", "the old content"}}));
  }
}

TEST_F(ReplaceFault, InPlaceAFileSystemThatReservesNoRoomIsNotAtFault) {
  FileCalls::RefuseNewFiles(true);
  for (const int error : {EOPNOTSUPP, ENOSYS}) {
    SCOPED_TRACE(error);
    folder_.Write("a", "old");
    FileCalls::GoWrong("fallocate", 1, error);
    EXPECT_TRUE(ReplaceFile(path_, "longer than the old content"));
    EXPECT_EQ(FileCalls::Heal(), "fallocate");
    EXPECT_EQ(Image(), (FolderImage{{"a", "longer than the old content"}}));
  }
}

// Nothing counts as written that one of these could not do; what an interruption stops is begun
// again and does not belong here.
TEST_F(ReplaceFault, WhatFailsIsReportedAndCostsNothing) {
  for (const char* name : {"stat", "realpath", "faccessat", "open", "open to write", "pwrite",
                           "ftruncate", "fsync", "close", "rename"}) {
    SCOPED_TRACE(name);
    folder_.Write("a", "the old content");
    FileCalls::GoWrong(name, 1, EIO);
    EXPECT_FALSE(ReplaceFile(path_, "new"));
    EXPECT_EQ(FileCalls::Heal(), name);
    EXPECT_EQ(Image(), (FolderImage{{"a", "the old content"}}));
  }
}

TEST_F(ReplaceFault, InPlaceWhatFailsIsReportedAndCostsNothing) {
  FileCalls::RefuseNewFiles(true);
  for (const char* name : {"stat", "realpath", "faccessat", "open", "fstat", "pread",
                           "open to write", "fallocate", "pwrite", "ftruncate", "fsync"}) {
    SCOPED_TRACE(name);
    folder_.Write("a", "the old content");
    FileCalls::GoWrong(name, 1, EIO);
    EXPECT_FALSE(ReplaceFile(path_, "the new content, longer than the old"));
    EXPECT_EQ(FileCalls::Heal(), name);
    EXPECT_EQ(Image(), (FolderImage{{"a", "the old content"}}));
  }
}

TEST_F(ReplaceFault, AFileSystemThatFlushesNoFoldersIsNotAtFault) {
  for (const int error : {EINVAL, ENOTSUP, ENOSYS}) {
    FileCalls::GoWrong("fsync of the folder", 1, error);
    EXPECT_TRUE(ReplaceFile(path_, "new"));
    EXPECT_EQ(FileCalls::Heal(), "fsync of the folder");
  }
}

TEST_F(ReplaceFault, WhatIsInterruptedIsBegunAgain) {
  for (const char* name :
       {"open", "open to write", "pwrite", "ftruncate", "fsync", "close", "fsync of the folder"}) {
    SCOPED_TRACE(name);
    FileCalls::GoWrong(name, 1, EINTR);
    EXPECT_TRUE(ReplaceFile(path_, "new"));
    EXPECT_EQ(FileCalls::Heal(), name);
  }
}

TEST_F(ReplaceFault, InPlaceWhatIsInterruptedIsBegunAgain) {
  FileCalls::RefuseNewFiles(true);
  for (const char* name :
       {"open", "pread", "open to write", "fallocate", "pwrite", "ftruncate", "fsync"}) {
    SCOPED_TRACE(name);
    folder_.Write("a", "old");
    FileCalls::GoWrong(name, 1, EINTR);
    EXPECT_TRUE(ReplaceFile(path_, "longer than the old content"));
    EXPECT_EQ(FileCalls::Heal(), name);
    EXPECT_EQ(Image(), (FolderImage{{"a", "longer than the old content"}}));
  }
}

TEST_F(ReplaceFault, AReadThatIsInterruptedIsBegunAgain) {
  folder_.Write("a", "the content");
  for (const char* name : {"open", "pread"}) {
    SCOPED_TRACE(name);
    FileCalls::GoWrong(name, 1, EINTR);
    EXPECT_EQ(ReadWholeFile(path_), "the content");
    EXPECT_EQ(FileCalls::Heal(), name);
    gchar buffer[4] = "";
    FileCalls::GoWrong(name, 1, EINTR);
    EXPECT_EQ(FileRead(path_.c_str(), "", "", buffer, 3, 4), 1);
    EXPECT_EQ(FileCalls::Heal(), name);
    EXPECT_STREQ(buffer, "con");
  }
}

// A kernel that does not know the one step, or a file system that cannot take it.
TEST_F(ReplaceFault, RenamingWithoutTheOneStepNeverReplacesEither) {
  const std::string folder = folder_.Path();
  for (const int error : {EINVAL, ENOSYS}) {
    SCOPED_TRACE(error);
    Restore(folder, {{"a", "one"}, {"taken", "another"}});
    FileCalls::GoWrong("renameat2", 1, error);
    EXPECT_EQ(FileRename(folder.c_str(), "a", "", "taken", ""), 0);
    EXPECT_EQ(FileCalls::Heal(), "renameat2");
    EXPECT_EQ(Image(), (FolderImage{{"a", "one"}, {"taken", "another"}}));
    FileCalls::GoWrong("renameat2", 1, error);
    EXPECT_EQ(FileRename(folder.c_str(), "a", "", "free", ""), 1);
    EXPECT_EQ(FileCalls::Heal(), "renameat2");
    EXPECT_EQ(Image(), (FolderImage{{"free", "one"}, {"taken", "another"}}));
    FileCalls::GoWrong("renameat2", 1, error);
    EXPECT_EQ(FileRename(folder.c_str(), "missing", "", "b", ""), 0);
    FileCalls::Heal();
  }
}

// Any other failure is one.
TEST_F(ReplaceFault, RenamingThatFailsIsNotTriedInAnotherWay) {
  const std::string folder = folder_.Path();
  Restore(folder, {{"a", "one"}});
  for (const int error : {EIO, EACCES, EXDEV, ENOSPC}) {
    FileCalls::GoWrong("renameat2", 1, error);
    EXPECT_EQ(FileRename(folder.c_str(), "a", "", "b", ""), 0);
    EXPECT_EQ(FileCalls::Heal(), "renameat2");
    EXPECT_EQ(Image(), (FolderImage{{"a", "one"}}));
  }
}

TEST_F(ReplaceFault, AWriteInSmallPiecesIsWhole) {
  FileCalls::WriteInPieces(7);
  EXPECT_TRUE(ReplaceFile(path_, "a content of many pieces", 1));
  EXPECT_EQ(folder_.Read("a"), std::string("\0a content of many pieces", 25));
}

// A limit on the size of files stands in for a full disk: writing stops somewhere in the middle.
class SizeLimit : public ReplaceFault {
 protected:
  static bool Limit(rlim_t size) {
    const rlimit limit{size, size};
    return signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
  }

  const std::string large_ = std::string(100000, 'n');
};

TEST_F(SizeLimit, TheOldContentStands) {
  folder_.Write("a", "the old content");
  EXPECT_TRUE(HoldsInChild([&] { return Limit(4096) && !ReplaceFile(path_, large_); }));
  EXPECT_EQ(Image(), (FolderImage{{"a", "the old content"}}));
}

TEST_F(SizeLimit, ANewFileIsNotLeftInHalf) {
  EXPECT_TRUE(HoldsInChild([&] {
    return Limit(4096) && !ReplaceFile(path_, large_) && !ReplaceFile(folder_.Path("b"), "x", 5000);
  }));
  EXPECT_EQ(Image(), FolderImage());
}

TEST_F(SizeLimit, InPlaceTheOldContentStandsToo) {
  folder_.Write("a", "the old content");
  FileCalls::RefuseNewFiles(true);
  EXPECT_TRUE(HoldsInChild([&] { return Limit(4096) && !ReplaceFile(path_, large_); }));
  EXPECT_EQ(Image(), (FolderImage{{"a", "the old content"}}));
}

TEST_F(SizeLimit, AProfileKeepsItsKeys) {
  const std::string path = folder_.Write("a.ini", "[S]\nK=1\n");
  EXPECT_TRUE(HoldsInChild([&] {
    if (!Limit(16)) return false;
    ProfileWriteAsc1(path.c_str(), "S", "K", "a text that does not fit");
    return ProfileReadInt1(path.c_str(), "S", "K") == 1;
  }));
  EXPECT_EQ(Image(), (FolderImage{{"a.ini", "[S]\nK=1\n"}}));
}

TEST_F(ReplaceFault, AKilledWriterLeavesTheOldOrTheNewContent) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const std::string contents[2] = {std::string(50000, 'a'), std::string(90000, 'b')};
  folder_.Write("a", contents[0]);
  for (int round = 0; round < 40; ++round) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (unsigned turn = 0;; ++turn) ReplaceFile(path_, contents[turn % 2]);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20000));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    const std::string found = folder_.Read("a");
    EXPECT_TRUE(found == contents[0] || found == contents[1]) << "round " << round;
  }
}

}  // namespace
