#include <gtest/gtest.h>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

using nlohmann::json;

// A layout file whose numbers name no zoom, grid step, font, colour or mark.
class OddValues : public RoadTest {
 protected:
  void WriteOddLayout() {
    Look([] {
      IntPtrnData();
      PtrnHedr.Parm1[HedrSlot::Kind] = 2;
      PtrnHedr.Parm1[HedrSlot::Width] = 320;
      PtrnHedr.Parm1[HedrSlot::Height] = 240;
      PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = 777;
      PtrnHedr.Parm1[HedrSlot::TitleFont] = -9;
      PtrnHedr.Parm2[ViewSlot::Zoom] = 99;
      PtrnHedr.Parm2[ViewSlot::GridShown] = 5;
      PtrnHedr.Parm2[ViewSlot::GridX] = 40;
      PtrnHedr.Parm2[ViewSlot::GridY] = -3;
      PtrnHedr.Parm2[ViewSlot::GridColour] = 1000;
      CopyText(PtrnHedr.PtrnName1, EucFromUtf8(LayoutName).value());
      PTRNDATA box = BoxItem(20, 20, 100, 80, 8);
      box.Parm[ShapeSlot::FillColour] = 5000;
      box.Parm[ShapeSlot::FillColour + 1] = -44;
      AddPtrnData(&box);
      PTRNDATA text = BoxItem(150, 100, 0, 0, 8);
      text.Type = TypeFixedString;
      text.Parm[TextSlot::Font] = 63;
      CopyText(text.Text1, "A");
      AddPtrnData(&text);
      PTRNDATA mark = BoxItem(200, 40, 260, 90, 8);
      mark.Type = TypeMark;
      mark.Parm[MarkSlot::Mark] = 4000;
      AddPtrnData(&mark);
      PtrnFileWrite(ProjPath, PtrnHedr.PtrnName1);
      ExtPtrnData();
    });
  }

  static void OpenIt() {
    ChooseMenu(MenuBar(), {"ファイル", "レイアウトを開く"});
    const Panel dialog("レイアウトを開く");
    ClickRow(dialog.Window(), LayoutName);
    dialog.Press(" 開く ");
    EXPECT_TRUE(See([] { return PtrnFlag == 1 && GetPtrnCount() == 3; }));
    EXPECT_TRUE(See([] { return gtk_widget_get_allocated_width(PtrnDraw) >= 320; }));
    Settle();
  }
};

TEST_F(OddValues, StayAsTheyAreThroughAnEdit) {
  Play([this] {
    WriteOddLayout();
    const json before = Saved(LayoutName);
    OpenIt();
    ClickCanvas(28, 20);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 0; }));
    Panel panel("矩形");
    panel.Enter(Cell{"線幅"}, 4);
    panel.Press(" 登録 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    SaveByKey();
    json expected = before;
    expected["Parm2"][0] = 2;  // the zoom comes from the profile
    expected["Parm2"][1] = 0;  // a layout opens without its grid
    expected["Items"][0]["Parm"][15] = 4;
    EXPECT_EQ(Saved(LayoutName), expected);
  });
}

}  // namespace
