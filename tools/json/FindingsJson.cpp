#include "tools/json/FindingsJson.h"

#include "tools/json/Json.h"

namespace {

Json ShowFinding(const Finding& finding) {
  const bool item = finding.Item >= 0;
  return {{"Code", finding.Code},
          {"Layout", finding.Layout.empty() ? Json() : Json(finding.Layout)},
          {"Item", item ? Json(finding.Item) : Json()},
          {"Type", item ? Json(finding.Type) : Json()},
          {"Field", finding.Field},
          {"Message", finding.Message}};
}

}  // namespace

std::string JsonOfFindings(std::span<const Finding> findings) {
  Json list = Json::array();
  for (const Finding& finding : findings) list.push_back(ShowFinding(finding));
  return PrintJson(list);
}
