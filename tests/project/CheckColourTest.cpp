// Rules about colours that cannot be told from their background.
#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckColourTest, TextOnTheWorkArea) {
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[0];
  text.Parm[TextSlot::TextColour + 1] = AlsoWhite;
  const std::vector<Finding> findings = CheckProject(project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_STREQ(findings[0].Code, "colour-vanishes");
  EXPECT_EQ(findings[0].Field, "TextColour");
  EXPECT_EQ(findings[0].Message, "cannot be told from its background in colour system 1");
  text.Parm[TextSlot::TextColour + 1] = Grey;
  text.Parm[TextSlot::TextColour + 2] = White;
  EXPECT_THAT(Found(project), IsEmpty()) << "the third system is not in use";
  project.Layouts[0].Header.Parm1[HedrSlot::Gradation] = 1;
  text.Parm[TextSlot::TextColour] = White;
  EXPECT_THAT(Found(project), IsEmpty()) << "a gradation is no one colour";
}

TEST(CheckColourTest, TextOnItsOwnBackground) {
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[0];
  text.Parm[TextSlot::TextColour] = text.Parm[TextSlot::TextColour + 1] = White;
  text.Parm[TextSlot::BackEnabled] = 1;
  EXPECT_THAT(Found(project), IsEmpty()) << "white on black";
  text.Parm[TextSlot::BackColour] = White;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 0 TextColour"));
}

TEST(CheckColourTest, TextOnTheItemBehindIt) {
  PTRNDATA frame = CheckedItem(TypeFrame, 0, 40, 100, 80);
  PTRNDATA inner = CheckedItem(TypeRectangle, 5, 45, 90, 70);
  inner.Parm[ShapeSlot::Filled] = 1;
  inner.Parm[ShapeSlot::FillColour] = inner.Parm[ShapeSlot::FillColour + 1] = Grey;
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready"), inner, frame});
  EXPECT_THAT(Found(project), IsEmpty()) << "rectangles lie on frames, whatever their order";
  project.Layouts[0].Items[1].Parm[ShapeSlot::Filled] = 0;
  project.Layouts[0].Items[1].Parm[ShapeSlot::Width] = 1;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 0 TextColour"))
      << "black on the black frame";
  project.Layouts[0].Items[2].Parm[ItemSlot::TopLayer] = 1;
  EXPECT_THAT(Found(project), IsEmpty()) << "the frame lies on the text";
}

TEST(CheckColourTest, ButtonTitleMarkAndBar) {
  CheckedProject project = ProjectWith({Button("Go")});
  project.Layouts[0].Items[0].Parm[ButtonSlot::TextColour] = Grey;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 0 TextColour"));
  project.Layouts[0].Items[0].Text1[0] = '\0';
  EXPECT_THAT(Found(project), IsEmpty()) << "no caption, nothing to see";

  project.Layouts[0].Header.Parm1[HedrSlot::TitleHeight] = 20;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main - TitleColour"));

  PTRNDATA bar = CheckedItem(TypeBarGraph, 10, 10, 20, 50);
  std::strcpy(bar.ID_Code, "FLOW");
  bar.Parm[BarSlot::BackColour] = White;
  project = ProjectWith({bar, Mark(7, 7, 7)});
  Register(project, "FLOW", 1);
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 0 BarColour"));
}

TEST(CheckColourTest, TextOnAButtonAndOnTheButtonArea) {
  PTRNDATA button = Button("");
  CheckedProject project = ProjectWith({button, FixedString(20, 20, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[1];
  text.Parm[TextSlot::TextColour] = Grey;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 1 TextColour"));
  text.Parm[TextSlot::TextColour] = White;
  EXPECT_THAT(Found(project), IsEmpty());

  project = ProjectWith({FixedString(20, 84, "Ready")});
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaHeight] = 20;
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaColour] = White;
  EXPECT_THAT(Found(project), IsEmpty());
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaColour] = Black;
  EXPECT_THAT(Found(project), ElementsAre("colour-vanishes Main 0 TextColour"));
}

}  // namespace
