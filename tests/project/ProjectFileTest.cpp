#include <gtest/gtest.h>

#include "tests/project/ProjectFixture.h"

namespace {

class ProjectFileTest : public ProjectFixture {
 protected:
  gint Read(std::string_view bytes) {
    folder_.Write("project/Plant.prj", bytes);
    return ProjFileRead(ProjPath, "Plant");
  }
  gint Write() { return ProjFileWrite(ProjPath, "Plant"); }
};

std::string WholeFile() {
  return Bytes()
      .Int(1001)
      .Run(100, 20)
      .Run(200, 30)
      .Run(300, 20)
      .Run(400, 20)
      .Field("/home/user/source", 258)
      .Field("Logo.bmp", 22)
      .Field("Start", 82)
      .Field("", 82)
      .Str();
}

TEST_F(ProjectFileTest, ReadsEveryField) {
  ASSERT_EQ(WholeFile().size(), 808u);
  ASSERT_EQ(Read(WholeFile()), 1);
  EXPECT_EQ(ProjData.Parm1[0], 100);
  EXPECT_EQ(ProjData.Parm1[19], 119);
  EXPECT_EQ(ProjData.Parm2[0], 200);
  EXPECT_EQ(ProjData.Parm2[29], 229);
  EXPECT_EQ(ProjData.Parm3[0], 300);
  EXPECT_EQ(ProjData.Parm3[19], 319);
  EXPECT_EQ(ProjData.Parm4[0], 400);
  EXPECT_EQ(ProjData.Parm4[19], 419);
  EXPECT_STREQ(ProjData.ProgPath, "/home/user/source");
  EXPECT_STREQ(ProjData.LogoName, "Logo.bmp");
  EXPECT_STREQ(ProjData.PtrnStart, "Start");
  EXPECT_STREQ(ProjData.PtrnStop, "");
}

TEST_F(ProjectFileTest, WritesEveryByteInItsPlace) {
  ASSERT_EQ(Read(WholeFile()), 1);
  std::strcpy(ProjData.PtrnStart + 10, "left from a longer name");
  folder_.Write("project/Start.ptn", "");
  std::filesystem::remove(folder_.Path("project/Plant.prj"));
  ASSERT_EQ(Write(), 1);
  EXPECT_EQ(folder_.Read("project/Plant.prj"), WholeFile());
}

TEST_F(ProjectFileTest, AnyVersionIsReadTheOwnIsWritten) {
  ASSERT_EQ(Read(Bytes().Int(77).Zeros(804).Str()), 1);
  ASSERT_EQ(Write(), 1);
  EXPECT_EQ(folder_.Read("project/Plant.prj"), Bytes().Int(1001).Zeros(804).Str());
}

TEST_F(ProjectFileTest, AMissingOrShortFileChangesNothing) {
  ProjData.Parm1[0] = 5;
  EXPECT_EQ(ProjFileRead(ProjPath, "Plant"), 0);
  for (const std::size_t size : {0, 1, 4, 364, 807}) {
    EXPECT_EQ(Read(WholeFile().substr(0, size)), 0) << size;
  }
  EXPECT_EQ(ProjData.Parm1[0], 5);
  EXPECT_FALSE(folder_.Exists("program/VarnixMaster.ini")) << "a failed read is not recorded";
}

TEST_F(ProjectFileTest, TextsWithoutTerminatorEndWithTheirFields) {
  ASSERT_EQ(Read(std::string(808, 'x')), 1);
  EXPECT_EQ(ProjData.ProgPath, std::string(257, 'x'));
  EXPECT_EQ(ProjData.LogoName, std::string(21, 'x'));
  EXPECT_EQ(ProjData.PtrnStart, std::string(81, 'x'));
  EXPECT_EQ(ProjData.PtrnStop, std::string(81, 'x'));
}

TEST_F(ProjectFileTest, ARecordWithoutTerminatorsIsNotReadPastItsEnd) {
  std::memset(&ProjData, 'x', sizeof ProjData);
  ASSERT_EQ(Write(), 1);
  EXPECT_STREQ(ProjData.PtrnStart, "");
  EXPECT_STREQ(ProjData.PtrnStop, "");
}

TEST_F(ProjectFileTest, ReadingRecordsTheProject) {
  ASSERT_EQ(Read(WholeFile()), 1);
  EXPECT_EQ(Profile(), "[PROJNAME]\nPROJNAME0=Plant," + ProjectFolder() +
                           "\n[PROJECT]\nPROJECT=Plant," + ProjectFolder() + "\n");
}

TEST_F(ProjectFileTest, StartAndStopLayoutsThatDoNotExistAreForgotten) {
  WriteLayout("Here", PTRNHEDR{}, {});
  std::strcpy(ProjData.PtrnStart, "Gone");
  std::strcpy(ProjData.PtrnStop, "Here");
  ASSERT_EQ(Write(), 1);
  EXPECT_STREQ(ProjData.PtrnStart, "");
  EXPECT_STREQ(ProjData.PtrnStop, "Here");
  const std::string file = folder_.Read("project/Plant.prj");
  EXPECT_EQ(file.substr(644), Bytes().Zeros(82).Field("Here", 82).Str());
}

TEST_F(ProjectFileTest, WritingMakesTheFolderAndRecordsTheProject) {
  const std::string folder = folder_.Path("deep/new");
  ASSERT_EQ(ProjFileWrite(folder.c_str(), "Plant"), 1);
  EXPECT_TRUE(folder_.Exists("deep/new/Plant.prj"));
  EXPECT_EQ(Profile(), "[PROJNAME]\nPROJNAME0=Plant," + folder + "\n[PROJECT]\nPROJECT=Plant," +
                           folder + "\n");
}

TEST_F(ProjectFileTest, AFileThatCannotBeWrittenIsNotRecorded) {
  folder_.Write("file", "");
  EXPECT_EQ(ProjFileWrite(folder_.Path("file").c_str(), "Plant"), 0);
  EXPECT_FALSE(folder_.Exists("program/VarnixMaster.ini"));
}

TEST_F(ProjectFileTest, ANewNameLeavesTheOldFile) {
  ASSERT_EQ(Write(), 1);
  ASSERT_EQ(ProjFileWrite(ProjPath, "Plant2"), 1);
  EXPECT_TRUE(folder_.Exists("project/Plant.prj"));
  EXPECT_TRUE(folder_.Exists("project/Plant2.prj"));
  EXPECT_EQ(Profile(), "[PROJNAME]\nPROJNAME1=Plant2," + ProjectFolder() + "\nPROJNAME0=Plant," +
                           ProjectFolder() + "\n[PROJECT]\nPROJECT=Plant2," + ProjectFolder() +
                           "\n");
}

TEST_F(ProjectFileTest, TheBitmapFolderLiesInTheProject) {
  SetBmapPath();
  EXPECT_EQ(BmapPath, ProjectFolder() + "/Bitmap");
  ProjPath[0] = '\0';
  SetBmapPath();
  EXPECT_STREQ(BmapPath, "");
}

}  // namespace
