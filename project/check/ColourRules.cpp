// Foregrounds that have the colour of what lies behind them.
#include "layout/ItemTypes.h"
#include "project/check/Background.h"
#include "project/check/Rules.h"

namespace {

bool SameColour(const CheckedProject& project, gint one, gint other) {
  const auto exists = [](gint colour) { return colour >= 0 && colour < ColrCount; };
  if (!exists(one) || !exists(other)) return false;
  const COLRDATA& a = project.Palette[static_cast<std::size_t>(one)];
  const COLRDATA& b = project.Palette[static_cast<std::size_t>(other)];
  // The screen shows the high bytes.
  return a.red >> 8 == b.red >> 8 && a.green >> 8 == b.green >> 8 && a.blue >> 8 == b.blue >> 8;
}

bool ShowsCaption(const PTRNDATA& item) {
  return ItemTypeOf(item.Type).Texts != ItemTexts::Caption || !TextOf(item, 0).empty() ||
         !TextOf(item, 1).empty() || !TextOf(item, 2).empty();
}

void CheckItem(const CheckedProject& project, const CheckedLayout& layout, const PTRNDATA& item,
               const Backgrounds& backgrounds, FindingList& findings) {
  const ItemTypeRow& type = ItemTypeOf(item.Type);
  if (type.FrontColour == NoSlot || !ShowsCaption(item)) return;
  const bool own = IsOn(item, type.BackSwitch);
  std::string systems;
  for (gint system = 0; system < SystemCount(project); ++system) {
    const gint front = ColourIn(item, type.FrontColour, system);
    const gint back =
        own ? ColourIn(item, type.BackColour, system) : backgrounds.Behind(item, system);
    if (!SameColour(project, front, back)) continue;
    systems += (systems.empty() ? "" : ", ") + std::to_string(system);
  }
  if (!systems.empty()) {
    findings.AddItem(layout, item, FindParameter(item.Type, type.FrontColour)->Name,
                     "cannot be told from its background in colour system " + systems);
  }
}

void CheckTitle(const CheckedProject& project, const CheckedLayout& layout, FindingList& findings) {
  const PTRNHEDR& header = layout.Header;
  if (header.Parm1[HedrSlot::TitleHeight] > 0 && !TitleOf(header, 0).empty() &&
      SameColour(project, header.Parm1[HedrSlot::TitleColour],
                 header.Parm1[HedrSlot::TitleAreaColour])) {
    findings.AddLayout(layout, FindParameter(HeaderParameters(), HedrSlot::TitleColour)->Name,
                       "the title cannot be told from its area");
  }
}

void FindVanishing(const CheckedProject& project, FindingList& findings) {
  for (const CheckedLayout& layout : project.Layouts) {
    CheckTitle(project, layout, findings);
    const Backgrounds backgrounds(layout);
    for (const PTRNDATA& item : layout.Items) {
      CheckItem(project, layout, item, backgrounds, findings);
    }
  }
}

constexpr CheckRule Rules[] = {
    {"colour-vanishes", "a text, mark or bar has the colour of its background", FindVanishing},
};

}  // namespace

std::span<const CheckRule> ColourRules() {
  return Rules;
}
