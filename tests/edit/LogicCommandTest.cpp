// The menu command of logic generation.
#include <gmock/gmock.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class LogicCommandTest : public EditFixture {};

TEST_F(LogicCommandTest, AsksForAProgramFolder) {
  ProjData.ProgPath[0] = '\0';
  LogicDataEdit(nullptr, nullptr);
  EXPECT_THAT(
      Screen.Take(),
      ElementsAre("Dlg_MessageBox ロジック編集|プログラム領域へのパスが設定されていません。|"
                  "プロジェクト修正／全般で設定してください|1"));
  EXPECT_FALSE(Folder.Exists("project/PtrnCode"));
}

TEST_F(LogicCommandTest, RunsAllFourSteps) {
  CopyText(ProjData.ProgPath, Folder.Path("source"));
  std::filesystem::create_directories(Folder.Path("source"));
  LogicDataEdit(nullptr, nullptr);
  EXPECT_EQ(Folder.Read("project/PtrnFlag"), std::string(100, '\0'));
  EXPECT_EQ(Folder.Read("source/VarnixCode.h"), "#define     SYSTEM                  0\n");
  EXPECT_THAT(Folder.Read("source/Plant.cpp"), HasSubstr("GetPtrnWnd"));
  EXPECT_THAT(Folder.Read("source/Plant.ini"), HasSubstr("[VARNIXPACK]"));
  EXPECT_TRUE(Screen.Take().empty());
}

}  // namespace
