// Rules about identification codes, the registry and names in generated sources.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

TEST(CheckCodeTest, CodeNeeded) {
  EXPECT_THAT(Found("code-missing", ProjectWith({Numeric("", 0)})), ElementsAre("Main 0 ID_Code"));
  CheckedProject project = ProjectWith({Button("Go")});
  PTRNDATA& button = project.Layouts[0].Items[0];
  EXPECT_THAT(Found("code-missing", project), IsEmpty());
  button.ID_Type = 4;
  EXPECT_THAT(Found("code-missing", project), ElementsAre("Main 0 ID_Code"));
  button.ID_Type = 9;
  EXPECT_THAT(Found("code-missing", project), IsEmpty());
}

TEST(CheckCodeTest, CodeMustBeAnIdentifier) {
  for (const char* code : {"A-B", "A B", "9A", "A.", "\xC6\xFC"}) {
    EXPECT_THAT(Found("code-malformed", ProjectWith({Numeric(code, 0)})),
                ElementsAre("Main 0 ID_Code"))
        << code;
  }
  for (const char* code : {"A_9", "_", "a"}) {
    EXPECT_THAT(Found("code-malformed", ProjectWith({Numeric(code, 0)})), IsEmpty()) << code;
  }
}

TEST(CheckCodeTest, CodeMustBeNoWordOfTheSources) {
  for (const char* code : {"return", "NULL", "BOOL", "while", "name", "auto"}) {
    EXPECT_THAT(Found("code-reserved", ProjectWith({Numeric(code, 0)})),
                ElementsAre("Main 0 ID_Code"))
        << code;
  }
  EXPECT_THAT(Found("code-reserved", ProjectWith({Numeric("Return", 0)})), IsEmpty());
}

TEST(CheckCodeTest, OneCodeOfDifferentKinds) {
  PTRNDATA text = CheckedItem(TypeVariableString, 10, 10);
  text.Parm[TextSlot::Length] = 4;
  std::strcpy(text.ID_Code, "FLOW");
  PTRNDATA bar = CheckedItem(TypeBarGraph, 10, 10, 20, 50);
  std::strcpy(bar.ID_Code, "FLOW");
  CheckedProject project = ProjectWith({Numeric("FLOW", 0), bar});
  EXPECT_THAT(Found("code-kind-mixed", project), IsEmpty())
      << "a number shown as digits and as a bar";
  project.Layouts.push_back(project.Layouts[0]);
  project.Layouts[1].Name = "Other";
  project.Layouts[1].Items = {text};
  EXPECT_THAT(Found("code-kind-mixed", project), ElementsAre("Other 0 ID_Code"));
}

PTRNDATA RadioButton(gint y, gint group, gint number) {
  PTRNDATA item = CheckedItem(TypeRadioButton, 10, y);
  std::strcpy(item.ID_Code, "MODE");
  item.ID_No = group;
  item.Parm[ChoiceSlot::Number] = number;
  return item;
}

TEST(CheckCodeTest, RadioNumbersWithinAGroup) {
  CheckedProject project =
      ProjectWith({RadioButton(10, 0, 0), RadioButton(30, 0, 1), RadioButton(50, 1, 1)});
  EXPECT_THAT(Found("radio-number-double", project), IsEmpty());
  project.Layouts[0].Items[2].ID_No = 0;
  EXPECT_THAT(Found("radio-number-double", project), ElementsAre("Main 2 Number"));
  // The same group may be shown on another layout.
  project.Layouts.push_back(project.Layouts[0]);
  project.Layouts[1].Name = "Other";
  project.Layouts[0].Items.resize(2);
  project.Layouts[1].Items.resize(2);
  EXPECT_THAT(Found("radio-number-double", project), IsEmpty());
}

TEST(CheckCodeTest, RegistryMustHoldCodeAndSlots) {
  CheckedProject project = ProjectWith({Numeric("FLOW", 4)});
  EXPECT_THAT(Found("registry-behind", project), ElementsAre("Main 0 ID_Code"));
  Register(project, "FLOW", 4);
  const std::vector<Finding> findings = FindingsOf("registry-behind", project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].Message, "\"FLOW\" has 4 slots in the code registry, number 4 needs 5");
  project.Registry[0].DataCount = 5;
  EXPECT_THAT(Found("registry-behind", project), IsEmpty());
}

TEST(CheckSourceTest, NamesMustNotBreakSources) {
  for (const char* name : {"A\"B", "A\nB", "A\\B", "A\rB", "A?\?/", "A/*", "A//B"}) {
    CheckedProject project = PlainProject();
    project.Layouts.push_back(project.Layouts[0]);
    project.Layouts[1].Name = name;
    EXPECT_THAT(Found("name-breaks-source", project),
                ElementsAre(std::string(name) + " - PtrnName"));
    project = PlainProject();
    project.Name = name;
    EXPECT_THAT(Found("name-breaks-source", project), ElementsAre("- - ProjName"));
  }
  CheckedProject project = PlainProject();
  project.Layouts.push_back(project.Layouts[0]);
  project.Layouts[1].Name = "\xB7\xD7\xC2\xAC 'A' <1>";  // Japanese and harmless marks
  EXPECT_THAT(Found("name-breaks-source", project), IsEmpty());
}

TEST(CheckSourceTest, ScreensOfTheProjectMustNotBreakTheRuntimeProfile) {
  CheckedProject project = PlainProject();
  std::strcpy(project.Settings.PtrnStart, "Main\n[LOG]");
  std::strcpy(project.Settings.PtrnStop, "Main\r");
  std::vector<std::string> fields;
  for (const Finding& finding : RunCheckRule(SourceNameRule(), project)) {
    fields.push_back(finding.Field);
  }
  EXPECT_THAT(fields, ElementsAre("PtrnStart", "PtrnStop"));
}

TEST(CheckCodeTest, CodeWithALineBreakIsMalformed) {
  EXPECT_THAT(Found("code-malformed", ProjectWith({Numeric("A\nB", 0)})),
              ElementsAre("Main 0 ID_Code"));
}

TEST(CheckSourceTest, MessagesStayOnOneLine) {
  const CheckedProject project = ProjectWith({Numeric("A\nB", 0)});
  EXPECT_THAT(Found("name-breaks-source", project), ElementsAre("Main 0 ID_Code"));
  const std::vector<Finding> findings = RunCheckRule(SourceNameRule(), project);
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_THAT(findings[0].Message, HasSubstr("\"A\\x0AB\""));
}

}  // namespace
