// Commands of an open layout that are given without one, as menus offer them after a cancelled new
// layout: each only ends the editing.
#include <gmock/gmock.h>

#include <cstring>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

struct Command {
  const char* Name;
  void (*Run)();
};

void PrintTo(const Command& command, std::ostream* out) {
  *out << command.Name;
}

const Command Commands[] = {
    {"Settings", [] { PtrnDataEdit(nullptr, nullptr); }},
    {"Undo", [] { PtrnEditBack(nullptr, nullptr); }},
    {"Register", [] { ToolBoxButn(nullptr, Entry(0)); }},
    {"Delete", [] { ToolBoxButn(nullptr, Entry(1)); }},
    {"Cancel", [] { ToolBoxButn(nullptr, Entry(2)); }},
    {"Copy", [] { ToolBoxButn(nullptr, Entry(3)); }},
    {"Redraw", [] { ToolBoxButn(nullptr, Entry(4)); }},
    {"RegisterItself", [] { EXPECT_EQ(ToolButn_OK(), 0); }},
    {"DeleteItself", ToolButn_Delt},
    {"CopyItself", ToolButn_Copy},
    {"AreaCancel", [] { AreaBoxButn(nullptr, Entry(0)); }},
    {"AreaDelete", [] { AreaBoxButn(nullptr, Entry(1)); }},
    {"AreaMove", [] { AreaBoxButn(nullptr, Entry(2)); }},
    {"AreaCopy", [] { AreaBoxButn(nullptr, Entry(3)); }},
    {"AreaDeleteItself", AreaButn_Delt},
    {"AreaMoveItself", AreaButn_Move},
    {"AreaCopyItself", AreaButn_Copy},
};

class NoLayoutTest : public EditFixture, public testing::WithParamInterface<Command> {
 protected:
  NoLayoutTest() {
    Folder.Write("project/Screen.ptn", "the layout that was open before");
    Folder.Write("project/Plant.prj", std::string(808, 'p'));
    LeaveEverythingBehind();
    ConfirmEveryDialog();
  }

 private:
  // A new layout was cancelled: its header and its history are those of no layout, yet an item is
  // in hand and an area is spanned.
  static void LeaveEverythingBehind() {
    PtrnDataNew(nullptr, Entry(0));
    ASSERT_EQ(PtrnFlag, 0);
    PtrnSaveCount = 1;
    PtrnData = MakeValidItem(TypeRectangle, 10, 20, 50, 60);
    PtrnNo = 0;
    PtrnType = TypeRectangle;
    PtrnMode = ModeSelected;
    AreaPoint1 = {90, 90};
    AreaPoint2 = {0, 0};
    Screen.Take();
  }
  static void ConfirmEveryDialog() {
    Screen.LayoutSettings = [] {
      CopyText(EditHedr.PtrnName1, "Screen");
      EditHedr.Parm2[ViewSlot::StartScreen] = 1;
      EditPtrnData_Renew();
      return gint{1};
    };
    Screen.CopyMove = [](DLGPARM& parm) {
      parm = {1, 1, 1, 1};
      return gint{1};
    };
  }
};

TEST_P(NoLayoutTest, ACommandOfAnOpenLayoutOnlyEndsTheEditing) {
  const PTRNHEDR header = PtrnHedr;
  GetParam().Run();
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0"));
  EXPECT_EQ(PtrnFlag, 0);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(SnapshotCount(), 0);
  EXPECT_EQ(AreaPoint1.x, 90);
  EXPECT_STREQ(PtrnName, "Screen");
  EXPECT_EQ(std::memcmp(&PtrnHedr, &header, sizeof header), 0);
  EXPECT_STREQ(ProjData.PtrnStart, "");
  EXPECT_EQ(Folder.Read("project/Plant.prj"), std::string(808, 'p'));
  EXPECT_FALSE(Folder.Exists("project/PtrnCode"));
  // And nothing is left that a save would write over the layout that was open before.
  PtrnDataSave(nullptr, nullptr);
  EXPECT_EQ(Folder.Read("project/Screen.ptn"), "the layout that was open before");
}

INSTANTIATE_TEST_SUITE_P(Every, NoLayoutTest, testing::ValuesIn(Commands),
                         [](const auto& one) { return std::string(one.param.Name); });

}  // namespace
