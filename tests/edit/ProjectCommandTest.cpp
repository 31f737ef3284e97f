// New, open and edit project, with the dialogs answered by script.
#include <gmock/gmock.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "render/Primitives.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* SettingsDialog = "EditProjData プロジェクトの新規作成";

enum SettingsResult { Cancelled = 0, Registered = 1, DefaultsRestored = 2 };

// What is drawn with colour 7 and mark 9: the colour's red, and the first eight pixels of the mark.
gint DrawnRed() {
  return DrawColr[7].red;
}

std::string DrawnMark() {
  return std::string(Mark_XPM[9].data[MarkHeaderLines]).substr(0, 8);
}

// What the editors of palette and marks do.
void SaveColour(gint red) {
  ColrData[7] = {red, 80, 90};
  SaveColrFile();
}

void SaveMark(guint8 byte) {
  MarkData[9].mark[0] = byte;
  SaveMarkFile();
}

class ProjectCommandTest : public EditFixture {
 protected:
  ProjectCommandTest() {
    PtrnFlag = 0;
    ColrData[7] = {1, 2, 3};
    MarkData[9].mark[0] = 0x5A;
    SaveColrFile();
    SaveMarkFile();
  }
  std::string NewFolder() const { return Folder.Path("new"); }
  // The user enters name and folders and registers.
  void RegisterNewProject() const {
    Screen.ProjectSettings = [this] {
      CopyText(EditName, "Fresh");
      CopyText(EditPath, NewFolder());
      CopyText(EditData.ProgPath, Folder.Path("new-program"));
      ColrData[7] = {70, 80, 90};
      return gint{Registered};
    };
  }
  // A 466-byte layout file without items, of kind 0 (parent window) and 10 x 20 dots.
  static std::string ParentLayout() {
    PTRNHEDR header{};
    header.Parm1[HedrSlot::Width] = 10;
    header.Parm1[HedrSlot::Height] = 20;
    return {reinterpret_cast<const char*>(&header), sizeof header};
  }
  PTRNHEDR HeaderOf(const std::string& file) const {
    PTRNHEDR header{};
    const std::string bytes = Folder.Read(file);
    EXPECT_GE(bytes.size(), sizeof header);
    bytes.copy(reinterpret_cast<char*>(&header), sizeof header);
    return header;
  }
};

TEST_F(ProjectCommandTest, ANewProjectBeginsWithTheDefaultsOfTheProfile) {
  WriteProfile(
      "[PROJDATA]\n"
      "NAME=Untitled\n"
      "PTRN=/tmp/somewhere\n"
      "PTRNSIZE=2\n"
      "COLOR5=11,22,33\n");
  Screen.ProjectSettings = [] {
    EXPECT_STREQ(EditName, "Untitled");
    EXPECT_STREQ(EditPath, "/tmp/somewhere");
    EXPECT_EQ(EditData.Parm1[0], 2);
    EXPECT_EQ(ColrData[5].green, 22);
    EXPECT_EQ(ColrData[7].red, 0);
    EXPECT_EQ(MarkData[9].mark[0], 0);
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog));
}

TEST_F(ProjectCommandTest, ARegisteredNewProjectIsWrittenAndOpen) {
  ProjFlag = 0;
  RegisterNewProject();
  ProjDataNew(nullptr, nullptr);
  EXPECT_EQ(ProjFlag, 1);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_STREQ(ProjName, "Fresh");
  EXPECT_EQ(std::string(ProjPath), NewFolder());
  EXPECT_EQ(std::string(BmapPath), NewFolder() + "/Bitmap");
  EXPECT_EQ(std::string(ProjData.ProgPath), Folder.Path("new-program"));
  EXPECT_EQ(Folder.Read("new/Fresh.prj").size(), 808U);
  EXPECT_EQ(Folder.Read("new/PtrnMark"), std::string(350 * 512, '\0'));
  EXPECT_EQ(Folder.Read("new/PtrnColr").substr(84, 12),
            std::string("F\0\0\0P\0\0\0Z\0\0\0", 12));  // colour 7
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog, "SetMainMenu", "SetWindTitle [Fresh] []"));
}

TEST_F(ProjectCommandTest, TemplatesOfANewProjectTakeItsLook) {
  Folder.Write("program/VarnixData/Ptrn/Start.ptn", ParentLayout());
  Folder.Write("program/VarnixData/Bitmap/logo.bmp", "picture");
  Screen.ProjectSettings = [this] {
    CopyText(EditName, "Fresh");
    CopyText(EditPath, NewFolder());
    EditData.Parm1[0] = 1;   // 1024 x 768
    EditData.Parm2[0] = 44;  // height of the title area
    return gint{Registered};
  };
  ProjDataNew(nullptr, nullptr);
  const PTRNHEDR header = HeaderOf("new/Start.ptn");
  EXPECT_EQ(header.Parm1[HedrSlot::Width], 1024);
  EXPECT_EQ(header.Parm1[HedrSlot::Height], 768);
  EXPECT_EQ(header.Parm1[HedrSlot::TitleHeight], 44);
  EXPECT_EQ(Folder.Read("new/Bitmap/logo.bmp"), "picture");
}

TEST_F(ProjectCommandTest, AStartLayoutThatDoesNotExistIsDropped) {
  Screen.ProjectSettings = [this] {
    CopyText(EditName, "Fresh");
    CopyText(EditPath, NewFolder());
    CopyText(EditData.PtrnStart, "Nowhere");
    return gint{Registered};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_STREQ(ProjData.PtrnStart, "");
}

TEST_F(ProjectCommandTest, RestoredDefaultsReopenTheSettings) {
  gint shown = 0;
  Screen.ProjectSettings = [&shown] {
    ++shown;
    return shown < 3 ? gint{DefaultsRestored} : gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_EQ(shown, 3);
}

TEST_F(ProjectCommandTest, ACancelledNewProjectChangesNothing) {
  const std::string palette = Folder.Read("project/PtrnColr");
  const std::string marks = Folder.Read("project/PtrnMark");
  Screen.ProjectSettings = [&] {
    CopyText(EditName, "Fresh");
    SaveColour(70);
    SaveMark(0x0F);
    EXPECT_EQ(ColrData[7].red, 70);
    EXPECT_EQ(DrawnRed(), 70);
    EXPECT_EQ(DrawnMark(), "XXXX....");
    // Not for a moment.
    EXPECT_EQ(Folder.Read("project/PtrnColr"), palette);
    EXPECT_EQ(Folder.Read("project/PtrnMark"), marks);
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_STREQ(ProjName, "Plant");
  EXPECT_EQ(std::string(ProjPath), ProjectFolder);
  EXPECT_EQ(ColrData[7].red, 1);
  EXPECT_EQ(MarkData[9].mark[0], 0x5A);
  EXPECT_EQ(DrawnRed(), 1);
  EXPECT_EQ(DrawnMark(), ".X.XX.X.");
  EXPECT_EQ(Folder.Read("project/PtrnColr"), palette);
  EXPECT_EQ(Folder.Read("project/PtrnMark"), marks);
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog));
}

TEST_F(ProjectCommandTest, ACancelledNewProjectBringsEveryColourAndMarkBack) {
  for (gint no = 0; no < ColrCount; ++no) ColrData[no] = {no + 1, no + 2, no + 3};
  for (MARKDATA& mark : MarkData) mark.mark[0] = 0x5A;
  Screen.ProjectSettings = [] {
    EXPECT_EQ(ColrData[ColrCount - 1].red, 0);
    EXPECT_EQ(MarkData[MarkCount - 1].mark[0], 0);
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  for (gint no = 0; no < ColrCount; ++no) {
    EXPECT_EQ(ColrData[no].red, no + 1);
    EXPECT_EQ(ColrData[no].blue, no + 3);
  }
  for (gint no = 0; no < MarkCount; ++no) EXPECT_EQ(MarkData[no].mark[0], 0x5A) << no;
}

TEST_F(ProjectCommandTest, ACancelledNewProjectMakesNoFilesInTheOpenOne) {
  std::filesystem::remove(Folder.Path("project/PtrnColr"));
  std::filesystem::remove(Folder.Path("project/PtrnMark"));
  Screen.ProjectSettings = [] {
    SaveColour(70);
    SaveMark(0x0F);
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_FALSE(Folder.Exists("project/PtrnColr"));
  EXPECT_FALSE(Folder.Exists("project/PtrnMark"));
}

TEST_F(ProjectCommandTest, ACancelledNewProjectRepaintsTheLayoutOpenedBeside) {
  Screen.ProjectSettings = [] {
    PtrnFlag = 1;
    SaveColour(70);
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_EQ(DrawnRed(), 1);
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog, "DrawRequest 1"));
}

TEST_F(ProjectCommandTest, EditorsWriteAgainOnceTheNewProjectIsCancelled) {
  ProjDataNew(nullptr, nullptr);
  SaveColour(70);
  SaveMark(0x0F);
  EXPECT_EQ(Folder.Read("project/PtrnColr")[84], 'F');
  EXPECT_EQ(Folder.Read("project/PtrnMark")[9 * 512], 0x0F);
}

TEST_F(ProjectCommandTest, WhatTheEditorsSaveBesideNewSettingsIsTheNewProjects) {
  const std::string palette = Folder.Read("project/PtrnColr");
  const std::string marks = Folder.Read("project/PtrnMark");
  Screen.ProjectSettings = [this] {
    CopyText(EditName, "Fresh");
    CopyText(EditPath, NewFolder());
    SaveColour(70);
    SaveMark(0x0F);
    return gint{Registered};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_EQ(Folder.Read("project/PtrnColr"), palette);
  EXPECT_EQ(Folder.Read("project/PtrnMark"), marks);
  EXPECT_EQ(Folder.Read("new/PtrnColr")[84], 'F');
  EXPECT_EQ(Folder.Read("new/PtrnMark")[9 * 512], 0x0F);
  EXPECT_EQ(ColrData[7].red, 70);
  EXPECT_EQ(MarkData[9].mark[0], 0x0F);
}

// A layout that is to stay open reopens the settings, and they are the new project's still.
TEST_F(ProjectCommandTest, ReopenedSettingsOfANewProjectWriteNothingEither) {
  const std::string palette = Folder.Read("project/PtrnColr");
  Screen.ProjectSettings = [] {
    Screen.ProjectSettings = [] {
      SaveColour(71);
      return gint{Cancelled};
    };
    PtrnFlag = 2;
    return gint{Registered};
  };
  Screen.MessageAnswers = {0};
  ProjDataNew(nullptr, nullptr);
  EXPECT_EQ(Screen.Count(SettingsDialog), 2);
  EXPECT_EQ(Folder.Read("project/PtrnColr"), palette);
  EXPECT_EQ(ColrData[7].red, 1);
  PtrnFlag = 0;
}

TEST_F(ProjectCommandTest, ThePaletteOfTheFirstProjectWaitsForItsFolder) {
  ProjFlag = 0;
  CopyText(ProjPath, "");
  Screen.ProjectSettings = [] {
    SaveColrFile();
    return gint{Cancelled};
  };
  ProjDataNew(nullptr, nullptr);
  EXPECT_FALSE(std::filesystem::exists("PtrnColr"));
}

TEST_F(ProjectCommandTest, OpeningLoadsTheChosenProject) {
  RegisterNewProject();
  ProjDataNew(nullptr, nullptr);
  Screen.Take();
  PtrnFlag = 1;
  ColrData[7] = {};
  Screen.ProjectOpen = [this] {
    CopyText(EditName, "Fresh");
    CopyText(EditPath, NewFolder());
    return 1;
  };
  ProjFlag = 0;
  ProjData = {};
  CopyText(ProjName, "");
  CopyText(BmapPath, "");
  ProjDataOpen(nullptr, nullptr);
  EXPECT_EQ(ProjFlag, 1);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_STREQ(ProjName, "Fresh");
  EXPECT_EQ(std::string(ProjData.ProgPath), Folder.Path("new-program"));
  EXPECT_EQ(std::string(BmapPath), NewFolder() + "/Bitmap");
  EXPECT_EQ(ColrData[7].blue, 90);
  EXPECT_THAT(Screen.Take(), ElementsAre("ProjFileOpen", "SetMainMenu", "SetWindTitle [Fresh] []"));
}

TEST_F(ProjectCommandTest, ACancelledOpenChangesNothing) {
  CopyText(EditName, "Other");
  ProjDataOpen(nullptr, nullptr);
  EXPECT_STREQ(ProjName, "Plant");
  EXPECT_THAT(Screen.Take(), ElementsAre("ProjFileOpen"));
}

TEST_F(ProjectCommandTest, EditedSettingsAreWrittenUnderANewNameBesideTheOldFile) {
  ProjFileWrite(ProjPath, ProjName);
  Folder.Write("project/Main.ptn", ParentLayout());
  Screen.ProjectSettings = [] {
    EXPECT_STREQ(EditName, "Plant");
    CopyText(EditName, "Plant2");
    EditData.Parm2[0] = 30;
    return gint{Registered};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_STREQ(ProjName, "Plant2");
  EXPECT_TRUE(Folder.Exists("project/Plant.prj"));
  EXPECT_TRUE(Folder.Exists("project/Plant2.prj"));
  EXPECT_EQ(HeaderOf("project/Main.ptn").Parm1[HedrSlot::TitleHeight], 30);
  EXPECT_THAT(Folder.Read("program/VarnixMaster.ini"),
              HasSubstr("PROJNAME1=Plant2," + ProjectFolder + "\n"));
  EXPECT_THAT(Screen.Take(),
              ElementsAre(SettingsDialog, "SetMainMenu", "SetWindTitle [Plant2] []"));
}

TEST_F(ProjectCommandTest, AMovedProjectIsCopiedAndTheOldFolderStays) {
  ProjFileWrite(ProjPath, ProjName);
  Folder.Write("project/Main.ptn", ParentLayout());
  Folder.Write("project/Bitmap/logo.bmp", "picture");
  Folder.Write("old-program/Plant.cpp", "source");
  std::filesystem::create_directories(Folder.Path("new-program"));
  CopyText(ProjData.ProgPath, Folder.Path("old-program"));
  Screen.ProjectSettings = [this] {
    CopyText(EditPath, NewFolder());
    CopyText(EditData.ProgPath, Folder.Path("new-program"));
    return gint{Registered};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(std::string(ProjPath), NewFolder());
  EXPECT_EQ(std::string(BmapPath), NewFolder() + "/Bitmap");
  EXPECT_TRUE(Folder.Exists("new/Main.ptn"));
  EXPECT_TRUE(Folder.Exists("new/PtrnColr"));
  EXPECT_EQ(Folder.Read("new/Bitmap/logo.bmp"), "picture");
  EXPECT_EQ(Folder.Read("new-program/Plant.cpp"), "source");
  EXPECT_TRUE(Folder.Exists("project/Main.ptn"));
  EXPECT_TRUE(Folder.Exists("old-program/Plant.cpp"));
}

TEST_F(ProjectCommandTest, CancelledSettingsKeepProjectAndPalette) {
  ProjData.Parm2[0] = 12;
  Screen.ProjectSettings = [] {
    EditData.Parm2[0] = 30;
    ColrData[7] = {70, 80, 90};  // the restored defaults
    Screen.ProjectSettings = nullptr;
    return gint{DefaultsRestored};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(ProjData.Parm2[0], 12);
  EXPECT_EQ(ColrData[7].red, 1);
  EXPECT_FALSE(Folder.Exists("project/Plant.prj"));
}

// The settings leave the main window usable: what can come in between.

TEST_F(ProjectCommandTest, ASecondCommandOnlyBringsTheSettingsToTheFront) {
  for (const auto& command : {ProjDataNew, ProjDataEdit, ProjDataOpen}) {
    Screen.Take();
    Screen.ProjectOpen = [] {
      CopyText(EditName, "Elsewhere");
      return 1;
    };
    Screen.ProjectSettings = [&command] {
      Screen.ProjectSettings = nullptr;
      CopyText(EditName, "Entered");
      EditData.Parm2[0] = 30;
      ColrData[7] = {70, 80, 90};
      command(nullptr, nullptr);
      EXPECT_STREQ(EditName, "Entered");
      EXPECT_EQ(EditData.Parm2[0], 30);
      EXPECT_EQ(ColrData[7].red, 70);
      return gint{Cancelled};
    };
    ProjDataEdit(nullptr, nullptr);
    EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog, SettingsDialog));
    EXPECT_STREQ(ProjName, "Plant");
  }
}

TEST_F(ProjectCommandTest, ALayoutOpenedMeanwhileIsSavedBeforeTheProjectChanges) {
  Screen.ProjectSettings = [] {
    PtrnFlag = 2;
    CopyText(PtrnName, "Meanwhile");
    PtrnHedr = {};
    CopyText(PtrnHedr.PtrnName1, "Meanwhile");
    EditData.Parm2[0] = 30;
    return gint{Registered};
  };
  Screen.MessageAnswers = {1};
  Screen.CloseAnswers = {1};
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(HeaderOf("project/Meanwhile.ptn").Parm1[HedrSlot::TitleHeight], 30);
}

TEST_F(ProjectCommandTest, ALayoutThatIsToStayOpenReopensTheSettings) {
  Screen.ProjectSettings = [] {
    Screen.ProjectSettings = nullptr;  // then cancelled
    PtrnFlag = 2;
    CopyText(PtrnName, "Meanwhile");
    EditData.Parm2[0] = 30;
    return gint{Registered};
  };
  Screen.MessageAnswers = {0};
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(ProjData.Parm2[0], 0);
  EXPECT_EQ(Screen.Count(SettingsDialog), 2);
  PtrnFlag = 0;
}

TEST_F(ProjectCommandTest, ALayoutOpenBeforeTheSettingsGoesWithoutAQuestion) {
  for (const auto command : {ProjDataNew, ProjDataEdit}) {
    PtrnFlag = 2;
    RegisterNewProject();
    command(nullptr, nullptr);
    EXPECT_EQ(PtrnFlag, 0);
    EXPECT_STREQ(ProjName, "Fresh");
    EXPECT_THAT(Screen.Take(),
                ElementsAre(SettingsDialog, "SetMainMenu", "SetWindTitle [Fresh] []"));
  }
}

TEST_F(ProjectCommandTest, WhatTheEditorsSaveOutlivesCancelledSettings) {
  Screen.ProjectSettings = [] {
    SaveColour(70);
    SaveMark(0x0F);
    return gint{Cancelled};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(ColrData[7].red, 70);
  EXPECT_EQ(MarkData[9].mark[0], 0x0F);
  EXPECT_EQ(DrawnRed(), 70);
  EXPECT_EQ(DrawnMark(), "XXXX....");
  EXPECT_EQ(Folder.Read("project/PtrnColr")[84], 'F');
  EXPECT_EQ(Folder.Read("project/PtrnMark")[9 * 512], 0x0F);
}

// Nothing holds it but the memory.
TEST_F(ProjectCommandTest, APaletteThatCouldNotBeSavedGoesWithCancelledSettings) {
  SaveColour(1);
  std::filesystem::rename(Folder.Path("project"), Folder.Path("away"));
  Screen.ProjectSettings = [] {
    SaveColour(70);
    return gint{Cancelled};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(ColrData[7].red, 1);
  EXPECT_EQ(DrawnRed(), 1);
}

// The marks were saved, the palette was not: each is looked at by itself.
TEST_F(ProjectCommandTest, RestoredDefaultsGoWithCancelledSettingsWhateverWasSavedBefore) {
  for (const bool saved : {false, true}) {
    SaveColour(1);
    Screen.ProjectSettings = [saved] {
      if (saved) SaveColour(70);
      SaveMark(0x0F);
      ProjSetDefault();  // as its button does; the profile is empty
      SaveMark(0x33);
      Screen.ProjectSettings = nullptr;  // then cancelled
      return gint{DefaultsRestored};
    };
    ProjDataEdit(nullptr, nullptr);
    EXPECT_EQ(ColrData[7].red, saved ? 70 : 1);
    EXPECT_EQ(DrawnRed(), saved ? 70 : 1);
    EXPECT_EQ(MarkData[9].mark[0], 0x33);
    // The next save writes no defaults.
    SaveColrFile();
    EXPECT_EQ(Folder.Read("project/PtrnColr")[84], saved ? 'F' : '\1');
  }
}

TEST_F(ProjectCommandTest, DefaultsThatAnEditorSavedAreSaved) {
  Screen.ProjectSettings = [] {
    Screen.ProjectSettings = [] {
      SaveColour(70);
      return gint{Cancelled};
    };
    ProjSetDefault();
    return gint{DefaultsRestored};
  };
  ColrData[8].red = 5;
  SaveColrFile();
  ProjDataEdit(nullptr, nullptr);
  EXPECT_EQ(ColrData[8].red, 0);
  EXPECT_EQ(ColrData[7].red, 70);
}

// The shades of a work area are made of the palette itself.
TEST_F(ProjectCommandTest, CancelledDefaultsRepaintTheLayoutOpenedBeside) {
  Screen.ProjectSettings = [] {
    ProjSetDefault();
    PtrnFlag = 1;
    Screen.ProjectSettings = nullptr;
    return gint{DefaultsRestored};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog, SettingsDialog, "DrawRequest 1"));
}

TEST_F(ProjectCommandTest, CancelledSettingsWithoutDefaultsRepaintNothing) {
  Screen.ProjectSettings = [] {
    PtrnFlag = 1;
    return gint{Cancelled};
  };
  ProjDataEdit(nullptr, nullptr);
  EXPECT_THAT(Screen.Take(), ElementsAre(SettingsDialog));
}

}  // namespace
