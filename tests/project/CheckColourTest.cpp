// Rules about colours that cannot be told from their background.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* Rule = "colour-vanishes";

std::vector<std::string> Vanishing(const CheckedProject& project) {
  return Found(Rule, project);
}

TEST(CheckColourTest, TextOnTheWorkArea) {
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[0];
  text.Parm[TextSlot::TextColour + 1] = AlsoWhite;
  const std::vector<Finding> findings = FindingsOf(Rule, project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_STREQ(findings[0].Code, "colour-vanishes");
  EXPECT_EQ(findings[0].Field, "TextColour");
  EXPECT_EQ(findings[0].Message, "cannot be told from its background in colour system 1");
  text.Parm[TextSlot::TextColour + 1] = Grey;
  text.Parm[TextSlot::TextColour + 2] = White;
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "the third system is not in use";
  project.Layouts[0].Header.Parm1[HedrSlot::Gradation] = 1;
  text.Parm[TextSlot::TextColour] = White;
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "a gradation is no one colour";
}

TEST(CheckColourTest, TextOnItsOwnBackground) {
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[0];
  text.Parm[TextSlot::TextColour] = text.Parm[TextSlot::TextColour + 1] = White;
  text.Parm[TextSlot::BackEnabled] = 1;
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "white on black";
  text.Parm[TextSlot::BackColour] = White;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 TextColour"));
}

TEST(CheckColourTest, TextOnTheItemBehindIt) {
  PTRNDATA frame = CheckedItem(TypeFrame, 0, 40, 100, 80);
  PTRNDATA inner = CheckedItem(TypeRectangle, 5, 45, 90, 70);
  inner.Parm[ShapeSlot::Filled] = 1;
  inner.Parm[ShapeSlot::FillColour] = inner.Parm[ShapeSlot::FillColour + 1] = Grey;
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready"), inner, frame});
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "rectangles lie on frames, whatever their order";
  project.Layouts[0].Items[1].Parm[ShapeSlot::Filled] = 0;
  project.Layouts[0].Items[1].Parm[ShapeSlot::Width] = 1;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 TextColour")) << "black on the black frame";
  project.Layouts[0].Items[2].Parm[ItemSlot::TopLayer] = 1;
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "the frame lies on the text";
}

TEST(CheckColourTest, ButtonTitleMarkAndBar) {
  CheckedProject project = ProjectWith({Button("Go")});
  project.Layouts[0].Items[0].Parm[ButtonSlot::TextColour] = Grey;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 TextColour"));
  project.Layouts[0].Items[0].Text1[0] = '\0';
  EXPECT_THAT(Vanishing(project), IsEmpty()) << "no caption, nothing to see";

  project.Layouts[0].Header.Parm1[HedrSlot::TitleHeight] = 20;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main - TitleColour"));

  PTRNDATA bar = CheckedItem(TypeBarGraph, 10, 10, 20, 50);
  bar.Parm[BarSlot::BackColour] = White;
  project = ProjectWith({bar, Mark(7, 7, 7)});
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 BarColour"));
}

TEST(CheckColourTest, TextOnAButtonAndOnTheButtonArea) {
  PTRNDATA button = Button("");
  CheckedProject project = ProjectWith({button, FixedString(20, 20, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[1];
  text.Parm[TextSlot::TextColour] = Grey;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 1 TextColour"));
  text.Parm[TextSlot::TextColour] = White;
  EXPECT_THAT(Vanishing(project), IsEmpty());

  project = ProjectWith({FixedString(20, 84, "Ready")});
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaHeight] = 20;
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaColour] = White;
  EXPECT_THAT(Vanishing(project), IsEmpty());
  project.Layouts[0].Header.Parm1[HedrSlot::ButtonAreaColour] = Black;
  EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 TextColour"));
}

TEST(CheckColourTest, ColoursThatDifferInOneChannelAlone) {
  constexpr gint Near = 4;
  CheckedProject project = ProjectWith({FixedString(10, 50, "Ready")});
  PTRNDATA& text = project.Layouts[0].Items[0];
  text.Parm[TextSlot::TextColour] = text.Parm[TextSlot::TextColour + 1] = Near;
  const struct {
    COLRDATA Colour;  // beside white
    bool Vanishes;
    const char* Name;
  } cases[] = {{{65535, 65535, 65535}, true, "none"},
               {{65279, 65535, 65535}, false, "red"},
               {{65535, 65279, 65535}, false, "green"},
               {{65535, 65535, 65279}, false, "blue"},
               {{65280, 65535, 65535}, true, "the low byte of red"},
               {{65535, 65280, 65535}, true, "the low byte of green"},
               {{65535, 65535, 65280}, true, "the low byte of blue"}};
  for (const auto& [colour, vanishes, name] : cases) {
    project.Palette[Near] = colour;
    EXPECT_EQ(!Vanishing(project).empty(), vanishes) << "differs from white in " << name;
  }
}

TEST(CheckColourTest, ForegroundAndOwnBackgroundOfEachTypeAndSystem) {
  const struct {
    gint Type;
    gint Front;
    gint Fronts;  // slots in a row, taken in turn by the four systems
    gint Back;
    gint Backs;
    const char* Field;
  } types[] = {
      {TypeBarGraph, BarSlot::BarColour, 4, BarSlot::BackColour, 4, "BarColour"},
      {TypeFixedString, TextSlot::TextColour, 4, TextSlot::BackColour, 4, "TextColour"},
      {TypeVariableString, TextSlot::TextColour, 4, TextSlot::BackColour, 4, "TextColour"},
      {TypeNumeric, TextSlot::TextColour, 4, TextSlot::BackColour, 4, "TextColour"},
      {TypeButton, ButtonSlot::TextColour, 2, ButtonSlot::FaceColour, 1, "TextColour"},
      {TypeRadioButton, ChoiceSlot::TextColour, 2, ChoiceSlot::BackColour, 2, "TextColour"},
      {TypeCheckBox, ChoiceSlot::TextColour, 2, ChoiceSlot::BackColour, 2, "TextColour"},
      {TypeMark, MarkSlot::MarkColour, 4, MarkSlot::BackColour, 4, "MarkColour"}};
  for (const auto& type : types) {
    CheckedProject project = ProjectWith({CheckedItem(type.Type, 10, 10, 50, 40)});
    project.Settings.Parm1[2] = 1;  // four colour systems
    PTRNDATA& item = project.Layouts[0].Items[0];
    std::strcpy(item.Text1, "Go");
    // The switch of a background of one's own has one place in all types that have it.
    item.Parm[TextSlot::BackEnabled] = 1;
    for (gint back = 0; back < type.Backs; ++back) item.Parm[type.Back + back] = Grey;
    for (gint front = 0; front < type.Fronts; ++front) {
      for (gint other = 0; other < type.Fronts; ++other) {
        item.Parm[type.Front + other] = other == front ? Grey : White;
      }
      EXPECT_THAT(Vanishing(project), ElementsAre("Main 0 " + std::string(type.Field)))
          << "type " << type.Type << ", slot " << front;
      for (gint back = 0; back < type.Backs; ++back) item.Parm[type.Back + back] = Black;
      EXPECT_THAT(Vanishing(project), IsEmpty()) << "type " << type.Type << ", slot " << front;
      for (gint back = 0; back < type.Backs; ++back) item.Parm[type.Back + back] = Grey;
    }
  }
}

}  // namespace
