// What becomes of files when the system refuses a step of writing them.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "PtrnMisc.h"
#include "common/Child.h"
#include "common/TempFolder.h"
#include "support/FileTools.h"

namespace {

// The system call that is to fail: counted down to 0, which never fails.
int CallsToFault = 0;
int FaultError = 0;
std::size_t LongestWrite = SIZE_MAX;

bool FailsNow() {
  if (CallsToFault == 0 || --CallsToFault > 0) return false;
  errno = FaultError;
  return true;
}

}  // namespace

// These stand before the C library's own.
extern "C" {

int open(const char* path, int flags, ...) {
  va_list args;
  va_start(args, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(args, mode_t) : 0;
  va_end(args);
  if (FailsNow()) return -1;
  return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  if (FailsNow()) return -1;
  return syscall(SYS_pwrite64, file, bytes, std::min(size, LongestWrite), offset);
}

int ftruncate(int file, off_t size) noexcept {
  return FailsNow() ? -1 : static_cast<int>(syscall(SYS_ftruncate, file, size));
}

int fsync(int file) {
  return FailsNow() ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

int rename(const char* from, const char* to) noexcept {
  return FailsNow() ? -1 : static_cast<int>(syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

}  // extern "C"

namespace {

using testing::UnorderedElementsAre;

class Fault : public testing::Test {
 protected:
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
  // Result of `write` while the call of that number fails. Sets `reached` when there was such one.
  template <typename Write>
  static bool WithFault(int call, int error, bool& reached, Write write) {
    CallsToFault = call;
    FaultError = error;
    const bool result = write();
    reached = CallsToFault == 0;
    CallsToFault = 0;
    return result;
  }

  TempFolder folder_;
};

TEST_F(Fault, WhateverCallFailsTheOldContentStands) {
  for (const int error : {ENOSPC, EIO, EDQUOT, EMFILE, ENOMEM}) {
    bool reached = true;
    int call = 1;
    for (; reached; ++call) {
      SCOPED_TRACE("call " + std::to_string(call) + ", error " + std::to_string(error));
      const std::string path = folder_.Write("a", "the old content");
      const bool written =
          WithFault(call, error, reached, [&path] { return ReplaceFile(path, "new", 2); });
      EXPECT_EQ(!reached, written);
      EXPECT_EQ(written ? std::string("\0\0new", 5) : "the old content", folder_.Read("a"));
      EXPECT_THAT(Entries(), UnorderedElementsAre("a"));
    }
    EXPECT_GT(call, 5) << "open, write, set the length, flush and rename can each fail";
  }
}

TEST_F(Fault, AFolderThatRefusesIsGoneRound) {
  const std::string path = folder_.Write("a", "the old content");
  bool reached = false;
  EXPECT_TRUE(WithFault(1, EACCES, reached, [&path] { return ReplaceFile(path, "new"); }));
  EXPECT_TRUE(reached);
  EXPECT_EQ("new", folder_.Read("a"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a"));
}

TEST_F(Fault, AnInterruptedWriteGoesOn) {
  bool reached = false;
  EXPECT_TRUE(
      WithFault(2, EINTR, reached, [this] { return ReplaceFile(folder_.Path("a"), "new"); }));
  EXPECT_TRUE(reached);
  EXPECT_EQ("new", folder_.Read("a"));
}

TEST_F(Fault, AWriteInSmallPiecesIsWhole) {
  LongestWrite = 7;
  const bool written = ReplaceFile(folder_.Path("a"), "a content of many pieces", 1);
  LongestWrite = SIZE_MAX;
  EXPECT_TRUE(written);
  EXPECT_EQ(std::string("\0a content of many pieces", 25), folder_.Read("a"));
}

// A limit on the size of files stands in for a full disk: writing stops somewhere in the middle.
class FullDisk : public Fault {
 protected:
  static bool Limit(rlim_t size) {
    const rlimit limit{size, size};
    return signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
  }

  const std::string large_ = std::string(100000, 'n');
};

TEST_F(FullDisk, TheOldContentStandsAndNoTemporaryFileIsLeft) {
  const std::string path = folder_.Write("a", "the old content");
  EXPECT_TRUE(HoldsInChild([&] { return Limit(4096) && !ReplaceFile(path, large_); }));
  EXPECT_EQ("the old content", folder_.Read("a"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a"));
}

TEST_F(FullDisk, ANewFileIsNotLeftInHalf) {
  EXPECT_TRUE(HoldsInChild([&] {
    return Limit(4096) && !ReplaceFile(folder_.Path("a"), large_) &&
           !ReplaceFile(folder_.Path("b"), "x", 5000);
  }));
  EXPECT_THAT(Entries(), UnorderedElementsAre());
}

TEST_F(FullDisk, InPlaceTheOldContentStandsToo) {
  const std::string path = folder_.Write("a", "the old content");
  chmod(path.c_str(), 0666);
  chmod(folder_.Path().c_str(), 0555);
  EXPECT_TRUE(HoldsForPlainUser([&] { return Limit(4096) && !ReplaceFile(path, large_); }));
  chmod(folder_.Path().c_str(), 0755);
  EXPECT_EQ("the old content", folder_.Read("a"));
}

TEST_F(FullDisk, WritersReportItAndKeepWhatTheyHad) {
  folder_.Write("old", "the old content");
  folder_.Write("large", large_);
  const gchar* folder = folder_.Path().c_str();
  EXPECT_TRUE(HoldsInChild([&] {
    return Limit(4096) &&
           FileWrite(folder, "old", "", large_.data(), static_cast<gint>(large_.size()), 0) == 0 &&
           FileWrite(folder, "old", "", "x", 1, 5000) == 0 &&
           FileCopy(folder, "large", "", folder, "old", "") == 0 &&
           FileCopy(folder, "large", "", folder, "new", "") == 0;
  }));
  EXPECT_EQ("the old content", folder_.Read("old"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("old", "large"));
}

TEST_F(FullDisk, AProfileKeepsItsKeys) {
  const std::string path = folder_.Write("a.ini", "[S]\nK=1\n");
  EXPECT_TRUE(HoldsInChild([&] {
    if (!Limit(16)) return false;
    ProfileWriteAsc1(path.c_str(), "S", "K", "a text that does not fit");
    return ProfileReadInt1(path.c_str(), "S", "K") == 1;
  }));
  EXPECT_EQ("[S]\nK=1\n", folder_.Read("a.ini"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a.ini"));
}

TEST_F(Fault, AKilledWriterLeavesTheOldOrTheNewContent) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const std::string contents[2] = {std::string(50000, 'a'), std::string(90000, 'b')};
  const std::string path = folder_.Write("a", contents[0]);
  for (int round = 0; round < 40; ++round) {
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0) {
      for (unsigned turn = 0;; ++turn) ReplaceFile(path, contents[turn % 2]);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20000));
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);
    const std::string found = folder_.Read("a");
    EXPECT_TRUE(found == contents[0] || found == contents[1]) << "round " << round;
  }
}

}  // namespace
