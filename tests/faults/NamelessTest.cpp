// Without a project, a name or an undo folder there is no file to write: nothing appears in the
// folder that the program was started from, and nothing there goes.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/Registry.h"
#include "tests/faults/ProjectAtHand.h"

namespace {

class NamelessTest : public ProjectAtHand {
 protected:
  NamelessTest() : Before(std::filesystem::current_path()) {
    std::filesystem::create_directory(Started);
    std::filesystem::current_path(Started);
  }
  ~NamelessTest() override { std::filesystem::current_path(Before); }

  static void ForgetUndoFolder() {
    PtrnSavePath[0] = '\0';
    for (auto& name : PtrnSaveName) name[0] = '\0';
    PtrnSaveCount = 0;
  }
  FolderImage FoundHere() const { return ImageOf(Started); }

  const std::string Started = Folder.Path("started-here");
  const std::filesystem::path Before;
};

TEST_F(NamelessTest, ALayoutWithoutProjectAndNameStaysUnsaved) {
  ProjPath[0] = '\0';
  PtrnName[0] = '\0';
  PtrnFlag = 2;
  PtrnDataSave(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_FALSE(WritePtrnFile("", "Screen"));
  EXPECT_FALSE(WritePtrnFile(ProjectFolder.c_str(), ""));
  EXPECT_EQ(FoundHere(), FolderImage());
  EXPECT_FALSE(Folder.Exists("project.ptn"));
}

// A file whose header has no title gives the layout no name when a change is taken back.
TEST_F(NamelessTest, ALayoutThatLostItsNameIsNotWrittenBesideTheProject) {
  PtrnHedr.PtrnName1[0] = '\0';
  AddItem("CODE");
  PtrnEditBack(nullptr, nullptr);
  EXPECT_STREQ(PtrnName, "");
  PtrnDataSave(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_FALSE(Folder.Exists("project.ptn"));
  EXPECT_FALSE(Folder.Exists("project/.ptn"));
}

TEST_F(NamelessTest, BeforeThereAreSlotsNoSnapshotIsMadeAndNothingIsDeleted) {
  Folder.Write("started-here/.ptn", "somebody's own");
  ForgetUndoFolder();
  PushPtrnData();
  EXPECT_EQ(PtrnSaveCount, 0);
  PtrnSaveExit();
  EXPECT_EQ(FoundHere(), (FolderImage{{".ptn", "somebody's own"}}));
}

TEST_F(NamelessTest, WithoutAProjectNothingOfItIsWritten) {
  PtrnDataExit();
  ProjPath[0] = '\0';
  ProjName[0] = '\0';
  SaveColrFile();
  SaveMarkFile();
  RegstPtrnCode("CODE", 1);
  RegstPtrnText("text", 2);
  EXPECT_EQ(ProjFileWrite(ProjPath, ProjName), 0);
  LogicDataEdit1();
  EXPECT_EQ(FoundHere(), FolderImage());
}

}  // namespace
