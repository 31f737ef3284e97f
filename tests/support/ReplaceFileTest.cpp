#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/FileTools.h"
#include "tests/common/Child.h"
#include "tests/common/TempFolder.h"

namespace {

using testing::UnorderedElementsAre;

class ReplaceFileTest : public testing::Test {
 protected:
  mode_t Mode(const std::string& name) const {
    struct stat status;
    return stat(folder_.Path(name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
  }
  // Names of everything in the folder, hidden entries included.
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }

  TempFolder folder_;
};

TEST_F(ReplaceFileTest, LeavesTheFileAloneInItsFolder) {
  const std::string path = folder_.Write("a", "a longer old content");
  EXPECT_TRUE(ReplaceFile(path, "new"));
  EXPECT_EQ("new", folder_.Read("a"));
  EXPECT_TRUE(ReplaceFile(folder_.Path("b"), ""));
  EXPECT_EQ("", folder_.Read("b"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a", "b"));
}

TEST_F(ReplaceFileTest, ZerosFillTheOffset) {
  EXPECT_TRUE(ReplaceFile(folder_.Path("a"), "new", 3));
  EXPECT_EQ(std::string("\0\0\0new", 6), folder_.Read("a"));
  EXPECT_TRUE(ReplaceFile(folder_.Path("a"), "", 2));
  EXPECT_EQ(std::string(2, '\0'), folder_.Read("a"));
}

TEST_F(ReplaceFileTest, KeepsTheFilesMode) {
  const std::string path = folder_.Write("a", "old");
  ASSERT_EQ(0, chmod(path.c_str(), 0640));
  EXPECT_TRUE(ReplaceFile(path, "new"));
  EXPECT_EQ(0640u, Mode("a"));
}

TEST_F(ReplaceFileTest, ANewFileFollowsTheCreationMask) {
  const mode_t before = umask(0027);
  EXPECT_TRUE(ReplaceFile(folder_.Path("a"), "new"));
  umask(before);
  EXPECT_EQ(0640u, Mode("a"));
}

TEST_F(ReplaceFileTest, ALinkStaysAndItsFileIsReplaced) {
  folder_.Write("sub/file", "old");
  std::filesystem::create_symlink("sub/file", folder_.Path("link"));
  EXPECT_TRUE(ReplaceFile(folder_.Path("link"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("link")));
  EXPECT_EQ("new", folder_.Read("sub/file"));
}

TEST_F(ReplaceFileTest, WhatIsNoFileIsRefused) {
  folder_.Write("folder/inside", "kept");
  ASSERT_EQ(0, mkfifo(folder_.Path("pipe").c_str(), 0600));
  EXPECT_FALSE(ReplaceFile(folder_.Path("folder"), "new"));
  EXPECT_FALSE(ReplaceFile(folder_.Path("pipe"), "new"));
  EXPECT_FALSE(ReplaceFile(folder_.Path("missing/"), "new"));
  EXPECT_FALSE(ReplaceFile("", "new"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("folder", "pipe"));
  EXPECT_EQ("kept", folder_.Read("folder/inside"));
}

TEST_F(ReplaceFileTest, AWriteProtectedFileIsKept) {
  const std::string path = folder_.Write("a", "old");
  chmod(path.c_str(), 0444);
  chmod(folder_.Path().c_str(), 0777);
  EXPECT_TRUE(HoldsForPlainUser([&path] { return !ReplaceFile(path, "new"); }));
  EXPECT_EQ("old", folder_.Read("a"));
}

// A folder that takes no new entry, with a file in it that everybody may write.
class InPlace : public ReplaceFileTest {
 protected:
  InPlace() {
    path_ = folder_.Write("a", "the old content");
    chmod(path_.c_str(), 0666);
    chmod(folder_.Path().c_str(), 0555);
  }
  ~InPlace() override { chmod(folder_.Path().c_str(), 0755); }

  std::string path_;
};

TEST_F(InPlace, AShorterContentIsWritten) {
  EXPECT_TRUE(HoldsForPlainUser([this] { return ReplaceFile(path_, "new"); }));
  EXPECT_EQ("new", folder_.Read("a"));
}

TEST_F(InPlace, ALongerContentIsWritten) {
  EXPECT_TRUE(HoldsForPlainUser([this] { return ReplaceFile(path_, std::string(10000, 'n')); }));
  EXPECT_EQ(std::string(10000, 'n'), folder_.Read("a"));
}

TEST_F(InPlace, TheOffsetIsZeros) {
  EXPECT_TRUE(HoldsForPlainUser([this] { return ReplaceFile(path_, "new", 4); }));
  EXPECT_EQ(std::string("\0\0\0\0new", 7), folder_.Read("a"));
}

TEST_F(InPlace, ANewFileIsRefused) {
  EXPECT_TRUE(HoldsForPlainUser([this] { return !ReplaceFile(folder_.Path("b"), "new"); }));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a"));
}

TEST_F(ReplaceFileTest, AStickyFolderThatRefusesTheRenameIsWrittenInPlace) {
  if (geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  const std::string path = folder_.Write("a", "the old content");
  chmod(path.c_str(), 0666);
  chmod(folder_.Path().c_str(), 01777);
  EXPECT_TRUE(HoldsForPlainUser([&path] { return ReplaceFile(path, "new"); }));
  EXPECT_EQ("new", folder_.Read("a"));
  EXPECT_THAT(Entries(), UnorderedElementsAre("a"));
}

TEST_F(ReplaceFileTest, ReadingStopsAtTheLimit) {
  const std::string path = folder_.Write("a", "12345");
  EXPECT_EQ("12345", ReadWholeFile(path, 5));
  EXPECT_EQ(std::nullopt, ReadWholeFile(path, 4));
  EXPECT_EQ(std::nullopt, ReadWholeFile(folder_.Path("missing")));
  EXPECT_EQ(std::nullopt, ReadWholeFile(folder_.Path()));
  EXPECT_EQ("", ReadWholeFile(folder_.Write("empty", "")));
}

}  // namespace
