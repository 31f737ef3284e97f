// Files in folders that others may write to as well: what is made there on the way, and whose a
// replaced file is afterwards.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "ProjData.h"
#include "layout/LayoutCommands.h"
#include "support/FileTools.h"
#include "tests/common/Child.h"
#include "tests/common/TempFolder.h"
#include "tests/faults/FileCalls.h"
#include "tests/faults/FolderImage.h"
#include "tests/faults/ProjectAtHand.h"

namespace {

class SharedFolderTest : public testing::Test {
 protected:
  SharedFolderTest() { chmod(folder_.Path().c_str(), 0777); }
  ~SharedFolderTest() override { FileCalls::Heal(); }

  static struct stat StatusOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0);
    return status;
  }
  // The temporary files that replacing the file goes through, with their modes.
  std::vector<std::pair<std::string, mode_t>> TemporariesOf(const std::string& path) const {
    std::vector<std::pair<std::string, mode_t>> made;
    FileCalls::Watch([&made](const std::string& name, const std::string& file) {
      if (name == "open to write") made.emplace_back(file, StatusOf(file).st_mode & 0777);
    });
    EXPECT_TRUE(ReplaceFile(path, "new"));
    FileCalls::Heal();
    return made;
  }

  static constexpr uid_t Owner = 65534;
  TempFolder folder_;
};

TEST_F(SharedFolderTest, ALinkInTheWayOfATemporaryFileIsNotFollowed) {
  const std::string path = folder_.Write("a", "old");
  const std::string victim = folder_.Write("victim", "somebody's own");
  const std::string last = TemporariesOf(path).front().first;
  const std::size_t dash = last.rfind('-');
  const std::string next =
      last.substr(0, dash + 1) + std::to_string(std::stoi(last.substr(dash + 1)) + 1);
  std::filesystem::create_symlink(victim, next);
  EXPECT_TRUE(ReplaceFile(path, "newer"));
  EXPECT_EQ(folder_.Read("a"), "newer");
  EXPECT_EQ(folder_.Read("victim"), "somebody's own");
  EXPECT_TRUE(std::filesystem::is_symlink(next));
}

TEST_F(SharedFolderTest, NobodyElseReadsWhatIsToBePrivate) {
  const mode_t before = umask(0);
  const std::string path = folder_.Write("a", "old");
  for (const mode_t mode : {0600U, 0644U}) {
    chmod(path.c_str(), mode);
    for (const auto& [name, made] : TemporariesOf(path)) EXPECT_EQ(made, 0600U) << name;
    EXPECT_EQ(StatusOf(path).st_mode & 0777, mode);
  }
  umask(before);
}

TEST_F(SharedFolderTest, OwnerGroupAndModeStay) {
  if (geteuid() != 0) GTEST_SKIP() << "nobody else can give a file away";
  const std::string path = folder_.Write("a", "old");
  ASSERT_EQ(chown(path.c_str(), Owner, Owner), 0);
  chmod(path.c_str(), 0640);
  EXPECT_TRUE(ReplaceFile(path, "new"));
  const struct stat status = StatusOf(path);
  EXPECT_EQ(status.st_uid, Owner);
  EXPECT_EQ(status.st_gid, Owner);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
}

// The file's group may write to it; the group that the new file falls to is another one.
TEST_F(SharedFolderTest, AGroupThatCannotBeKeptHandsNothingToAnother) {
  if (geteuid() != 0) GTEST_SKIP() << "nobody else can give a file away";
  const std::string path = folder_.Write("a", "old");
  ASSERT_EQ(chown(path.c_str(), Owner, 0), 0);
  chmod(path.c_str(), 0664);
  EXPECT_TRUE(HoldsForPlainUser([&path] { return ReplaceFile(path, "new"); }));
  EXPECT_EQ(folder_.Read("a"), "new");
  EXPECT_EQ(StatusOf(path).st_mode & 0777, 0644U);
}

// Where a new file cannot have the old one's mode, the old file keeps its own.
TEST_F(SharedFolderTest, AModeThatCannotBeTakenOverStaysInPlace) {
  const std::string path = folder_.Write("a", "old");
  chmod(path.c_str(), 0664);
  const ino_t file = StatusOf(path).st_ino;
  FileCalls::GoWrong("fchmod", 1, EPERM);
  EXPECT_TRUE(ReplaceFile(path, "new"));
  EXPECT_EQ(FileCalls::Heal(), "fchmod");
  EXPECT_EQ(StatusOf(path).st_mode & 0777, 0664U);
  EXPECT_EQ(StatusOf(path).st_ino, file);
  EXPECT_EQ(ImageOf(folder_.Path()), (FolderImage{{"a", "new"}}));
}

TEST_F(SharedFolderTest, ALinkStaysAndItsFileIsReplacedWhereItLies) {
  folder_.Write("elsewhere/file", "old");
  std::filesystem::create_symlink("elsewhere/file", folder_.Path("link"));
  EXPECT_TRUE(ReplaceFile(folder_.Path("link"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("link")));
  EXPECT_EQ(folder_.Read("elsewhere/file"), "new");
}

TEST_F(SharedFolderTest, ALinkThatLeadsNowhereIsReplaced) {
  std::filesystem::create_symlink("missing/file", folder_.Path("link"));
  EXPECT_TRUE(ReplaceFile(folder_.Path("link"), "new"));
  EXPECT_FALSE(std::filesystem::is_symlink(folder_.Path("link")));
  EXPECT_EQ(folder_.Read("link"), "new");
  EXPECT_FALSE(folder_.Exists("missing"));
}

TEST_F(SharedFolderTest, LinksInACircleAreLeftAlone) {
  std::filesystem::create_symlink("b", folder_.Path("a"));
  std::filesystem::create_symlink("a", folder_.Path("b"));
  EXPECT_FALSE(ReplaceFile(folder_.Path("a"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("a")));
}

// A system that forbids to follow a link of somebody else's tells so when the link is looked at.
TEST_F(SharedFolderTest, ALinkThatTheSystemForbidsToFollowIsNotFollowed) {
  folder_.Write("file", "old");
  std::filesystem::create_symlink("file", folder_.Path("link"));
  FileCalls::GoWrong("stat", 1, EACCES);
  EXPECT_FALSE(ReplaceFile(folder_.Path("link"), "new"));
  EXPECT_EQ(FileCalls::Heal(), "stat");
  EXPECT_EQ(folder_.Read("file"), "old");
}

// A source may be write-protected, as it comes from some version controls; its folder decides, as
// for a rename.
class ProtectedSource : public ProjectAtHand {
 protected:
  ProtectedSource() {
    PtrnDataExit();
    Folder.Write("source/Plant.cpp", Unregistered);
    chmod(Source.c_str(), 0444);
    for (const std::string& folder : {Folder.Path(), ProjectFolder, SourceFolder}) {
      chmod(folder.c_str(), 0777);
    }
  }
  bool GenerateAsPlainUser() const {
    return HoldsForPlainUser([] {
      LogicDataEdit3();
      return true;
    });
  }

  static constexpr const char* Unregistered = "// mine\nGetPtrnWnd\n\treturn NULL;\n";
  const std::string Source = Folder.Path("source/Plant.cpp");
};

TEST_F(ProtectedSource, GetsItsLinesAndStaysProtected) {
  ASSERT_TRUE(GenerateAsPlainUser());
  const std::string text = Folder.Read("source/Plant.cpp");
  EXPECT_THAT(text, testing::HasSubstr("strcmp(name, \"Screen\")"));
  EXPECT_THAT(text, testing::HasSubstr("strcmp(name, \"Other\")"));
  struct stat status {};
  ASSERT_EQ(stat(Source.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0444U);
}

TEST_F(ProtectedSource, StaysAsItIsInAFolderThatIsProtectedToo) {
  if (geteuid() != 0) GTEST_SKIP() << "the folder would be the user's own";
  chmod(SourceFolder.c_str(), 0755);
  ASSERT_TRUE(GenerateAsPlainUser());
  EXPECT_EQ(Folder.Read("source/Plant.cpp"), Unregistered);
}

// Nothing but the source is written so: the header of the codes keeps to its own protection.
TEST_F(ProtectedSource, NoOtherProtectedFileIsReplaced) {
  Folder.Write("source/VarnixCode.h", "protected");
  chmod(Folder.Path("source/VarnixCode.h").c_str(), 0444);
  ASSERT_TRUE(HoldsForPlainUser([] {
    LogicDataEdit2();
    return true;
  }));
  EXPECT_EQ(Folder.Read("source/VarnixCode.h"), "protected");
}

class SharedUndoFolder : public ProjectAtHand {};

TEST_F(SharedUndoFolder, ALinkInThePlaceOfASnapshotIsNotFollowed) {
  const std::string victim = Folder.Write("victim", "somebody's own");
  const std::string slot = std::string(PtrnSavePath) + "/" + PtrnSaveName[0] + ".ptn";
  std::filesystem::create_symlink(victim, slot);
  PushPtrnData();
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(Folder.Read("victim"), "somebody's own");
  EXPECT_FALSE(std::filesystem::is_symlink(slot));
}

}  // namespace
