// Foregrounds that have the colour of what lies behind them.
#include "project/check/Rules.h"

#include "layout/ItemSlots.h"
#include "project/check/Background.h"

namespace {

constexpr gint NoSlot = -1;

// A colour kept once, for even and odd systems, or for each of the four.
struct ColourSlot {
  gint Slot;
  gint Count;

  gint In(const PTRNDATA& item, gint system) const { return item.Parm[Slot + system % Count]; }
};

struct ColourRow {
  gint Type;
  const char* Field;
  ColourSlot Front;
  ColourSlot Back;
  gint BackSwitch;  // slot that turns the own background on, NoSlot = always on
};

// Items with a background of their own.
constexpr ColourRow Rows[] = {
    {TypeBarGraph, "BarColour", {BarSlot::BarColour, 4}, {BarSlot::BackColour, 4}, NoSlot},
    {TypeFixedString,
     "TextColour",
     {TextSlot::TextColour, 4},
     {TextSlot::BackColour, 4},
     TextSlot::BackEnabled},
    {TypeVariableString,
     "TextColour",
     {TextSlot::TextColour, 4},
     {TextSlot::BackColour, 4},
     TextSlot::BackEnabled},
    {TypeNumeric,
     "TextColour",
     {TextSlot::TextColour, 4},
     {TextSlot::BackColour, 4},
     TextSlot::BackEnabled},
    {TypeButton, "TextColour", {ButtonSlot::TextColour, 2}, {ButtonSlot::FaceColour, 1}, NoSlot},
    {TypeRadioButton,
     "TextColour",
     {ChoiceSlot::TextColour, 2},
     {ChoiceSlot::BackColour, 2},
     ChoiceSlot::BackEnabled},
    {TypeCheckBox,
     "TextColour",
     {ChoiceSlot::TextColour, 2},
     {ChoiceSlot::BackColour, 2},
     ChoiceSlot::BackEnabled},
    {TypeMark,
     "MarkColour",
     {MarkSlot::MarkColour, 4},
     {MarkSlot::BackColour, 4},
     MarkSlot::BackEnabled},
};

const ColourRow* RowOf(gint type) {
  for (const ColourRow& row : Rows)
    if (row.Type == type) return &row;
  return nullptr;
}

bool SameColour(const CheckedProject& project, gint one, gint other) {
  const auto exists = [](gint colour) { return colour >= 0 && colour < ColrCount; };
  if (!exists(one) || !exists(other)) return false;
  const COLRDATA& a = project.Palette[static_cast<std::size_t>(one)];
  const COLRDATA& b = project.Palette[static_cast<std::size_t>(other)];
  // The screen shows the high bytes.
  return a.red >> 8 == b.red >> 8 && a.green >> 8 == b.green >> 8 && a.blue >> 8 == b.blue >> 8;
}

bool ShowsCaption(const PTRNDATA& item) {
  return item.Type != TypeButton || !TextOf(item, 0).empty() || !TextOf(item, 1).empty() ||
         !TextOf(item, 2).empty();
}

void CheckItem(const CheckedProject& project, const CheckedLayout& layout, const PTRNDATA& item,
               const Backgrounds& backgrounds, FindingList& findings) {
  const ColourRow* row = RowOf(item.Type);
  if (row == nullptr || !ShowsCaption(item)) return;
  const bool own = row->BackSwitch == NoSlot || item.Parm[row->BackSwitch] != 0;
  std::string systems;
  for (gint system = 0; system < SystemCount(project); ++system) {
    const gint front = row->Front.In(item, system);
    const gint back = own ? row->Back.In(item, system) : backgrounds.Behind(item, system);
    if (!SameColour(project, front, back)) continue;
    systems += (systems.empty() ? "" : ", ") + std::to_string(system);
  }
  if (!systems.empty())
    findings.AddItem(layout, item, row->Field,
                     "cannot be told from its background in colour system " + systems);
}

void CheckTitle(const CheckedProject& project, const CheckedLayout& layout, FindingList& findings) {
  const PTRNHEDR& header = layout.Header;
  if (header.Parm1[HedrSlot::TitleHeight] > 0 && !TitleOf(header, 0).empty() &&
      SameColour(project, header.Parm1[HedrSlot::TitleColour],
                 header.Parm1[HedrSlot::TitleAreaColour]))
    findings.AddLayout(layout, "TitleColour", "the title cannot be told from its area");
}

void FindVanishing(const CheckedProject& project, FindingList& findings) {
  for (const CheckedLayout& layout : project.Layouts) {
    CheckTitle(project, layout, findings);
    const Backgrounds backgrounds(layout);
    for (const PTRNDATA& item : layout.Items)
      CheckItem(project, layout, item, backgrounds, findings);
  }
}

constexpr CheckRule RuleTable[] = {
    {"colour-vanishes", "a text, mark or bar has the colour of its background", FindVanishing},
};

}  // namespace

std::span<const CheckRule> ColourRules() {
  return RuleTable;
}
