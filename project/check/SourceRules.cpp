// Names that stand in generated sources.
#include <algorithm>

#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// A quote or backslash ends or bends the text it stands in, a control character breaks its line.
// Bytes of Japanese characters are all above these.
bool BreaksText(std::string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return c == '"' || c == '\\' || g_ascii_iscntrl(c); });
}

// The first is a backslash to compilers of older standards, the others hide what follows.
constexpr std::string_view BreakingSigns[] = {"?\?/", "/*", "//"};

bool BreaksSource(std::string_view name) {
  return BreaksText(name) || std::any_of(std::begin(BreakingSigns), std::end(BreakingSigns),
                                         [name](std::string_view sign) {
                                           return name.find(sign) != std::string_view::npos;
                                         });
}

std::string Complaint(std::string_view name) {
  return Quoted(name) +
         " holds a quote, a backslash, a comment or a line break, which breaks the generated "
         "sources";
}

// Layouts that the project names go into the runtime profile.
void FindBreakingScreens(const PROJDATA& settings, FindingList& findings) {
  const std::string_view start = FieldText(settings.PtrnStart);
  const std::string_view stop = FieldText(settings.PtrnStop);
  if (BreaksSource(start)) findings.AddProject("PtrnStart", Complaint(start));
  if (BreaksSource(stop)) findings.AddProject("PtrnStop", Complaint(stop));
}

void FindBreakingNames(const CheckedProject& project, FindingList& findings) {
  if (BreaksSource(project.Name)) findings.AddProject("ProjName", Complaint(project.Name));
  FindBreakingScreens(project.Settings, findings);
  for (const std::string& name : project.Unreadable) {
    if (BreaksSource(name)) findings.AddFile(name, Complaint(name));
  }
  for (const CheckedLayout& layout : project.Layouts) {
    if (BreaksSource(layout.Name)) findings.AddLayout(layout, "PtrnName", Complaint(layout.Name));
  }
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    const std::string_view code = FieldText(item.ID_Code);
    if (BreaksSource(code)) findings.AddItem(layout, item, "ID_Code", Complaint(code));
  });
}

constexpr CheckRule Rules[] = {
    {"name-breaks-source", "a name or code breaks the generated sources", FindBreakingNames},
};

}  // namespace

std::span<const CheckRule> SourceRules() {
  return Rules;
}

const CheckRule& SourceNameRule() {
  return Rules[0];
}
