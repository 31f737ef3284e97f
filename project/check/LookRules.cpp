// Layouts that follow the project's common look.
#include "layout/ItemSlots.h"
#include "layout/Parameters.h"
#include "layout/model/store/ProjectLook.h"
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// The header as renewal would leave it.
PTRNHEDR Renewed(const PTRNHEDR& layout, const PROJDATA& project) {
  alignas(gint) PTRNHEDR header = layout;
  const gint kind = header.Parm1[HedrSlot::Kind];
  if (kind == 0) CopyParentLook(header, project);
  if (kind == 1) CopyChildLook(header, project);
  CopyGridLook(header, project);
  return header;
}

std::string Difference(gint has, gint wanted) {
  return "is " + std::to_string(has) + ", the project's common look has " + std::to_string(wanted);
}

template <std::size_t Count>
void CompareParameters(const CheckedLayout& layout, std::span<const Parameter> parameters,
                       const gint (&has)[Count], const gint (&wanted)[Count],
                       FindingList& findings) {
  for (const Parameter& parameter : parameters) {
    if (has[parameter.Slot] != wanted[parameter.Slot]) {
      findings.AddLayout(layout, parameter.Name,
                         Difference(has[parameter.Slot], wanted[parameter.Slot]));
    }
  }
}

void FindDifferences(const CheckedProject& project, FindingList& findings) {
  for (const CheckedLayout& layout : project.Layouts) {
    const PTRNHEDR& header = layout.Header;
    if (header.Parm1[HedrSlot::KeepAsIs] != 0) continue;
    alignas(gint) const PTRNHEDR wanted = Renewed(header, project.Settings);
    CompareParameters(layout, HeaderParameters(), header.Parm1, wanted.Parm1, findings);
    CompareParameters(layout, ViewParameters(), header.Parm2, wanted.Parm2, findings);
    if (FieldText(header.LogoName) != FieldText(wanted.LogoName)) {
      findings.AddLayout(layout, "LogoName",
                         "is " + Quoted(FieldText(header.LogoName)) +
                             ", the project's common look has " +
                             Quoted(FieldText(wanted.LogoName)));
    }
  }
}

constexpr CheckRule Rules[] = {
    {"look-differs", "a layout differs from the common look that it follows", FindDifferences},
};

}  // namespace

std::span<const CheckRule> LookRules() {
  return Rules;
}
