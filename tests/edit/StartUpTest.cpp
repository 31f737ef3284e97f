// Reopening the last project at start-up.
#include <gmock/gmock.h>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "render/Marks.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

class StartUpTest : public EditFixture {
 protected:
  StartUpTest() {
    ProjFlag = 0;
    PtrnFlag = 0;
    CopyText(ProjName, "");
    CopyText(ProjPath, "");
    CopyText(BmapPath, "");
  }
  // A project file of 808 bytes whose first setting is 3.
  void WriteProject(const std::string& name) const {
    std::string bytes(808, '\0');
    bytes[4] = 3;
    Folder.Write("project/" + name + ".prj", bytes);
  }
};

TEST_F(StartUpTest, TheLastProjectIsReopened) {
  WriteProject("Plant");
  std::string palette(1200, '\0');
  palette[12] = 9;  // red of colour 1
  Folder.Write("project/PtrnColr", palette);
  WriteProfile("[PROJECT]\nPROJECT=Plant," + ProjectFolder + "\n");
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 1);
  EXPECT_STREQ(ProjName, "Plant");
  EXPECT_EQ(std::string(ProjPath), ProjectFolder);
  EXPECT_EQ(std::string(BmapPath), ProjectFolder + "/Bitmap");
  EXPECT_EQ(ProjData.Parm1[0], 3);
  EXPECT_EQ(ColrData[1].red, 9);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu", "SetWindTitle [Plant] []"));
}

TEST_F(StartUpTest, ItsMarksAreReadAndDrawn) {
  WriteProject("Plant");
  std::string marks(350 * 512, '\0');
  marks[9 * 512] = 0x5A;
  Folder.Write("project/PtrnMark", marks);
  WriteProfile("[PROJECT]\nPROJECT=Plant," + ProjectFolder + "\n");
  MarkData[9].mark[0] = 0x0F;
  SetDrawMark();
  ProjDataInit();
  EXPECT_EQ(MarkData[9].mark[0], 0x5A);
  EXPECT_EQ(std::string(Mark_XPM[9].data[MarkHeaderLines]).substr(0, 8), ".X.XX.X.");
}

TEST_F(StartUpTest, AProjectThatIsGoneIsForgotten) {
  WriteProfile("[PROJECT]\nPROJECT=Plant," + ProjectFolder + "\nWINDOW=640,480\n");
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 0);
  EXPECT_STREQ(ProjName, "");
  EXPECT_STREQ(ProjPath, "");
  EXPECT_EQ(Folder.Read("program/VarnixMaster.ini"), "[PROJECT]\nWINDOW=640,480\n");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu", "SetWindTitle [] []"));
}

TEST_F(StartUpTest, AShortProjectFileCountsAsGone) {
  Folder.Write("project/Plant.prj", std::string(807, '\0'));
  WriteProfile("[PROJECT]\nPROJECT=Plant," + ProjectFolder + "\n");
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 0);
}

// The profile gives 99 bytes of a folder.
TEST_F(StartUpTest, AnotherProjectWhereTheFolderWasCutIsNotOpened) {
  const std::string other = Folder.Path() + "/" + std::string(98 - Folder.Path().size(), 'f');
  const std::string bytes(808, '\0');
  Folder.Write(other.substr(Folder.Path().size() + 1) + "/Plant.prj", bytes);
  WriteProfile("[PROJECT]\nPROJECT=Plant," + other + "f\n");
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 0);
  EXPECT_STREQ(ProjPath, "");
  WriteProfile("[PROJECT]\nPROJECT=Plant," + other + "\n");
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 1);
}

TEST_F(StartUpTest, WithoutAProfileNoProjectIsOpen) {
  ProjDataInit();
  EXPECT_EQ(ProjFlag, 0);
  EXPECT_EQ(Screen.Calls.back(), "SetWindTitle [] []");
}

TEST_F(StartUpTest, KnownProjectsThatAreGoneLeaveTheirNumbersFree) {
  WriteProject("Here");
  WriteProfile("[PROJNAME]\nPROJNAME0=Gone," + ProjectFolder + "\nPROJNAME1=Here," + ProjectFolder +
               "\nPROJNAME99=Lost,/nowhere\n");
  ProjDataInit();
  EXPECT_EQ(Folder.Read("program/VarnixMaster.ini"),
            "[PROJNAME]\nPROJNAME1=Here," + ProjectFolder + "\n");
}

TEST_F(StartUpTest, TheDisplayLanguageComesFromTheProfile) {
  WriteProfile("[VARNIXPACK]\nLANGUAGE=2\n");
  ProjDataInit();
  EXPECT_EQ(Language, 2);
}

}  // namespace
