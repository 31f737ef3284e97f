// What the settings of a project and of a layout are held against, and what a layout's settings
// change in its project.
#include <gmock/gmock.h>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/ItemSlots.h"
#include "layout/LayoutSettings.h"
#include "layout/Store.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

std::string Refused(const std::string& message) {
  return "Dlg_MessageBox 入力エラー|" + message + "||1";
}

class SettingsTest : public EditFixture {
 protected:
  SettingsTest() {
    EditData = {};
    CopyText(EditName, "Plant");
    CopyText(EditPath, "/plant");
    CopyText(EditData.ProgPath, "/plant/program");
    EditHedr = {};
    CopyText(EditHedr.PtrnName1, "Tank");
    EditHedr.Parm1[HedrSlot::Width] = EditHedr.Parm1[HedrSlot::Height] = 1;
    ProjFileWrite(ProjPath, ProjName);  // drops screens that no layout bears
    CopyText(ProjData.PtrnStart, "Tank");
    CopyText(ProjData.PtrnStop, "Other");
  }
  // Start and stop screen in the project's file.
  std::vector<std::string> StoredScreens() const {
    PROJFILE file;
    EXPECT_EQ(FileRead(ProjPath, ProjName, "prj", &file, sizeof file, 0), 1);
    return {file.Data.PtrnStart, file.Data.PtrnStop};
  }
};

TEST_F(SettingsTest, AProjectThatLacksNothingIsAccepted) {
  EXPECT_EQ(CheckProjData(), 1);
  EXPECT_THAT(Screen.Take(), ElementsAre());
}

TEST_F(SettingsTest, TheFirstFaultOfAProjectIsTold) {
  EditData.Parm3[6] = 100;
  EXPECT_EQ(CheckProjData(), 0);
  EditData.Parm2[5] = 1;
  EXPECT_EQ(CheckProjData(), 0);
  EditData.ProgPath[0] = '\0';
  EXPECT_EQ(CheckProjData(), 0);
  EXPECT_THAT(Screen.Take(),
              ElementsAre(Refused("外形枠幅 (設定範囲 0 〜 99)"),
                          Refused("ロゴマーク名称が設定されていません。"),
                          Refused("ロジックデータを格納するフォルダーが設定されていません。")));
}

TEST_F(SettingsTest, ALayoutOfOneDotWithATitleIsAccepted) {
  EXPECT_EQ(EditPtrnData_Check(), 1);
  EXPECT_THAT(Screen.Take(), ElementsAre());
}

TEST_F(SettingsTest, TheFirstFaultOfALayoutIsTold) {
  EditHedr.Parm1[HedrSlot::ButtonAreaHeight] = -1;
  EXPECT_EQ(EditPtrnData_Check(), 0);
  EditHedr.Parm1[HedrSlot::Height] = 0;
  EXPECT_EQ(EditPtrnData_Check(), 0);
  EXPECT_THAT(Screen.Take(),
              ElementsAre(Refused("ボタン領域の高さ"), Refused("Ｙ方向 領域の大きさ")));
}

TEST_F(SettingsTest, AScreenThatIsMarkedNoMoreIsTakenFromTheProject) {
  EXPECT_EQ(EditPtrnData_Renew(), 1);
  EXPECT_THAT(StoredScreens(), ElementsAre("", "Other"));
}

TEST_F(SettingsTest, AScreenThatIsMarkedIsTheProjectsOne) {
  EditHedr.Parm2[ViewSlot::StartScreen] = EditHedr.Parm2[ViewSlot::StopScreen] = 1;
  EXPECT_EQ(EditPtrnData_Renew(), 1);
  EXPECT_THAT(StoredScreens(), ElementsAre("Tank", "Tank"));
}

TEST_F(SettingsTest, AMissingProjectFileTakesNoScreens) {
  FileDelete(ProjPath, ProjName, "prj");
  EXPECT_NE(EditPtrnData_Renew(), 1);
}

}  // namespace
