// What the rule about vanishing colours takes for the background: to the dot, by type, and by
// place.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Whether a black text whose first point lies there cannot be told from what lies behind it.
bool BlackVanishesAt(CheckedProject project, gint x, gint y) {
  project.Layouts[0].Items.push_back(FixedString(x, y, "A"));
  const std::string text = "Main " + std::to_string(project.Layouts[0].Items.size() - 1);
  const std::vector<std::string> found = Found("colour-vanishes", project);
  EXPECT_LE(found.size(), 1u);
  return found == std::vector<std::string>{text + " TextColour"};
}

// A black box on the white work area.
PTRNDATA BlackBox(gint x1, gint y1, gint x2, gint y2) {
  PTRNDATA item = CheckedItem(TypeRectangle, x1, y1, x2, y2);
  item.Parm[ShapeSlot::Filled] = 1;
  return item;
}

TEST(CheckBackgroundTest, ItemCoversFromItsLeftTopDotToBeforeItsRightBottomOne) {
  // Drawn in either direction.
  for (const PTRNDATA& box : {BlackBox(50, 30, 90, 70), BlackBox(90, 70, 50, 30)}) {
    const CheckedProject project = ProjectWith({box});
    EXPECT_FALSE(BlackVanishesAt(project, 49, 50)) << "left of it";
    EXPECT_TRUE(BlackVanishesAt(project, 50, 50)) << "its left edge";
    EXPECT_TRUE(BlackVanishesAt(project, 89, 50));
    EXPECT_FALSE(BlackVanishesAt(project, 90, 50)) << "its right edge";
    EXPECT_FALSE(BlackVanishesAt(project, 60, 29)) << "above it";
    EXPECT_TRUE(BlackVanishesAt(project, 60, 30)) << "its upper edge";
    EXPECT_TRUE(BlackVanishesAt(project, 60, 69));
    EXPECT_FALSE(BlackVanishesAt(project, 60, 70)) << "its lower edge";
  }
}

TEST(CheckBackgroundTest, NextItemBehindCountsAtTheEdge) {
  PTRNDATA inner = BlackBox(50, 30, 90, 70);
  inner.Parm[ShapeSlot::FillColour] = inner.Parm[ShapeSlot::FillColour + 1] = White;
  // Frames lie behind rectangles.
  const CheckedProject project = ProjectWith({inner, CheckedItem(TypeFrame, 10, 10, 150, 90)});
  EXPECT_FALSE(BlackVanishesAt(project, 89, 69));
  EXPECT_TRUE(BlackVanishesAt(project, 90, 69));
  EXPECT_TRUE(BlackVanishesAt(project, 89, 70));
}

TEST(CheckBackgroundTest, AreasOfTheLayoutMeetBetweenTwoRows) {
  CheckedProject project = PlainProject();
  auto& parm = project.Layouts[0].Header.Parm1;
  parm[HedrSlot::TitleHeight] = 30;
  parm[HedrSlot::ButtonAreaHeight] = 20;
  const struct {
    gint Slot;
    gint First;
    gint Last;
  } areas[] = {{HedrSlot::TitleAreaColour, 0, 29},
               {HedrSlot::WorkAreaColour, 30, 79},
               {HedrSlot::ButtonAreaColour, 80, 99}};
  // Each area alone is black in its turn.
  for (const auto& area : areas) {
    for (const auto& other : areas) parm[other.Slot] = &other == &area ? Black : White;
    parm[HedrSlot::TitleColour] = Grey;
    for (const gint y : {0, 29, 30, 79, 80, 99}) {
      EXPECT_EQ(BlackVanishesAt(project, 10, y), y >= area.First && y <= area.Last)
          << "row " << y << ", black from " << area.First << " to " << area.Last;
    }
  }
}

TEST(CheckBackgroundTest, NothingIsKnownAboveAndBelowTheLayout) {
  CheckedProject project = PlainProject();
  project.Layouts[0].Header.Parm1[HedrSlot::WorkAreaColour] = Black;
  EXPECT_TRUE(BlackVanishesAt(project, 10, 99));
  EXPECT_FALSE(BlackVanishesAt(project, 10, 100));
  EXPECT_FALSE(BlackVanishesAt(project, 10, -1));
}

TEST(CheckBackgroundTest, PictureBehindIsNoOneColour) {
  CheckedProject project = PlainProject();
  project.Layouts[0].Header.Parm1[HedrSlot::WorkAreaColour] = Black;
  std::strcpy(project.Layouts[0].Header.BmapName, "good.png");
  EXPECT_FALSE(BlackVanishesAt(project, 10, 50));
}

TEST(CheckBackgroundTest, WhatATypeHides) {
  // On black: the text vanishes where the item lets it through or is black itself.
  CheckedProject project = PlainProject();
  project.Layouts[0].Header.Parm1[HedrSlot::WorkAreaColour] = Black;
  for (const gint type : {TypeEllipse, TypeBarGraph, TypeBitmap, TypeScrollBar, TypeSpinButton}) {
    project.Layouts[0].Items = {CheckedItem(type, 0, 0, 100, 90)};
    PTRNDATA& item = project.Layouts[0].Items[0];
    if (type == TypeEllipse) item.Parm[ShapeSlot::Filled] = 1;
    if (type == TypeBarGraph) {
      item.Parm[BarSlot::BarColour] = item.Parm[BarSlot::BarColour + 1] = White;
    }
    EXPECT_FALSE(BlackVanishesAt(project, 50, 50)) << "several colours of type " << type;
  }
  for (const gint type : {TypeFrame, TypeButton, TypeLine, TypeRectangle, TypeEllipse}) {
    project.Layouts[0].Items = {CheckedItem(type, 0, 0, 100, 90)};
    EXPECT_TRUE(BlackVanishesAt(project, 50, 50)) << "black, unfilled or a line: type " << type;
  }
}

TEST(CheckBackgroundTest, ColourOfEachSystemCounts) {
  CheckedProject project = ProjectWith({CheckedItem(TypeFrame, 0, 0, 100, 90)});
  project.Settings.Parm1[2] = 1;  // four colour systems
  for (gint black = 0; black < 4; ++black) {
    gint* area = &project.Layouts[0].Items[0].Parm[FrameSlot::AreaColour];
    for (gint system = 0; system < 4; ++system) area[system] = system == black ? Black : White;
    EXPECT_TRUE(BlackVanishesAt(project, 50, 50)) << "system " << black;
  }
}

}  // namespace
