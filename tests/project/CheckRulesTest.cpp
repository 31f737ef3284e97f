// All rules together: what each is called, that none finds faults where there are none, and how
// their findings are put in order.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <tuple>

#include "tests/project/CheckFixture.h"

using testing::IsEmpty;

namespace {

PTRNDATA InThreeLanguages(PTRNDATA item) {
  std::strcpy(item.Text2, item.Text1);
  std::strcpy(item.Text3, item.Text1);
  return item;
}

PTRNDATA RadioButton(gint y, gint number) {
  PTRNDATA item = CheckedItem(TypeRadioButton, 10, y);
  std::strcpy(item.ID_Code, "MODE");
  item.Parm[ChoiceSlot::Number] = number;
  return item;
}

// A project that has something of all that the rules look at, in three languages and four colour
// systems, and nothing wrong.
CheckedProject SoundProject() {
  PTRNDATA opening = InThreeLanguages(Button("Go"));
  opening.ID_Type = 8;
  std::strcpy(opening.ID_Name, "Main");
  PTRNDATA bitmap = CheckedItem(TypeBitmap, 120, 10, 150, 30);
  std::strcpy(bitmap.Text1, "good.png");
  PTRNDATA frame = CheckedItem(TypeFrame, 0, 0, 200, 100);
  for (gint system = 0; system < 4; ++system) frame.Parm[FrameSlot::AreaColour + system] = White;
  CheckedProject project =
      ProjectWith({opening, bitmap, frame, Numeric("FLOW", 4), RadioButton(60, 0),
                   RadioButton(80, 1), InThreeLanguages(FixedString(120, 60, "Ready"))});
  project.Layouts[0].Items.push_back(CheckedItem(TypeMark, 160, 10, 190, 40));
  for (gint system = 0; system < 4; ++system) {
    PTRNDATA& mark = project.Layouts[0].Items.back();
    mark.Parm[MarkSlot::Mark + system] = 7;
    mark.Parm[MarkSlot::MarkColour + system] = Grey;
  }
  Register(project, "FLOW", 5);
  Register(project, "MODE", 1);
  PTRNHEDR& header = project.Layouts[0].Header;
  header.Parm1[HedrSlot::TitleHeight] = 20;
  header.Parm1[HedrSlot::TitleAreaColour] = White;
  header.Parm1[HedrSlot::LogoShown] = 1;
  std::strcpy(header.LogoName, "good.png");
  std::strcpy(header.BmapName, "good.png");
  std::strcpy(header.PtrnName2, "Haupt");
  std::strcpy(header.PtrnName3, "Principale");
  std::strcpy(project.Settings.PtrnStop, "Main");
  project.Settings.Parm1[1] = 2;  // three languages
  project.Settings.Parm1[2] = 1;  // four colour systems
  return project;
}

class EveryRule : public testing::TestWithParam<const char*> {};

TEST_P(EveryRule, FindsNothingInASoundProject) {
  EXPECT_THAT(Found(GetParam(), SoundProject()), IsEmpty());
}

std::vector<const char*> Codes() {
  std::vector<const char*> codes;
  for (const CheckRule& rule : CheckRules()) codes.push_back(rule.Code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(Codes, EveryRule, testing::ValuesIn(Codes()), [](const auto& rule) {
  std::string name = rule.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

TEST(CheckTest, CodesAreDistinctAndExplained) {
  std::set<std::string> codes;
  for (const CheckRule& rule : CheckRules()) {
    EXPECT_TRUE(codes.insert(rule.Code).second) << rule.Code;
    EXPECT_STRNE(rule.Meaning, "") << rule.Code;
  }
}

// Faults of the project, of two layouts and of their items, found by several rules each.
CheckedProject FaultyProject() {
  CheckedProject project = ProjectWith({Button("Go"), FixedString(-1, 0, "\xE6\x97\xA5")});
  for (PTRNDATA& item : project.Layouts[0].Items) {
    item.UndfFlag = 1;
    item.Point1.x = -1;
  }
  project.Layouts[0].Dropped = 1;
  std::strcpy(project.Layouts[0].Header.BmapName, "none.png");
  project.Layouts.push_back(project.Layouts[0]);
  project.Layouts[1].Name = "Early";
  std::strcpy(project.Settings.PtrnStart, "Gone");
  std::strcpy(project.Settings.PtrnStop, "Gone");
  return project;
}

// In the order of the table of rules.
std::vector<Finding> RuleByRule(const CheckedProject& project) {
  std::vector<Finding> findings;
  for (const CheckRule& rule : CheckRules()) {
    for (const Finding& finding : RunCheckRule(rule, project)) findings.push_back(finding);
  }
  return findings;
}

using Line = std::tuple<std::string, gint, std::string, std::string>;

std::vector<Line> Lines(const std::vector<Finding>& findings) {
  std::vector<Line> lines;
  for (const Finding& finding : findings) {
    lines.emplace_back(finding.Layout, finding.Item, finding.Code, finding.Message);
  }
  return lines;
}

TEST(CheckTest, AllThatTheRulesFindComesProjectFirstThenByLayoutAndItem) {
  const CheckedProject project = FaultyProject();
  const std::vector<Line> all = Lines(CheckProject(project));
  EXPECT_THAT(all, testing::UnorderedElementsAreArray(Lines(RuleByRule(project))));
  const auto place = [](const Line& line) {
    return std::tie(std::get<0>(line), std::get<1>(line));
  };
  const auto before = [&](const Line& one, const Line& other) { return place(one) < place(other); };
  ASSERT_FALSE(all.empty());
  EXPECT_TRUE(before(all.front(), all.back())) << "faults of one place have no order to show";
  EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), before));
}

TEST(CheckTest, FindingsOfOnePlaceComeInTheOrderOfTheRules) {
  const std::vector<const char*> codes = Codes();
  const auto rank = [&](const Finding& finding) {
    return std::find(codes.begin(), codes.end(), std::string(finding.Code)) - codes.begin();
  };
  const std::vector<Finding> findings = CheckProject(FaultyProject());
  ASSERT_FALSE(findings.empty());
  for (std::size_t i = 1; i < findings.size(); ++i) {
    if (findings[i].Layout == findings[i - 1].Layout && findings[i].Item == findings[i - 1].Item) {
      EXPECT_LE(rank(findings[i - 1]), rank(findings[i])) << findings[i].Message;
    }
  }
}

}  // namespace
