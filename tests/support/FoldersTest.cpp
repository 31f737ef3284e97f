#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <string>
#include <vector>

#include "support/FileTools.h"
#include "support/Files.h"
#include "tests/common/TempFolder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Folders : public testing::Test {
 protected:
  const gchar* Folder() const { return folder_.Path().c_str(); }

  TempFolder folder_;
};

std::vector<std::string> Visited(const std::string& folder, const char* pattern) {
  std::vector<std::string> names;
  VisitFiles(folder, pattern, [&names](const std::string& name) { names.push_back(name); });
  return names;
}

TEST_F(Folders, CountSeesRegularFilesThatMatch) {
  folder_.Write("a.prj", "x");
  folder_.Write("b.prj", "");
  folder_.Write("c.ptn", "x");
  folder_.Write(".x.prj", "x");
  folder_.Write("sub.prj/inside.prj", "x");
  std::filesystem::create_symlink("nowhere", folder_.Path("link.prj"));
  EXPECT_EQ(2, FileCount(Folder(), "*.prj"));
  EXPECT_EQ(3, FileCount(Folder(), "*"));
  EXPECT_EQ(2, FileCount(Folder(), "?.p[r]j"));
  EXPECT_EQ(0, FileCount(Folder(), "*.PRJ"));
  EXPECT_EQ(0, FileCount(Folder(), ""));
}

TEST_F(Folders, CountOfAMissingFolderIsZero) {
  EXPECT_EQ(0, FileCount(folder_.Path("missing").c_str(), "*"));
  EXPECT_EQ(0, FileCount(folder_.Write("file", "x").c_str(), "*"));
}

TEST_F(Folders, EucNamesMatchInAnyLocale) {
  const std::string name = "\xC6\xFC\xCB\xDC.ptn";
  folder_.Write(name, "x");
  for (const char* locale : {"C", "C.UTF-8"}) {
    ASSERT_NE(nullptr, std::setlocale(LC_ALL, locale));
    EXPECT_THAT(Visited(folder_.Path(), "*.ptn"), ElementsAre(name)) << locale;
  }
  std::setlocale(LC_ALL, "C");
}

TEST_F(Folders, VisitTellsWhetherTheFolderOpens) {
  folder_.Write("a", "x");
  folder_.Write("b", "x");
  EXPECT_THAT(Visited(folder_.Path(), "*"), UnorderedElementsAre("a", "b"));
  EXPECT_TRUE(VisitFiles(folder_.Path(), "none", [](const std::string&) {}));
  EXPECT_FALSE(VisitFiles(folder_.Path("missing"), "*", [](const std::string&) {}));
}

TEST_F(Folders, VisitMayRewriteTheFilesItSees) {
  for (int number = 0; number < 50; ++number) folder_.Write("f" + std::to_string(number), "x");
  int count = 0;
  VisitFiles(folder_.Path(), "*", [this, &count](const std::string& name) {
    ++count;
    ReplaceFile(folder_.Path(name), "new");
    ReplaceFile(folder_.Path("more-" + name), "new");
  });
  EXPECT_EQ(50, count);
}

TEST_F(Folders, CreateMakesEveryMissingFolder) {
  std::filesystem::create_directory(folder_.Path("a"));
  EXPECT_EQ(1, CreateFolder(folder_.Path("a/b/c").c_str()));
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("a/b/c")));
  EXPECT_EQ(1, CreateFolder(folder_.Path("a/b/c").c_str()));
  EXPECT_EQ(1, CreateFolder(folder_.Path("a/d//e/").c_str()));
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("a/d/e")));
}

TEST_F(Folders, CreateTakesARelativePath) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.Path());
  EXPECT_EQ(1, CreateFolder("r/s"));
  EXPECT_EQ(0, CreateFolder(""));
  std::filesystem::current_path(before);
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("r/s")));
}

TEST_F(Folders, CreateFailsAtAFile) {
  folder_.Write("file", "content");
  EXPECT_EQ(0, CreateFolder(folder_.Path("file").c_str()));
  EXPECT_EQ(0, CreateFolder(folder_.Path("file/a/b").c_str()));
  EXPECT_EQ("content", folder_.Read("file"));
}

TEST_F(Folders, CopyTakesFilesOneLevelDeep) {
  folder_.Write("from/a.txt", "1");
  folder_.Write("from/.hidden", "2");
  folder_.Write("from/sub/inside", "3");
  EXPECT_EQ(1, CopyFolder(folder_.Path("from").c_str(), folder_.Path("x/to").c_str()));
  EXPECT_EQ("1", folder_.Read("x/to/a.txt"));
  EXPECT_EQ("2", folder_.Read("x/to/.hidden"));
  EXPECT_FALSE(folder_.Exists("x/to/sub"));
}

TEST_F(Folders, CopyStopsAtAnEmptyFile) {
  folder_.Write("from/empty", "");
  EXPECT_EQ(0, CopyFolder(folder_.Path("from").c_str(), folder_.Path("to").c_str()));
  EXPECT_TRUE(folder_.Exists("to"));
  EXPECT_FALSE(folder_.Exists("to/empty"));
}

TEST_F(Folders, CopyNeedsBothFolders) {
  folder_.Write("from/a", "1");
  folder_.Write("file", "content");
  EXPECT_EQ(0, CopyFolder(folder_.Path("missing").c_str(), folder_.Path("to").c_str()));
  EXPECT_FALSE(folder_.Exists("to"));
  EXPECT_EQ(0, CopyFolder(folder_.Path("from").c_str(), folder_.Path("file").c_str()));
  EXPECT_EQ("content", folder_.Read("file"));
}

TEST_F(Folders, CopyOntoItselfChangesNothing) {
  folder_.Write("from/a", "1");
  EXPECT_EQ(1, CopyFolder(folder_.Path("from").c_str(), folder_.Path("from").c_str()));
  EXPECT_EQ("1", folder_.Read("from/a"));
  EXPECT_THAT(Visited(folder_.Path("from"), "*"), ElementsAre("a"));
}

TEST_F(Folders, CopyOfAnEmptyFolderMakesTheTarget) {
  std::filesystem::create_directory(folder_.Path("from"));
  EXPECT_EQ(1, CopyFolder(folder_.Path("from").c_str(), folder_.Path("to").c_str()));
  EXPECT_THAT(Visited(folder_.Path("to"), "*"), IsEmpty());
}

}  // namespace
