#include <gtest/gtest.h>

#include "tests/project/ProjectFixture.h"

namespace {

using ProjectFoldersTest = ProjectFixture;

TEST_F(ProjectFoldersTest, TemplatesGoIntoANewProject) {
  folder_.Write("program/VarnixData/Bitmap/Logo.bmp", "logo");
  folder_.Write("program/VarnixData/Ptrn/Menu.ptn", "menu");
  const std::string folder = folder_.Path("new");
  ProjFileCopy1(folder.c_str());
  EXPECT_EQ(folder_.Read("new/Bitmap/Logo.bmp"), "logo");
  EXPECT_EQ(folder_.Read("new/Menu.ptn"), "menu");
  EXPECT_FALSE(folder_.Exists("new/Ptrn"));
}

TEST_F(ProjectFoldersTest, WithoutTemplatesTheBitmapFolderIsMade) {
  ProjFileCopy1(ProjPath);
  EXPECT_TRUE(folder_.Exists("project/Bitmap"));
}

TEST_F(ProjectFoldersTest, WithoutABitmapFolderNothingIsCopied) {
  folder_.Write("program/VarnixData/Ptrn/Menu.ptn", "menu");
  folder_.Write("project/Bitmap", "a file in the way");
  ProjFileCopy1(ProjPath);
  EXPECT_FALSE(folder_.Exists("project/Menu.ptn"));
}

TEST_F(ProjectFoldersTest, AMovedProjectIsCopiedAndTheOldFolderStays) {
  folder_.Write("project/Plant.prj", "project");
  folder_.Write("project/Main.ptn", "main");
  folder_.Write("project/Bitmap/Pump.png", "pump");
  folder_.Write("project/Other/Deep.txt", "deep");
  const std::string folder = folder_.Path("moved");
  ProjFileCopy2(ProjPath, folder.c_str());
  EXPECT_EQ(folder_.Read("moved/Plant.prj"), "project");
  EXPECT_EQ(folder_.Read("moved/Main.ptn"), "main");
  EXPECT_EQ(folder_.Read("moved/Bitmap/Pump.png"), "pump");
  EXPECT_FALSE(folder_.Exists("moved/Other"));
  EXPECT_TRUE(folder_.Exists("project/Main.ptn"));
}

TEST_F(ProjectFoldersTest, AMovedProgramFolderIsCopied) {
  folder_.Write("source/Plant.cpp", "code");
  std::filesystem::create_directory(folder_.Path("source2"));
  ProjFileCopy3(folder_.Path("source").c_str(), folder_.Path("source2").c_str());
  EXPECT_EQ(folder_.Read("source2/Plant.cpp"), "code");
}

TEST_F(ProjectFoldersTest, AnUnchangedFolderIsNotCopiedOntoItself) {
  folder_.Write("project/Main.ptn", "main");
  ProjFileCopy2(ProjPath, ProjPath);
  ProjFileCopy3(ProjPath, ProjPath);
  EXPECT_EQ(folder_.Read("project/Main.ptn"), "main");
  EXPECT_FALSE(folder_.Exists("project/Bitmap"));
}

}  // namespace
