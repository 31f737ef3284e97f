// Every writer of the program, with each of its file calls going wrong in turn: every file is
// whole, old or new, nothing is left lying about, and the program holds what it held or what it was
// to hold.
#include <gtest/gtest.h>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "PtrnMisc.h"
#include "layout/Registry.h"
#include "support/FileTools.h"
#include "tests/faults/ProjectAtHand.h"
#include "tests/faults/Sweep.h"

namespace {

struct Writer {
  const char* Name;
  bool Reports;
  void (*Prepare)(const TempFolder& folder);  // in memory, from what is open
  bool (*Write)(const TempFolder& folder);
};

void PrintTo(const Writer& writer, std::ostream* out) {
  *out << writer.Name;
}

void Nothing(const TempFolder& /*folder*/) {}

void ChangeLayout(const TempFolder& /*folder*/) {
  PTRNDATA item = MakeValidItem(TypeRectangle, 1, 2, 30, 40);
  AddPtrnData(&item);
  PtrnFlag = 2;
}

void ChangeProject(const TempFolder& /*folder*/) {
  ProjData.Parm2[0] = 44;
  CopyText(ProjData.PtrnStart, "Screen");
}

void EnterNewFolders(const TempFolder& folder) {
  const std::string project = folder.Path("moved");
  const std::string source = folder.Path("moved-source");
  Screen.ProjectSettings = [project, source] {
    FileCalls::Pause(false);
    CopyText(EditPath, project);
    CopyText(EditData.ProgPath, source);
    CopyText(EditName, "Plant");
    return gint{1};
  };
  PtrnDataExit();
}

void ForgetGenerated(const TempFolder& folder) {
  for (const char* name : {"source/Plant.h", "source/Plant.cpp", "source/Plant.ini",
                           "source/VarnixCode.h", "project/PtrnCode", "project/PtrnFlag"}) {
    std::filesystem::remove(folder.Path(name));
  }
  PtrnDataExit();
}

void ForgetRegistered(const TempFolder& folder) {
  std::filesystem::remove(folder.Path("source/VarnixCode.h"));
  folder.Write("source/Plant.cpp", "// the user's own\nGetPtrnWnd\n\treturn NULL;\n");
  folder.Write("source/Plant.ini", "[VARNIXPACK]\nLANGUAGE=1\n[FONT]\nFONTNAME3=old\n");
  folder.Write("project/PtrnCode", "");
  PtrnDataExit();
}

const Writer Writers[] = {
    {"Layout", true, ChangeLayout, [](const auto&) { return WritePtrnFile(ProjPath, PtrnName); }},
    {"SaveCommand", true, ChangeLayout,
     [](const auto&) {
       PtrnDataSave(nullptr, nullptr);
       return PtrnFlag == 1;
     }},
    {"SaveOverAnother", true,
     [](const auto& folder) {
       ChangeLayout(folder);
       CopyText(PtrnHedr.PtrnName1, "Other");
       CopyText(PtrnName, "Other");
     },
     [](const auto&) {
       PtrnDataSave(nullptr, nullptr);
       return PtrnFlag == 1;
     }},
    {"SaveOfNoItems", true,
     [](const auto&) {
       DelPtrnData(0);
       PtrnFlag = 2;
     },
     [](const auto&) {
       PtrnDataSave(nullptr, nullptr);
       return PtrnFlag == 1;
     }},
    {"ProjectFile", false, ChangeProject,
     [](const auto&) { return ProjFileWrite(ProjPath, ProjName) != 0; }},
    {"StartScreen", false,
     [](const auto&) {
       EditHedr = PtrnHedr;
       EditHedr.Parm2[7] = 1;
     },
     [](const auto&) { return EditPtrnData_Renew() != 0; }},
    {"Palette", false,
     [](const auto&) {
       ColrData[8] = {7, 8, 9};
     },
     [](const auto&) {
       SaveColrFile();
       return true;
     }},
    {"Marks", false, [](const auto&) { MarkData[8].mark[1] = 3; },
     [](const auto&) {
       SaveMarkFile();
       return true;
     }},
    {"Registry", false, Nothing,
     [](const auto&) {
       RegstPtrnCode("NEW", 7);
       return true;
     }},
    {"RegistryAtOnce", true, Nothing,
     [](const auto&) { return WritePtrnCode({SystemCode()}) != 0; }},
    {"FirstStringList", false, Nothing,
     [](const auto&) {
       RegstPtrnText("a", 2);
       return true;
     }},
    {"SecondStringList", false, Nothing,
     [](const auto&) {
       RegstPtrnText("b", 3);
       return true;
     }},
    {"ThirdStringList", false, Nothing,
     [](const auto&) {
       RegstPtrnText("c", 0);
       return true;
     }},
    {"ProfileKey", false, Nothing,
     [](const auto&) {
       ProfileWrite1("", "PROJECT", "NEW", "s", "value");
       return true;
     }},
    {"ProfileComment", false, Nothing,
     [](const auto&) {
       ProfileWrite3("", "NEW", "KEY", "value", 30, "; note");
       return true;
     }},
    {"ProfileDeletion", false, Nothing,
     [](const auto&) {
       ProfileDelete1("", "PTRNDATA", "ZOOM");
       return true;
     }},
    {"KnownProjects", false, Nothing,
     [](const auto&) {
       ProfileRenew("/somewhere", "Else");
       return true;
     }},
    {"Generation", false, ForgetRegistered,
     [](const auto&) {
       LogicDataEdit(nullptr, nullptr);
       return true;
     }},
    {"FirstGeneration", false, ForgetGenerated,
     [](const auto&) {
       LogicDataEdit(nullptr, nullptr);
       return true;
     }},
    {"NewProject", false, EnterNewFolders,
     [](const auto&) {
       FileCalls::Pause(true);  // while the defaults are read
       ProjDataNew(nullptr, nullptr);
       return true;
     }},
    {"MovedProject", false, EnterNewFolders,
     [](const auto&) {
       ProjDataEdit(nullptr, nullptr);
       return true;
     }},
    {"Copy", true, Nothing,
     [](const auto&) { return FileCopy(ProjPath, "Plant", "prj", ProjPath, "Other", "ptn") != 0; }},
    {"NewCopy", true, Nothing,
     [](const auto&) { return FileCopy(ProjPath, "Plant", "prj", ProjPath, "Copy", "prj") != 0; }},
    {"FolderCopy", false, Nothing,
     [](const auto& folder) {
       return CopyFolder(ProjPath, folder.Path("copies/deep").c_str()) != 0;
     }},
    {"Deletion", true, Nothing,
     [](const auto&) { return FileDelete(ProjPath, "Other", "ptn") != 0; }},
    {"Renaming", true, Nothing,
     [](const auto&) { return FileRename(ProjPath, "Other", "ptn", "Else", "ptn") != 0; }},
    {"OffsetWrite", true, Nothing,
     [](const auto&) { return FileWrite(ProjPath, "Plant", "prj", "xyz", 3, 5000) != 0; }},
    {"Picture", true, Nothing,
     [](const auto& folder) {
       return WritePng(Drawable(8, 8), folder.Path("project/Bitmap/tank.bmp").c_str());
     }},
};

class WritersTest : public ProjectAtHand, public testing::WithParamInterface<Writer> {};

TEST_P(WritersTest, LeavesEveryFileWholeWhateverCallFails) {
  const Writer& writer = GetParam();
  Sweep sweep({.Begin =
                   [&] {
                     Restore();
                     Open();
                     writer.Prepare(Folder);
                   },
               .Write = [&] { return writer.Write(Folder); },
               .Image = [&] { return WithoutSnapshots(Image()); },
               .Memory = MemoryImage,
               .Reports = writer.Reports,
               .Repeats = false,
               .AlsoWhole = {// A header made of the registry as it was, which has no codes.
                             {"source/VarnixCode.h", ""},
                             // A layout that could not be looked at is kept, just in case.
                             {"project/Screen.ptn.bak", Laid["project/Screen.ptn"]},
                             {"project/Other.ptn.bak", Laid["project/Other.ptn"]}}});
  sweep.GoThroughDiskErrors();
  EXPECT_GE(sweep.Calls(), 1) << "nothing was there to fail";
  RecordProperty("calls", sweep.Calls());
  RecordProperty("runs", sweep.Runs());
}

INSTANTIATE_TEST_SUITE_P(Every, WritersTest, testing::ValuesIn(Writers),
                         [](const auto& one) { return std::string(one.param.Name); });

}  // namespace
