#include "tests/edit/EditFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/edit/CopyMove.h"

namespace {

void ResetEditing() {
  PtrnMode = ModeIdle;
  PtrnType = 0;
  PtrnNo = -1;
  PtrnPost = 0;
  PtrnPoint1 = PtrnPoint2 = PtrnPoint3 = AreaPoint1 = AreaPoint2 = {0, 0};
  std::fill(std::begin(PtrnUnSlct), std::end(PtrnUnSlct), 0);
  PtrnUndef = 0;
  std::fill(std::begin(FontHeight), std::end(FontHeight), 1);
  ColorCode = 0;
  Language = 0;
  PtrnData = {};
  CopyMoveParm = {};
}

void ResetLayout() {
  PtrnHedr = {};
  PtrnHedr.Parm1[HedrSlot::Width] = 200;
  PtrnHedr.Parm1[HedrSlot::Height] = 100;
  PtrnHedr.Parm2[ViewSlot::Zoom] = Zoom100;
  CopyText(PtrnHedr.PtrnName1, "Screen");
  EditHedr = {};
  CopyText(PtrnName, "Screen");
  PtrnFlag = 1;
  IntPtrnData();
}

void ResetProject(const std::string& folder) {
  ProjFlag = 1;
  CopyText(ProjName, "Plant");
  CopyText(ProjPath, folder);
  CopyText(BmapPath, folder + "/Bitmap");
  ProjData = {};
  EditData = {};
  CopyText(EditName, "");
  CopyText(EditPath, "");
}

}  // namespace

EditFixture::EditFixture() {
  std::filesystem::create_directories(ProgramFolder);
  std::filesystem::create_directories(ProjectFolder);
  CopyText(PathName, ProgramFolder);
  CopyText(PtrnSavePath, "");
  ResetProject(ProjectFolder);
  ResetLayout();
  ResetEditing();
  PtrnSaveInit();
  Screen = {};
}

EditFixture::~EditFixture() {
  ExtPtrnData();
}

void EditFixture::WriteProfile(std::string_view text) const {
  Folder.Write("program/VarnixMaster.ini", text);
}

int EditFixture::SnapshotCount() const {
  const std::filesystem::directory_iterator folder(PtrnSavePath);
  return static_cast<int>(std::distance(begin(folder), end(folder)));
}

PTRNDATA MakeItem(gint type, gint x1, gint y1, gint x2, gint y2) {
  PTRNDATA item{};
  item.Type = type;
  item.Point1 = {x1, y1};
  item.Point2 = {x2, y2};
  item.Parm[0] = x1;
  item.Parm[1] = y1;
  item.Parm[2] = x2;
  item.Parm[3] = y2;
  return item;
}

PTRNDATA MakeValidItem(gint type, gint x1, gint y1, gint x2, gint y2) {
  PTRNDATA item = MakeItem(type, x1, y1, x2, y2);
  CopyText(item.Text1, "text");
  CopyText(item.ID_Code, "CODE");
  switch (type) {
    case TypeLine:
    case TypeRectangle:
    case TypeEllipse:
      item.Parm[15] = 1;
      break;
    case TypeBarGraph:
    case TypeSpinButton:
      item.Parm[17] = 100;
      break;
    case TypeVariableString:
    case TypeNumeric:
      item.Parm[16] = 8;
      break;
    case TypeButton:
      item.Parm[16] = 2;
      break;
    case TypeScrollBar:
      item.Parm[16] = 10;
      item.Parm[17] = 100;
      item.Parm[20] = 10;
      break;
    default:
      break;
  }
  return item;
}

PTRNDATA Stored(gint no) {
  PTRNDATA item{};
  EXPECT_EQ(GetPtrnData(no, &item), 1) << "no item " << no;
  return item;
}

std::string PointsOf(const PTRNDATA& item) {
  std::ostringstream text;
  text << '(' << item.Point1.x << ',' << item.Point1.y << ")-(" << item.Point2.x << ','
       << item.Point2.y << ')';
  return text.str();
}

std::vector<gint> PointParmsOf(const PTRNDATA& item) {
  return {item.Parm[0], item.Parm[1], item.Parm[2], item.Parm[3]};
}

gpointer Entry(gint number) {
  return GINT_TO_POINTER(number);
}

void Press(gint x, gint y) {
  POINT point{x, y};
  LButtonDown(nullptr, &point);
}

void Move(gint x, gint y) {
  POINT point{x, y};
  MouseMove(nullptr, &point);
}

void Release(gint x, gint y) {
  POINT point{x, y};
  LButtonUp(nullptr, &point);
}
