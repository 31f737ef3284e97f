#include "tools/json/NamedNumbers.h"

#include <span>
#include <utility>

#include "layout/Parameters.h"

namespace {

using Rows = std::span<const Parameter>;

struct NamedList {
  const char* Key;
  Rows (*Parameters)();
};

constexpr NamedList LayoutLists[] = {{"Parm1", HeaderParameters}, {"Parm2", ViewParameters}};
constexpr NamedList ProjectLists[] = {{"Parm1", ProjectParameters},
                                      {"Parm2", ParentParameters},
                                      {"Parm3", ChildParameters},
                                      {"Parm4", CommonParameters}};

bool AllNamed(const Json& numbers, Rows parameters) {
  for (std::size_t slot = 0; slot < numbers.size(); ++slot) {
    if (numbers[slot] != 0 && FindParameter(parameters, static_cast<gint>(slot)) == nullptr) {
      return false;
    }
  }
  return true;
}

void NameList(Json& numbers, Rows parameters) {
  if (parameters.empty() || !AllNamed(numbers, parameters)) return;
  Json named = Json::object();
  for (const Parameter& parameter : parameters) {
    const auto first = numbers.begin() + parameter.Slot;
    named[parameter.Name] =
        parameter.Count() == 1 ? *first : Json(Json::array_t(first, first + parameter.Count()));
  }
  numbers = std::move(named);
}

void NameLists(Json& record, std::span<const NamedList> lists) {
  for (const NamedList& list : lists) NameList(record[list.Key], list.Parameters());
}

}  // namespace

void NameNumbers(FileKind kind, Json& shown) {
  if (kind == FileKind::Project) NameLists(shown, ProjectLists);
  if (kind != FileKind::Layout) return;
  NameLists(shown, LayoutLists);
  for (Json& item : shown["Items"]) NameList(item["Parm"], ItemParameters(item["Type"]));
}
