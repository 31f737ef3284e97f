// Rules about layouts that others refer to, and about layout files.
#include <set>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckTest, PlainProjectHasNoFindings) {
  EXPECT_THAT(Found(PlainProject()), IsEmpty());
}

TEST(CheckTest, CodesAreDistinctAndExplained) {
  std::set<std::string> codes;
  for (const CheckRule& rule : CheckRules()) {
    EXPECT_TRUE(codes.insert(rule.Code).second) << rule.Code;
    EXPECT_STRNE(rule.Meaning, "") << rule.Code;
  }
}

TEST(CheckTest, FindingsComeProjectFirstThenByLayoutAndItem) {
  CheckedProject project = ProjectWith({Button("Go"), Button("Go")});
  project.Layouts[0].Items[0].UndfFlag = 1;
  project.Layouts[0].Items[1].Point1.x = -1;
  project.Layouts[0].Items[1].UndfFlag = 1;
  std::strcpy(project.Settings.PtrnStop, "Gone");
  EXPECT_THAT(Found(project),
              ElementsAre("stop-missing - - PtrnStop", "item-incomplete Main 0 UndfFlag",
                          "item-incomplete Main 1 UndfFlag", "item-outside Main 1 Point1"));
}

TEST(CheckScreenTest, OpenedScreenMustExist) {
  CheckedProject project = ProjectWith({Button("Go")});
  PTRNDATA& button = project.Layouts[0].Items[0];
  for (gint type = 5; type <= 8; ++type) {
    button.ID_Type = type;
    std::strcpy(button.ID_Name, "Gone");
    EXPECT_THAT(Found(project), ElementsAre("screen-missing Main 0 ID_Name")) << type;
    button.ID_Name[0] = '\0';
    EXPECT_THAT(Found(project), ElementsAre("screen-missing Main 0 ID_Name")) << type;
    std::strcpy(button.ID_Name, "Main");
    EXPECT_THAT(Found(project), IsEmpty()) << type;
  }
  // The other processing types open nothing by name.
  for (const gint type : {0, 9, 13, 16}) {
    button.ID_Type = type;
    std::strcpy(button.ID_Name, "Gone");
    EXPECT_THAT(Found(project), IsEmpty()) << type;
  }
}

TEST(CheckScreenTest, StartLayoutMustBeSetAndExist) {
  CheckedProject project = PlainProject();
  std::strcpy(project.Settings.PtrnStart, "Gone");
  EXPECT_THAT(Found(project), ElementsAre("start-missing - - PtrnStart"));
  project.Settings.PtrnStart[0] = '\0';
  EXPECT_THAT(Found(project), ElementsAre("start-missing - - PtrnStart"));
  project.Layouts.clear();
  EXPECT_THAT(Found(project), IsEmpty()) << "nothing to start with yet";
}

TEST(CheckScreenTest, StopLayoutMayBeUnsetButMustExist) {
  CheckedProject project = PlainProject();
  std::strcpy(project.Settings.PtrnStop, "Gone");
  EXPECT_THAT(Found(project), ElementsAre("stop-missing - - PtrnStop"));
  std::strcpy(project.Settings.PtrnStop, "Main");
  EXPECT_THAT(Found(project), IsEmpty());
}

TEST(CheckFileTest, UnreadableLayoutStillBearsItsName) {
  CheckedProject project = PlainProject();
  project.Unreadable = {"Damaged"};
  std::strcpy(project.Settings.PtrnStop, "Damaged");
  EXPECT_THAT(Found(project), ElementsAre("layout-unreadable Damaged - "));
}

TEST(CheckFileTest, DroppedItems) {
  CheckedProject project = PlainProject();
  project.Layouts[0].Dropped = 2;
  const std::vector<Finding> findings = CheckProject(project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_STREQ(findings[0].Code, "type-unknown");
  EXPECT_EQ(findings[0].Message, "2 items of no known type are left out");
}

}  // namespace
