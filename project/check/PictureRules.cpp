// Bitmaps and marks that are shown.
#include <algorithm>
#include <set>

#include "layout/ItemTypes.h"
#include "layout/Parameters.h"
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// Calls `visit` with every bitmap that is shown: the layout, its item (null for the layout's own
// pictures), field and name.
template <typename Visit>
void ForEachPicture(const CheckedProject& project, Visit visit) {
  for (const CheckedLayout& layout : project.Layouts) {
    const PTRNHEDR& header = layout.Header;
    if (header.Parm1[HedrSlot::LogoShown] != 0 && !FieldText(header.LogoName).empty()) {
      visit(layout, nullptr, "LogoName", FieldText(header.LogoName));
    }
    if (!FieldText(header.BmapName).empty()) {
      visit(layout, nullptr, "BmapName", FieldText(header.BmapName));
    }
    for (const PTRNDATA& item : layout.Items) {
      if (ItemTypeOf(item.Type).Texts == ItemTexts::Picture) {
        visit(layout, &item, "Text1", FieldText(item.Text1));
      }
    }
  }
}

void FindPictures(const CheckedProject& project, FindingList& findings, PictureState state,
                  const char* complaint) {
  ForEachPicture(project, [&](const CheckedLayout& layout, const PTRNDATA* item, const char* field,
                              std::string_view name) {
    const bool named = !name.empty();
    const PictureState found =
        named ? project.Surroundings.Picture(std::string(name)) : PictureState::Missing;
    if (found != state) return;
    const std::string message = named ? Quoted(name) + complaint : "names no bitmap";
    if (item == nullptr) {
      findings.AddLayout(layout, field, message);
    } else {
      findings.AddItem(layout, *item, field, message);
    }
  });
}

void FindMissing(const CheckedProject& project, FindingList& findings) {
  FindPictures(project, findings, PictureState::Missing, " is not in the bitmap folder");
}

void FindUnreadable(const CheckedProject& project, FindingList& findings) {
  FindPictures(project, findings, PictureState::Unreadable, " cannot be read as a picture");
}

void CheckMark(const CheckedProject& project, const CheckedLayout& layout, const PTRNDATA& item,
               const Parameter& parameter, FindingList& findings) {
  std::set<gint> told;
  for (gint system = 0; system < std::min(SystemCount(project), parameter.Count()); ++system) {
    const gint mark = item.Parm[parameter.Slot + system];
    const bool exists = mark >= 0 && mark < MarkCount;
    if ((exists && project.MarkDrawn[static_cast<std::size_t>(mark)]) ||
        !told.insert(mark).second) {
      continue;
    }
    findings.AddItem(layout, item, parameter.Name,
                     "mark " + std::to_string(mark) + (exists ? " is empty" : " does not exist"));
  }
}

void FindEmptyMarks(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    for (const Parameter& parameter : ItemParameters(item.Type)) {
      if (parameter.Range.Kind == Unit::Mark) CheckMark(project, layout, item, parameter, findings);
    }
  });
}

constexpr CheckRule Rules[] = {
    {"bitmap-missing", "a bitmap that is shown is not in the bitmap folder", FindMissing},
    {"bitmap-unreadable", "a bitmap that is shown cannot be read", FindUnreadable},
    {"mark-empty", "a mark that is shown has no dots", FindEmptyMarks},
};

}  // namespace

std::span<const CheckRule> PictureRules() {
  return Rules;
}
