// Layout files that the program cannot read as they are.
#include "project/check/Rules.h"

namespace {

void FindUnreadable(const CheckedProject& project, FindingList& findings) {
  for (const std::string& name : project.Unreadable) {
    findings.AddFile(name, "the layout file is not whole");
  }
}

void FindDropped(const CheckedProject& project, FindingList& findings) {
  for (const CheckedLayout& layout : project.Layouts) {
    if (layout.Dropped > 0) {
      findings.AddLayout(layout, "Type",
                         std::to_string(layout.Dropped) + " items of no known type are left out");
    }
  }
}

constexpr CheckRule Rules[] = {
    {"layout-unreadable", "a layout file is cut short or damaged", FindUnreadable},
    {"type-unknown", "a layout file holds items of no known type", FindDropped},
};

}  // namespace

std::span<const CheckRule> FileRules() {
  return Rules;
}
