#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/FileTools.h"
#include "support/Files.h"

namespace {

std::string Made(const gchar* path, const gchar* name, const gchar* ext) {
  gchar full[PathSize];
  MakePath(full, path, name, ext);
  return full;
}

struct Parts {
  gchar Path[PathSize];
  gchar Name[PathSize];
  gchar Ext[PathSize];
  explicit Parts(const gchar* full) { SplitPath(full, Path, Name, Ext); }
};

TEST(MakePath, JoinsTheParts) {
  EXPECT_EQ("/a/b.c", Made("/a", "b", "c"));
  EXPECT_EQ("/a/b.c", Made("/a/", "b", "c"));
  EXPECT_EQ("/a/b.c", Made("/a", "b", ".c"));
  EXPECT_EQ("/b", Made("/", "b", ""));
}

TEST(MakePath, AnEmptyPartAddsNothing) {
  EXPECT_EQ("b.c", Made("", "b", "c"));
  EXPECT_EQ("/a/b", Made("/a", "b", ""));
  EXPECT_EQ("/a", Made("/a", "", ""));
  EXPECT_EQ("/a/", Made("/a/", "", ""));
  EXPECT_EQ("/a.c", Made("/a", "", "c"));
  EXPECT_EQ("", Made("", "", ""));
}

TEST(MakePath, CutsWhatItsBufferCannotHold) {
  gchar full[PathSize + 1];
  std::memset(full, '#', sizeof full);
  MakePath(full, std::string(300, 'x').c_str(), "b", "c");
  EXPECT_EQ(std::string(PathSize - 1, 'x'), full);
  EXPECT_EQ('#', full[PathSize]);
}

TEST(MakePath, TakesItsOwnOutputAsFolder) {
  gchar full[PathSize] = "/a";
  MakePath(full, full, "b", "c");
  EXPECT_STREQ("/a/b.c", full);
}

TEST(JoinPath, HasNoLimit) {
  EXPECT_EQ(std::string(300, 'x') + "/b.c", JoinPath(std::string(300, 'x'), "b", "c"));
}

TEST(SplitPath, TakesTheFirstPointOfTheFile) {
  const Parts parts("/x/y/file.tar.gz");
  EXPECT_STREQ("/x/y", parts.Path);
  EXPECT_STREQ("file", parts.Name);
  EXPECT_STREQ("tar.gz", parts.Ext);
}

TEST(SplitPath, PassesOverASecondPoint) {
  const Parts parts("/x/a..b");
  EXPECT_STREQ("/x", parts.Path);
  EXPECT_STREQ("a", parts.Name);
  EXPECT_STREQ("b", parts.Ext);
  EXPECT_STREQ(".b", Parts("/x/a...b").Ext);
}

TEST(SplitPath, AFileWithoutFolderOrPoint) {
  const Parts parts("file");
  EXPECT_STREQ(".", parts.Path);
  EXPECT_STREQ("file", parts.Name);
  EXPECT_STREQ("", parts.Ext);
}

TEST(SplitPath, PointsOfTheFolderDoNotCount) {
  const Parts parts("/x.d/file");
  EXPECT_STREQ("/x.d", parts.Path);
  EXPECT_STREQ("file", parts.Name);
  EXPECT_STREQ("", parts.Ext);
}

TEST(SplitPath, EdgesOfThePath) {
  EXPECT_STREQ("/", Parts("/file").Path);
  EXPECT_STREQ("/", Parts("//file").Path);
  EXPECT_STREQ("/x", Parts("/x//file").Path);
  EXPECT_STREQ("/x/y", Parts("/x/y/").Path);
  EXPECT_STREQ("", Parts("/x/y/").Name);
  EXPECT_STREQ(".", Parts("").Path);
  EXPECT_STREQ("", Parts(".hidden").Name);
  EXPECT_STREQ("hidden", Parts(".hidden").Ext);
}

TEST(SplitPath, NullOutputsArePassedOver) {
  gchar path[PathSize];
  SplitPath("/x/y/file.c", path, nullptr, nullptr);
  EXPECT_STREQ("/x/y", path);
  gchar name[PathSize];
  SplitPath("/x/y/file.c", nullptr, name, nullptr);
  EXPECT_STREQ("file", name);
}

TEST(SplitPath, AnOutputMayBeTheInput) {
  gchar path[PathSize] = "/x/y/file.c";
  SplitPath(path, path, nullptr, nullptr);
  EXPECT_STREQ("/x/y", path);
}

TEST(SplitPath, CutsWhatABufferCannotHold) {
  const std::string folder = "/" + std::string(300, 'x');
  const Parts parts((folder + "/" + std::string(300, 'n') + "." + std::string(300, 'e')).c_str());
  EXPECT_EQ(folder.substr(0, PathSize - 1), parts.Path);
  EXPECT_EQ(std::string(PathSize - 1, 'n'), parts.Name);
  EXPECT_EQ(std::string(PathSize - 1, 'e'), parts.Ext);
}

}  // namespace
