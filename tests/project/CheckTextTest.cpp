// Rules about texts in the project's languages.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckTextTest, EveryLanguageOfTheProject) {
  CheckedProject project = ProjectWith({FixedString(0, 0, "Ready")});
  project.Settings.Parm1[1] = 2;
  EXPECT_THAT(Found("text-missing", project), ElementsAre("Main 0 Text2", "Main 0 Text3"));
  std::strcpy(project.Layouts[0].Items[0].Text2, "Bereit");
  std::strcpy(project.Layouts[0].Items[0].Text3, "Pronto");
  EXPECT_THAT(Found("text-missing", project), IsEmpty());
}

TEST(CheckTextTest, ButtonWithoutAnyCaption) {
  CheckedProject project = ProjectWith({Button("")});
  project.Settings.Parm1[1] = 1;
  EXPECT_THAT(Found("text-missing", project), IsEmpty());
  std::strcpy(project.Layouts[0].Items[0].Text2, "Go");
  EXPECT_THAT(Found("text-missing", project), ElementsAre("Main 0 Text1"));
}

TEST(CheckTextTest, TitlesOfWindows) {
  CheckedProject project = PlainProject();
  PTRNHEDR& header = project.Layouts[0].Header;
  project.Settings.Parm1[1] = 1;
  EXPECT_THAT(Found("text-missing", project), IsEmpty()) << "areas of no window have one name only";
  header.Parm1[HedrSlot::Kind] = 1;
  EXPECT_THAT(Found("text-missing", project), ElementsAre("Main - PtrnName2"));
  std::strcpy(header.PtrnName2, "Haupt");
  EXPECT_THAT(Found("text-missing", project), IsEmpty());
}

TEST(CheckTextTest, TextThatIsNotEucJp) {
  CheckedProject project = ProjectWith({FixedString(0, 0, "\xE6\x97\xA5")});
  EXPECT_THAT(Found("text-unreadable", project), ElementsAre("Main 0 Text1"));
  std::strcpy(project.Layouts[0].Items[0].Text1, "\xC6\xFC");
  EXPECT_THAT(Found("text-unreadable", project), IsEmpty());
}

TEST(CheckTextTest, FontThatDoesNotExist) {
  CheckedProject project = ProjectWith({FixedString(0, 0, "Ready"), Button("")});
  project.Layouts[0].Items[1].Parm[ButtonSlot::Font] = 9;
  EXPECT_THAT(Found("font-missing", project), IsEmpty())
      << "a button without caption needs no font";
  project.Layouts[0].Items[0].Parm[TextSlot::Font] = 2;
  EXPECT_THAT(Found("font-missing", project), ElementsAre("Main 0 Font"));
  project.Surroundings.FontExists = [](gint, gint) { return false; };
  EXPECT_THAT(Found("font-missing", project), ElementsAre("- - FONTNAME"));
}

TEST(CheckTextTest, TextThatOverrunsTheLayout) {
  CheckedProject project = ProjectWith({FixedString(160, 84, "Ready")});  // 5 x 8 dots
  EXPECT_THAT(Found("text-overruns", project), IsEmpty());
  project.Layouts[0].Items[0].Point1.x = 161;
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Text1"));
  project.Layouts[0].Items[0].Point1 = {160, 85};
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Text1"));
}

TEST(CheckTextTest, DigitsThatOverrunTheLayout) {
  CheckedProject project = ProjectWith({Numeric("FLOW", 0)});
  project.Layouts[0].Items[0].Parm[TextSlot::Length] = 24;
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Length"));
  project.Layouts[0].Items[0].Parm[TextSlot::Length] = 23;
  EXPECT_THAT(Found("text-overruns", project), IsEmpty());
}

TEST(CheckTextTest, CaptionThatOverrunsItsButton) {
  CheckedProject project = ProjectWith({Button("0123456789")});  // 80 dots and 2 x 2 of border
  PTRNDATA& button = project.Layouts[0].Items[0];
  button.Point2 = {94, 30};
  EXPECT_THAT(Found("text-overruns", project), IsEmpty());
  button.Point2 = {93, 30};
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Text1"));
  button.Point2 = {94, 29};
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Text1"));
  button.Point2 = {94, 30};
  button.Parm[ButtonSlot::TextPlacement] = 1;
  button.Parm[ButtonSlot::TextOffset] = 3;
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main 0 Text1"));
}

TEST(CheckTextTest, TitleThatOverrunsItsArea) {
  CheckedProject project = PlainProject();
  PTRNHEDR& header = project.Layouts[0].Header;
  header.Parm1[HedrSlot::TitleHeight] = 16;
  std::strcpy(header.PtrnName1, "0123456789012345678901234");  // 200 dots
  EXPECT_THAT(Found("text-overruns", project), IsEmpty());
  std::strcat(header.PtrnName1, "5");
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main - PtrnName1"));
  std::strcpy(header.PtrnName1, "Main");
  header.Parm1[HedrSlot::TitleHeight] = 15;
  EXPECT_THAT(Found("text-overruns", project), ElementsAre("Main - PtrnName1"));
}

}  // namespace
