#include <gtest/gtest.h>

#include "project/model/KnownProjects.h"
#include "tests/project/ProjectFixture.h"

namespace {

using KnownProjectsTest = ProjectFixture;

TEST_F(KnownProjectsTest, ANewProjectIsListedAndCurrent) {
  ProfileRenew("/home/a", "A");
  EXPECT_EQ(Profile(), "[PROJNAME]\nPROJNAME0=A,/home/a\n[PROJECT]\nPROJECT=A,/home/a\n");
}

TEST_F(KnownProjectsTest, AKnownProjectIsNotListedTwice) {
  ProfileRenew("/home/a", "A");
  ProfileRenew("/home/b", "B");
  ProfileRenew("/home/a", "A");
  EXPECT_EQ(Profile(),
            "[PROJNAME]\nPROJNAME1=B,/home/b\nPROJNAME0=A,/home/a\n[PROJECT]\nPROJECT=A,/home/a\n");
}

TEST_F(KnownProjectsTest, NameAndFolderBothCount) {
  WriteProfile("[PROJNAME]\nPROJNAME0=A,/home/a\n");
  ProfileRenew("/home/b", "A");
  ProfileRenew("/home/a", "B");
  EXPECT_EQ(Profile(),
            "[PROJNAME]\nPROJNAME2=B,/home/a\nPROJNAME1=A,/home/b\nPROJNAME0=A,/home/a\n"
            "[PROJECT]\nPROJECT=B,/home/a\n");
}

TEST_F(KnownProjectsTest, TheFirstGapIsFilledFirst) {
  WriteProfile("[PROJNAME]\nPROJNAME0=A,/a\nPROJNAME1=,/left\nPROJNAME3=D,/d\n");
  ProfileRenew("/b", "B");
  ProfileRenew("/c", "C");
  EXPECT_EQ(Profile(),
            "[PROJNAME]\nPROJNAME2=C,/c\nPROJNAME0=A,/a\nPROJNAME1=B,/b\nPROJNAME3=D,/d\n"
            "[PROJECT]\nPROJECT=C,/c\n");
}

TEST_F(KnownProjectsTest, AKnownProjectBehindAGapIsFound) {
  WriteProfile("[PROJNAME]\nPROJNAME99=Z,/z\n[PROJECT]\n");
  ProfileRenew("/z", "Z");
  EXPECT_EQ(Profile(), "[PROJNAME]\nPROJNAME99=Z,/z\n[PROJECT]\nPROJECT=Z,/z\n");
}

TEST_F(KnownProjectsTest, AFullListTakesNoMoreButTheProjectIsCurrent) {
  std::string list = "[PROJNAME]\n";
  for (gint no = 0; no < 100; ++no) {
    list += "PROJNAME" + std::to_string(no) + "=P" + std::to_string(no) + ",/p\n";
  }
  WriteProfile(list);
  ProfileRenew("/home/a", "A");
  EXPECT_EQ(Profile(), list + "[PROJECT]\nPROJECT=A,/home/a\n");
}

TEST_F(KnownProjectsTest, ALongFolderIsListedOnce) {
  const std::string folder = "/" + std::string(150, 'd');
  ProfileRenew(folder.c_str(), "A");
  ProfileRenew(folder.c_str(), "A");
  EXPECT_EQ(Profile(),
            "[PROJNAME]\nPROJNAME0=A," + folder + "\n[PROJECT]\nPROJECT=A," + folder + "\n");
}

TEST_F(KnownProjectsTest, ANameThatALineCannotHoldIsListedOnce) {
  for (const char* name : {"a,b", "a;b", "a "}) {
    std::filesystem::remove(folder_.Path("program/VarnixMaster.ini"));
    ProfileRenew("/home/a", name);
    const std::string first = Profile();
    ProfileRenew("/home/a", name);
    EXPECT_EQ(Profile(), first) << name;
  }
}

// A profile gives 99 bytes of a text, and of those a project's name has room for 81.
TEST_F(KnownProjectsTest, AProjectIsWholeWhenTheProfileGivesAllOfNameAndFolder) {
  const auto whole = [this](const std::string& value) {
    std::filesystem::remove(folder_.Path("program/VarnixMaster.ini"));
    folder_.Write("program/VarnixMaster.ini", "[PROJECT]\nPROJECT=" + value + "\n");
    return ReadLastProject().Whole;
  };
  EXPECT_TRUE(whole(std::string(81, 'n') + ",/" + std::string(98, 'd')));
  EXPECT_FALSE(whole("A,/" + std::string(99, 'd')));
  EXPECT_FALSE(whole(std::string(82, 'n') + ",/d"));
}

TEST_F(KnownProjectsTest, AFolderWithACommaIsWholeOnlyWhereNoProjectLiesInIt) {
  const std::string folder = folder_.Path("a,b");
  folder_.Write("program/VarnixMaster.ini", "[PROJECT]\nPROJECT=P," + folder + "\n");
  EXPECT_TRUE(ReadLastProject().Whole);
  folder_.Write("a,b/P.prj", "x");
  EXPECT_FALSE(ReadLastProject().Whole);
}

}  // namespace
