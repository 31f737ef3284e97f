#include <algorithm>

#include "tools/json/Json.h"

namespace {

constexpr auto Replace = Json::error_handler_t::replace;

bool OnOneLine(const Json& json) {
  return !json.is_structured() ||
         (json.is_array() && std::all_of(json.begin(), json.end(),
                                         [](const Json& entry) { return entry.is_number(); }));
}

void Print(const Json& json, std::size_t depth, std::string& out) {
  if (OnOneLine(json) || json.empty()) {
    out += json.dump(-1, ' ', false, Replace);
    return;
  }
  const std::string indent(2 * (depth + 1), ' ');
  out += json.is_object() ? '{' : '[';
  bool first = true;
  for (const auto& entry : json.items()) {
    out += first ? "\n" : ",\n";
    out += indent;
    if (json.is_object()) out += Json(entry.key()).dump(-1, ' ', false, Replace) + ": ";
    Print(entry.value(), depth + 1, out);
    first = false;
  }
  out += '\n' + std::string(2 * depth, ' ');
  out += json.is_object() ? '}' : ']';
}

}  // namespace

std::string PrintJson(const Json& json) {
  std::string out;
  Print(json, 0, out);
  out += '\n';
  return out;
}
