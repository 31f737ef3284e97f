// Rules about single items and their place.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckItemTest, IncompleteItem) {
  CheckedProject project = ProjectWith({Button("Go"), FixedString(0, 0, "Ready")});
  project.Layouts[0].Items[1].UndfFlag = 1;
  EXPECT_THAT(Found("item-incomplete", project), ElementsAre("Main 1 UndfFlag"));
}

TEST(CheckItemTest, ItemThatTheToolBoxWouldRefuse) {
  CheckedProject project = ProjectWith({Button("Go")});
  PTRNDATA& button = project.Layouts[0].Items[0];
  button.Parm[ButtonSlot::BorderWidth] = 0;
  EXPECT_THAT(Found("item-invalid", project), ElementsAre("Main 0 BorderWidth"));
  button.Parm[ButtonSlot::BorderWidth] = 1;
  button.ID_No = -1;
  EXPECT_THAT(Found("item-invalid", project), ElementsAre("Main 0 ID_No"));
  button.ID_No = 9999;
  EXPECT_THAT(Found("item-invalid", project), IsEmpty());
}

TEST(CheckItemTest, RefusedItemNamesTheParameterThatIsMeant) {
  const struct {
    gint Type;
    gint Slot;
    gint Value;
    const char* Field;
  } cases[] = {
      {TypeFrame, FrameSlot::TopWidth, -1, "TopWidth"},
      {TypeFrame, FrameSlot::RightWidth, -1, "RightWidth"},
      {TypeRectangle, ShapeSlot::Width, 0, "Width"},
      {TypeLine, LineSlot::Width, 0, "Width"},
      {TypeBarGraph, BarSlot::BarWidth, -1, "BarWidth"},
      {TypeBarGraph, BarSlot::OutlineWidth, -1, "OutlineWidth"},
      {TypeBarGraph, BarSlot::LowerLimit, 1, "LowerLimit"},
      {TypeNumeric, TextSlot::Length, 0, "Length"},
      {TypeNumeric, TextSlot::Decimals, -1, "Decimals"},
      {TypeNumeric, TextSlot::Decimals, 4, "Decimals"},
      {TypeButton, ButtonSlot::TextOffset, -1, "TextOffset"},
      {TypeScrollBar, ScrollSlot::FrameWidth, -1, "FrameWidth"},
      {TypeScrollBar, ScrollSlot::DisplayAmount, 0, "DisplayAmount"},
      {TypeScrollBar, ScrollSlot::DataAmount, -1, "DataAmount"},
      {TypeScrollBar, ScrollSlot::DoubleStep, -1, "DoubleStep"},
      {TypeScrollBar, ScrollSlot::DoubleArrows, 1, "DoubleStep"},
      {TypeScrollBar, ScrollSlot::PageStep, 0, "PageStep"},
  };
  for (const auto& [type, slot, value, field] : cases) {
    CheckedProject project = ProjectWith({CheckedItem(type, 10, 10, 50, 40)});
    PTRNDATA& item = project.Layouts[0].Items[0];
    std::strcpy(item.ID_Code, "TEMP");
    std::strcpy(item.Text1, "Go");
    switch (type) {
      case TypeNumeric:
        item.Parm[TextSlot::Length] = 4;
        break;
      case TypeScrollBar:
        item.Parm[ScrollSlot::DisplayAmount] = item.Parm[ScrollSlot::PageStep] = 1;
        break;
      default:
        item.Parm[LineSlot::Width] = 1;
    }
    if (type == TypeButton) item.Parm[ButtonSlot::BorderWidth] = 1;
    item.Parm[slot] = value;
    EXPECT_THAT(Found("item-invalid", project), testing::Contains("Main 0 " + std::string(field)))
        << "type " << type << ", slot " << slot;
  }
}

TEST(CheckItemTest, TwoPointItemMayEndAtTheEdge) {
  CheckedProject project = ProjectWith({CheckedItem(TypeFrame, 0, 0, 200, 100)});
  PTRNDATA& frame = project.Layouts[0].Items[0];
  EXPECT_THAT(Found("item-outside", project), IsEmpty());
  frame.Point2 = {201, 100};
  EXPECT_THAT(Found("item-outside", project), ElementsAre("Main 0 Point2"));
  frame.Point2 = {200, 101};
  EXPECT_THAT(Found("item-outside", project), ElementsAre("Main 0 Point2"));
  frame.Point1 = {-1, 0};
  EXPECT_THAT(Found("item-outside", project), ElementsAre("Main 0 Point1")) << "told once";
}

TEST(CheckItemTest, AnchorOutside) {
  CheckedProject project = ProjectWith({FixedString(10, -1, "Ready")});
  project.Layouts[0].Items[0].Point2 = {999, 999};  // means nothing for a one-point item
  EXPECT_THAT(Found("item-outside", project), ElementsAre("Main 0 Point1"));
  project.Layouts[0].Items[0].Point1.y = 0;
  EXPECT_THAT(Found("item-outside", project), IsEmpty());
}

}  // namespace
