// Names of layouts that others refer to.
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// Processing types that open the screen of ID_Name.
bool OpensScreen(const PTRNDATA& item) {
  return item.ID_Type >= 5 && item.ID_Type <= 8;
}

void FindMissingScreens(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (!OpensScreen(item)) return;
    const std::string_view name = FieldText(item.ID_Name);
    if (name.empty()) {
      findings.AddItem(layout, item, "ID_Name", "opens a screen but names none");
    } else if (!LayoutExists(project, name)) {
      findings.AddItem(layout, item, "ID_Name", "no layout is named " + Quoted(name));
    }
  });
}

void FindMissingStart(const CheckedProject& project, FindingList& findings) {
  const std::string_view name = FieldText(project.Settings.PtrnStart);
  if (name.empty()) {
    // Saving the project's settings empties the name of a layout that is gone.
    if (!project.Layouts.empty()) findings.AddProject("PtrnStart", "no start layout is set");
  } else if (!LayoutExists(project, name)) {
    findings.AddProject("PtrnStart", "the start layout " + Quoted(name) + " does not exist");
  }
}

void FindMissingStop(const CheckedProject& project, FindingList& findings) {
  const std::string_view name = FieldText(project.Settings.PtrnStop);
  if (!name.empty() && !LayoutExists(project, name)) {
    findings.AddProject("PtrnStop", "the stop layout " + Quoted(name) + " does not exist");
  }
}

constexpr CheckRule Rules[] = {
    {"screen-missing", "an item opens a screen that no layout bears", FindMissingScreens},
    {"start-missing", "no start layout is set, or it does not exist", FindMissingStart},
    {"stop-missing", "the stop layout does not exist", FindMissingStop},
};

}  // namespace

std::span<const CheckRule> ScreenRules() {
  return Rules;
}
