#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <filesystem>
#include <string>

#include "support/Files.h"
#include "tests/common/TempFolder.h"

namespace {

class Files : public testing::Test {
 protected:
  const gchar* Folder() const { return folder_.Path().c_str(); }

  TempFolder folder_;
};

TEST_F(Files, ReadTakesExactlyWhatIsAsked) {
  folder_.Write("a.dat", "0123456789");
  gchar buffer[4] = "###";
  EXPECT_EQ(1, FileRead(Folder(), "a", "dat", buffer, 3, 0));
  EXPECT_STREQ("012", buffer);
  EXPECT_EQ(1, FileRead(Folder(), "a", "dat", buffer, 3, 7));
  EXPECT_STREQ("789", buffer);
}

TEST_F(Files, AShortReadClearsTheWholeBuffer) {
  folder_.Write("a.dat", "012");
  const gchar zeros[4] = {};
  for (const gint offset : {0, 2, 3, 100, -1}) {
    gchar buffer[4] = {'#', '#', '#', '#'};
    EXPECT_EQ(0, FileRead(Folder(), "a", "dat", buffer, 4, offset));
    EXPECT_EQ(0, std::memcmp(zeros, buffer, 4)) << "at offset " << offset;
  }
}

TEST_F(Files, ReadingWhatIsNoFileClearsTheBuffer) {
  const gchar zeros[4] = {};
  for (const gchar* name : {"missing", "", "pipe"}) {
    mkfifo(folder_.Path("pipe").c_str(), 0600);
    gchar buffer[4] = {'#', '#', '#', '#'};
    EXPECT_EQ(0, FileRead(Folder(), name, "", buffer, 4, 0));
    EXPECT_EQ(0, std::memcmp(zeros, buffer, 4)) << "from '" << name << "'";
  }
}

TEST_F(Files, ReadOfNothingFailsAndWritesNothing) {
  folder_.Write("a", "0123");
  gchar buffer[1] = {'#'};
  EXPECT_EQ(0, FileRead(Folder(), "a", "", buffer, 0, 0));
  EXPECT_EQ(0, FileRead(Folder(), "a", "", buffer, -1, 0));
  EXPECT_EQ('#', buffer[0]);
}

TEST_F(Files, WriteReplacesTheWholeFile) {
  folder_.Write("a.dat", "a longer old content");
  EXPECT_EQ(1, FileWrite(Folder(), "a", "dat", "new", 3, 0));
  EXPECT_EQ("new", folder_.Read("a.dat"));
  EXPECT_EQ(1, FileWrite(Folder(), "b", "", "x\0y", 3, 0));
  EXPECT_EQ(std::string("x\0y", 3), folder_.Read("b"));
}

TEST_F(Files, BytesBeforeTheOffsetAreZeros) {
  folder_.Write("a", "old content");
  EXPECT_EQ(1, FileWrite(Folder(), "a", "", "new", 3, 2));
  EXPECT_EQ(std::string("\0\0new", 5), folder_.Read("a"));
}

TEST_F(Files, WritingNothingLeavesAnEmptyFileAndFails) {
  folder_.Write("a", "old");
  EXPECT_EQ(0, FileWrite(Folder(), "a", "", "new", 0, 0));
  EXPECT_EQ("", folder_.Read("a"));
  EXPECT_EQ(0, FileWrite(Folder(), "b", "", "new", 0, 5));
  EXPECT_EQ("", folder_.Read("b"));
}

TEST_F(Files, NegativeNumbersWriteNothing) {
  folder_.Write("a", "old");
  EXPECT_EQ(0, FileWrite(Folder(), "a", "", "new", -1, 0));
  EXPECT_EQ(0, FileWrite(Folder(), "a", "", "new", 3, -1));
  EXPECT_EQ("old", folder_.Read("a"));
}

TEST_F(Files, WritingWhereNoFileCanBeFails) {
  folder_.Write("file", "old");
  EXPECT_EQ(0, FileWrite(folder_.Path("missing").c_str(), "a", "", "new", 3, 0));
  EXPECT_EQ(0, FileWrite(folder_.Path("file").c_str(), "a", "", "new", 3, 0));
  EXPECT_EQ(0, FileWrite(Folder(), "", "", "new", 3, 0));
  EXPECT_EQ("old", folder_.Read("file"));
}

TEST_F(Files, CopyTakesEveryByte) {
  const std::string content("a\0b\nc", 5);
  folder_.Write("a.dat", content);
  folder_.Write("to/b.txt", "something longer than that");
  EXPECT_EQ(1, FileCopy(Folder(), "a", "dat", folder_.Path("to").c_str(), "b", "txt"));
  EXPECT_EQ(content, folder_.Read("to/b.txt"));
  EXPECT_EQ(content, folder_.Read("a.dat"));
}

TEST_F(Files, AnEmptyOrMissingFileIsNotCopied) {
  folder_.Write("empty", "");
  folder_.Write("old", "old");
  EXPECT_EQ(0, FileCopy(Folder(), "empty", "", Folder(), "new", ""));
  EXPECT_EQ(0, FileCopy(Folder(), "missing", "", Folder(), "new", ""));
  EXPECT_EQ(0, FileCopy(Folder(), "", "", Folder(), "new", ""));
  EXPECT_FALSE(folder_.Exists("new"));
  EXPECT_EQ(0, FileCopy(Folder(), "empty", "", Folder(), "old", ""));
  EXPECT_EQ("old", folder_.Read("old"));
}

TEST_F(Files, RenameMovesToAFreeName) {
  folder_.Write("a.dat", "content");
  EXPECT_EQ(1, FileRename(Folder(), "a", "dat", "b", "txt"));
  EXPECT_EQ("content", folder_.Read("b.txt"));
  EXPECT_FALSE(folder_.Exists("a.dat"));
}

TEST_F(Files, RenameNeverReplaces) {
  folder_.Write("a", "first");
  folder_.Write("b", "second");
  EXPECT_EQ(0, FileRename(Folder(), "a", "", "b", ""));
  EXPECT_EQ(0, FileRename(Folder(), "a", "", "a", ""));
  EXPECT_EQ(0, FileRename(Folder(), "missing", "", "c", ""));
  EXPECT_EQ("first", folder_.Read("a"));
  EXPECT_EQ("second", folder_.Read("b"));
}

TEST_F(Files, DeleteTellsWhetherTheFileIsGone) {
  folder_.Write("a.dat", "x");
  folder_.Write("sub/file", "x");
  EXPECT_EQ(1, FileDelete(Folder(), "a", "dat"));
  EXPECT_FALSE(folder_.Exists("a.dat"));
  EXPECT_EQ(0, FileDelete(Folder(), "a", "dat"));
  EXPECT_EQ(0, FileDelete(Folder(), "sub", ""));
  EXPECT_TRUE(folder_.Exists("sub/file"));
}

TEST_F(Files, ExistIsTrueOfFilesAndFolders) {
  folder_.Write("a.dat", "");
  EXPECT_EQ(1, FileExist(Folder(), "a", "dat"));
  EXPECT_EQ(1, FileExist(Folder(), "", ""));
  EXPECT_EQ(0, FileExist(Folder(), "a", ""));
}

TEST_F(Files, SizeIsInBytesAndMinusOneWithoutAFile) {
  folder_.Write("a.dat", "12345");
  folder_.Write("empty", "");
  EXPECT_EQ(5, FileSize(Folder(), "a", "dat"));
  EXPECT_EQ(0, FileSize(Folder(), "empty", ""));
  EXPECT_EQ(-1, FileSize(Folder(), "missing", ""));
  struct stat status;
  ASSERT_EQ(0, stat(Folder(), &status));
  EXPECT_EQ(status.st_size, FileSize(Folder(), "", ""));
}

TEST_F(Files, AFileBeyondTheNumbersRangeReportsTheLargest) {
  const std::string path = folder_.Write("huge", "start");
  std::filesystem::resize_file(path, (std::uintmax_t{1} << 31) + 1000);
  EXPECT_EQ(2147483647, FileSize(Folder(), "huge", ""));
  EXPECT_EQ(0, FileCopy(Folder(), "huge", "", Folder(), "copy", ""));
  EXPECT_FALSE(folder_.Exists("copy"));
}

TEST_F(Files, ASparseGigabyteIsReadOnlyWhereItIsAsked) {
  const std::string path = folder_.Write("sparse", "start");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 30);
  EXPECT_EQ(1 << 30, FileSize(Folder(), "sparse", ""));
  gchar buffer[6] = "";
  EXPECT_EQ(1, FileRead(Folder(), "sparse", "", buffer, 5, 0));
  EXPECT_STREQ("start", buffer);
  EXPECT_EQ(1, FileRead(Folder(), "sparse", "", buffer, 5, (1 << 30) - 5));
  EXPECT_EQ(0, FileRead(Folder(), "sparse", "", buffer, 5, (1 << 30) - 4));
}

TEST_F(Files, PathsOfAnyLengthMeanThemselves) {
  // Longer than a path buffer: a cut path would name another file.
  std::string folder = folder_.Path();
  for (int depth = 0; depth < 3; ++depth) folder += "/" + std::string(120, 'd');
  EXPECT_EQ(1, CreateFolder(folder.c_str()));
  EXPECT_EQ(1, FileWrite(folder.c_str(), std::string(250, 'n').c_str(), "", "deep", 4, 0));
  gchar buffer[5] = "";
  EXPECT_EQ(1, FileRead(folder.c_str(), std::string(250, 'n').c_str(), "", buffer, 4, 0));
  EXPECT_STREQ("deep", buffer);
}

}  // namespace
