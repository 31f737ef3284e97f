// Names that stand in generated sources.
#include <algorithm>

#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// A quote or backslash ends or bends the text it stands in, a control character breaks its line.
// Bytes of Japanese characters are all above these.
bool BreaksSource(std::string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return c == '"' || c == '\\' || g_ascii_iscntrl(c); });
}

std::string Complaint(std::string_view name) {
  return Quoted(name) +
         " holds a quote, a backslash or a line break, which breaks the generated sources";
}

void FindBreakingNames(const CheckedProject& project, FindingList& findings) {
  if (BreaksSource(project.Name)) findings.AddProject("ProjName", Complaint(project.Name));
  for (const std::string& name : project.Unreadable)
    if (BreaksSource(name)) findings.AddFile(name, Complaint(name));
  for (const CheckedLayout& layout : project.Layouts)
    if (BreaksSource(layout.Name)) findings.AddLayout(layout, "PtrnName", Complaint(layout.Name));
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
