// The parameters as rows of the page on file formats, which scripts/check-docs compares with them.
#include "layout/ItemTypes.h"
#include "layout/Parameters.h"
#include "tools/Commands.h"
#include "tools/Report.h"

namespace {

std::string SlotsText(const Parameter& parameter) {
  const gint last = parameter.Slot + parameter.Count() - 1;
  std::string text = "`" + std::string(parameter.Name) + "` " + std::to_string(parameter.Slot);
  return last == parameter.Slot ? text : text + ".." + std::to_string(last);
}

bool IsAny(const Parameter& /*parameter*/) {
  return true;
}

bool IsOfSecondPoint(const Parameter& parameter) {
  return parameter.Slot == ItemSlot::X2 || parameter.Slot == ItemSlot::Y2;
}

// Of every item type, besides a second point.
bool IsCommon(const Parameter& parameter) {
  return parameter.Slot <= ItemSlot::Y1 || parameter.Slot >= ItemSlot::TopLayer;
}

bool IsOwn(const Parameter& parameter) {
  return !IsOfSecondPoint(parameter) && !IsCommon(parameter);
}

std::string Listed(std::span<const Parameter> parameters,
                   bool (*isListed)(const Parameter& parameter)) {
  std::string list;
  for (const Parameter& parameter : parameters) {
    if (isListed(parameter)) list += (list.empty() ? "" : ", ") + SlotsText(parameter);
  }
  return list;
}

std::string Row(const std::string& holder, const std::string& list) {
  return "| " + holder + " | " + list + " |\n";
}

std::string TypeText(gint type) {
  return std::to_string(type) + " " + ItemTypeOf(type).Name;
}

// Neighbours with the same parameters share a row.
std::string TypeRows() {
  std::string rows;
  for (gint type = TypeFrame; IsItemType(type);) {
    const std::string list = Listed(ItemParameters(type), IsOwn);
    std::string types = TypeText(type);
    while (IsItemType(++type) && Listed(ItemParameters(type), IsOwn) == list) {
      types += ", " + TypeText(type);
    }
    rows += Row(types, list);
  }
  return rows;
}

}  // namespace

int RunParameters() {
  return Print(
      Row("header `Parm1`", Listed(HeaderParameters(), IsAny)) +
      Row("header `Parm2`", Listed(ViewParameters(), IsAny)) +
      Row("all items", Listed(ItemParameters(TypeFrame), IsCommon)) +
      Row("items placed by two points", Listed(ItemParameters(TypeFrame), IsOfSecondPoint)) +
      TypeRows() + Row("project `Parm1`", Listed(ProjectParameters(), IsAny)) +
      Row("project `Parm2`", Listed(ParentParameters(), IsAny)) +
      Row("project `Parm3`", Listed(ChildParameters(), IsAny)) +
      Row("project `Parm4`", Listed(CommonParameters(), IsAny)));
}
