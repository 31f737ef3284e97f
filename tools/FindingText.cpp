#include "tools/FindingText.h"

#include <algorithm>

#include "layout/ItemTypes.h"

namespace {

// A name on disk may hold line breaks; a finding stays on its line.
std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return g_ascii_iscntrl(c); }, '?');
  return text;
}

}  // namespace

std::string FindingLine(const Finding& finding) {
  std::string line = finding.Layout.empty() ? "project" : OneLine(finding.Layout);
  if (finding.Item >= 0) {
    line += ": item " + std::to_string(finding.Item) + " (" + ItemTypeOf(finding.Type).Label + ")";
  }
  if (!finding.Field.empty()) line += ": " + finding.Field;
  return line + ": " + finding.Message + " [" + finding.Code + "]\n";
}
