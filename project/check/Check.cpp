#include "project/check/Check.h"

#include <algorithm>
#include <tuple>

#include "project/check/Rules.h"

namespace {

std::vector<CheckRule> AllRules() {
  std::vector<CheckRule> rules;
  for (const auto family : {FileRules(), ScreenRules(), ItemRules(), CodeRules(), SourceRules(),
                            TextRules(), PictureRules(), ColourRules(), LookRules()}) {
    rules.insert(rules.end(), family.begin(), family.end());
  }
  return rules;
}

}  // namespace

std::span<const CheckRule> CheckRules() {
  static const std::vector<CheckRule> rules = AllRules();
  return rules;
}

std::vector<Finding> RunCheckRule(const CheckRule& rule, const CheckedProject& project) {
  FindingList list(rule.Code);
  rule.Find(project, list);
  return list.Take();
}

std::vector<Finding> CheckProject(const CheckedProject& project) {
  std::vector<Finding> findings;
  for (const CheckRule& rule : CheckRules()) {
    std::vector<Finding> found = RunCheckRule(rule, project);
    std::move(found.begin(), found.end(), std::back_inserter(findings));
  }
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& one, const Finding& other) {
    return std::tie(one.Layout, one.Item) < std::tie(other.Layout, other.Item);
  });
  return findings;
}
