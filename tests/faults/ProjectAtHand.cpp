#include "tests/faults/ProjectAtHand.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"

namespace {

constexpr const char* Profile =
    "[PROJECT]\nWINDOW=800,600\n[PTRNDATA]\nZOOM=2\n[FONT]\nFONTNAME0=small,-font-small\n";

template <typename Value>
void AppendBytes(std::string& image, const Value& value) {
  image.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void WriteOther() {
  IntPtrnData();
  PTRNDATA item = MakeValidItem(TypeButton, 20, 20, 60, 40);
  AddPtrnData(&item);
  ASSERT_TRUE(WritePtrnFile(ProjPath, "Other"));
}

void WriteScreen() {
  IntPtrnData();
  PTRNDATA item = MakeValidItem(TypeLine, 10, 10, 50, 60);
  AddPtrnData(&item);
  CopyText(PtrnHedr.PtrnName1, "Screen");
  ASSERT_TRUE(WritePtrnFile(ProjPath, "Screen"));
}

}  // namespace

ProjectAtHand::ProjectAtHand() {
  LayOut();
  Laid = Image();
  Open();
}

ProjectAtHand::~ProjectAtHand() {
  FileCalls::Heal();
}

void ProjectAtHand::LayOut() const {
  for (const char* folder : {"project/Bitmap", "source", "program/VarnixData/Bitmap"}) {
    std::filesystem::create_directories(Folder.Path(folder));
  }
  WriteProfile(Profile);
  Folder.Write("project/Bitmap/tank.bmp", "a picture");
  Folder.Write("program/VarnixData/Bitmap/logo.bmp", "a logo");
  WriteOther();
  WriteScreen();
  std::filesystem::create_directories(Folder.Path("program/VarnixData/Ptrn"));
  std::filesystem::copy_file(Folder.Path("project/Screen.ptn"),
                             Folder.Path("program/VarnixData/Ptrn/Template.ptn"));
  CopyText(ProjData.ProgPath, SourceFolder);
  ColrData[7] = {1, 2, 3};
  MarkData[9].mark[0] = 0x5A;
  SaveColrFile();
  SaveMarkFile();
  ASSERT_EQ(ProjFileWrite(ProjPath, ProjName), 1);
  LogicDataEdit(nullptr, nullptr);
}

void ProjectAtHand::Open() const {
  CopyText(ProjName, "Plant");
  CopyText(ProjPath, ProjectFolder);
  SetBmapPath();
  ProjFlag = 1;
  ASSERT_EQ(ProjFileRead(ProjPath, ProjName), 1);
  LoadColrFile();
  LoadMarkFile();
  PtrnFlag = 0;
  OpenScreen();
  ASSERT_EQ(PtrnFlag, 1);
  ASSERT_EQ(GetPtrnCount(), 1);
  PtrnData = {};
  EditData = {};
  Screen = {};
}

void ProjectAtHand::OpenScreen() {
  ::Screen.LayoutOpen = [] {
    CopyText(PtrnName, "Screen");
    return gint{1};
  };
  PtrnDataOpen(nullptr, nullptr);
}

void ProjectAtHand::AddItem(const gchar* code) {
  PtrnData = MakeValidItem(TypeBarGraph, 10, 20, 50, 60);
  CopyText(PtrnData.ID_Code, code);
  CopyText(PtrnData.Text1, code);
  PtrnData.RegstFlag = 1;
  PtrnData.CheckFlag = 1;
  PtrnNo = -1;
  ToolBoxButn(nullptr, Entry(0));
}

std::string MemoryImage() {
  std::string image;
  AppendBytes(image, ProjFlag);
  AppendBytes(image, ProjData);
  image.append(ProjName).append("\n").append(ProjPath).append("\n");
  AppendBytes(image, ColrData);
  AppendBytes(image, MarkData);
  AppendBytes(image, PtrnFlag);
  PTRNHEDR header = PtrnHedr;
  // Counted anew whenever the layout is written.
  header.Version = header.DataCount = header.TextSize = header.UndfFlag = 0;
  AppendBytes(image, header);
  image.append(PtrnName).append("\n");
  for (gint no = 0; no < GetPtrnCount(); ++no) AppendBytes(image, *ViewPtrnData(no));
  return image;
}
