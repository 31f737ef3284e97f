// Rules about layouts that others refer to, and about layout files.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckScreenTest, OpenedScreenMustExist) {
  CheckedProject project = ProjectWith({Button("Go")});
  PTRNDATA& button = project.Layouts[0].Items[0];
  for (gint type = 5; type <= 8; ++type) {
    button.ID_Type = type;
    std::strcpy(button.ID_Name, "Gone");
    EXPECT_THAT(Found("screen-missing", project), ElementsAre("Main 0 ID_Name")) << type;
    button.ID_Name[0] = '\0';
    EXPECT_THAT(Found("screen-missing", project), ElementsAre("Main 0 ID_Name")) << type;
    std::strcpy(button.ID_Name, "Main");
    EXPECT_THAT(Found("screen-missing", project), IsEmpty()) << type;
  }
  // The other processing types open nothing by name.
  for (const gint type : {0, 9, 13, 16}) {
    button.ID_Type = type;
    std::strcpy(button.ID_Name, "Gone");
    EXPECT_THAT(Found("screen-missing", project), IsEmpty()) << type;
  }
}

TEST(CheckScreenTest, StartLayoutMustBeSetAndExist) {
  CheckedProject project = PlainProject();
  std::strcpy(project.Settings.PtrnStart, "Gone");
  EXPECT_THAT(Found("start-missing", project), ElementsAre("- - PtrnStart"));
  project.Settings.PtrnStart[0] = '\0';
  EXPECT_THAT(Found("start-missing", project), ElementsAre("- - PtrnStart"));
  project.Layouts.clear();
  EXPECT_THAT(Found("start-missing", project), IsEmpty()) << "nothing to start with yet";
}

TEST(CheckScreenTest, StopLayoutMayBeUnsetButMustExist) {
  CheckedProject project = PlainProject();
  std::strcpy(project.Settings.PtrnStop, "Gone");
  EXPECT_THAT(Found("stop-missing", project), ElementsAre("- - PtrnStop"));
  std::strcpy(project.Settings.PtrnStop, "Main");
  EXPECT_THAT(Found("stop-missing", project), IsEmpty());
}

TEST(CheckScreenTest, UnreadableLayoutStillBearsItsName) {
  CheckedProject project = ProjectWith({Button("Go")});
  project.Unreadable = {"Damaged"};
  std::strcpy(project.Settings.PtrnStart, "Damaged");
  std::strcpy(project.Settings.PtrnStop, "Damaged");
  project.Layouts[0].Items[0].ID_Type = 8;
  std::strcpy(project.Layouts[0].Items[0].ID_Name, "Damaged");
  for (const char* rule : {"start-missing", "stop-missing", "screen-missing"}) {
    EXPECT_THAT(Found(rule, project), IsEmpty()) << rule;
  }
}

TEST(CheckFileTest, UnreadableLayouts) {
  CheckedProject project = PlainProject();
  project.Unreadable = {"Damaged", "Other"};
  EXPECT_THAT(Found("layout-unreadable", project), ElementsAre("Damaged - ", "Other - "));
}

TEST(CheckFileTest, DroppedItems) {
  CheckedProject project = PlainProject();
  project.Layouts[0].Dropped = 2;
  const std::vector<Finding> findings = FindingsOf("type-unknown", project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_STREQ(findings[0].Code, "type-unknown");
  EXPECT_EQ(findings[0].Message, "2 items of no known type are left out");
}

}  // namespace
