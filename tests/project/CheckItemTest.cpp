// Rules about single items and their place.
#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckItemTest, IncompleteItem) {
  CheckedProject project = ProjectWith({Button("Go"), FixedString(0, 0, "Ready")});
  project.Layouts[0].Items[1].UndfFlag = 1;
  EXPECT_THAT(Found(project), ElementsAre("item-incomplete Main 1 UndfFlag"));
}

TEST(CheckItemTest, ItemThatTheToolBoxWouldRefuse) {
  CheckedProject project = ProjectWith({Button("Go")});
  PTRNDATA& button = project.Layouts[0].Items[0];
  button.Parm[ButtonSlot::BorderWidth] = 0;
  EXPECT_THAT(Found(project), ElementsAre("item-invalid Main 0 Parm"));
  button.Parm[ButtonSlot::BorderWidth] = 1;
  button.ID_No = -1;
  EXPECT_THAT(Found(project), ElementsAre("item-invalid Main 0 ID_No"));
  button.ID_No = 9999;
  EXPECT_THAT(Found(project), IsEmpty());
}

TEST(CheckItemTest, TwoPointItemMayEndAtTheEdge) {
  CheckedProject project = ProjectWith({CheckedItem(TypeFrame, 0, 0, 200, 100)});
  PTRNDATA& frame = project.Layouts[0].Items[0];
  EXPECT_THAT(Found(project), IsEmpty());
  frame.Point2 = {201, 100};
  EXPECT_THAT(Found(project), ElementsAre("item-outside Main 0 Point2"));
  frame.Point2 = {200, 101};
  EXPECT_THAT(Found(project), ElementsAre("item-outside Main 0 Point2"));
  frame.Point1 = {-1, 0};
  EXPECT_THAT(Found(project), ElementsAre("item-outside Main 0 Point1")) << "told once";
}

TEST(CheckItemTest, AnchorOutside) {
  CheckedProject project = ProjectWith({FixedString(10, -1, "Ready")});
  project.Layouts[0].Items[0].Point2 = {999, 999};  // means nothing for a one-point item
  EXPECT_THAT(Found(project), ElementsAre("item-outside Main 0 Point1"));
  project.Layouts[0].Items[0].Point1.y = 0;
  EXPECT_THAT(Found(project), IsEmpty());
}

}  // namespace
