// Items by themselves and their place in the layout.
#include <array>

#include "layout/ItemTypes.h"
#include "layout/Parameters.h"
#include "layout/Validate.h"
#include "project/check/Rules.h"

namespace {

void FindIncomplete(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (item.UndfFlag != 0) findings.AddItem(layout, item, "UndfFlag", "is marked to be completed");
  });
}

struct Reason {
  const char* Field;  // null: a rule of its own tells it; "": that of the limit, or of the slot
  const char* Text;
  gint Slot = NoSlot;
};

// What the tool box's messages say, by their number.
constexpr std::array<Reason, 19> Reasons = {{
    {"Point2", "its corners share a coordinate"},
    {"ID_No", "its identification number is negative"},
    {nullptr, nullptr},
    {nullptr, nullptr},
    {"", "a line or frame width is outside its range"},
    {"", "its line width is not 1 to 99"},
    {"", "its lower limit is not below its upper limit", BarSlot::LowerLimit},
    {"Text1", "it has no text"},
    {"", "its number of characters or digits is outside its range"},
    {"", "it has too many decimal places", TextSlot::Decimals},
    {"", "its text position is negative"},
    {"", "its number within the group is negative"},
    {nullptr, nullptr},
    {"", "its display amount is below 1"},
    {"", "its data amount is negative"},
    {"", "a movement amount is negative"},
    {"", "a movement amount that it needs is 0"},
    {nullptr, nullptr},
    {nullptr, nullptr},
}};

// The field that breaks the item: its limit's, or the one that the message names.
std::string BrokenField(const PTRNDATA& item, gint message) {
  const BrokenLimit limit = FindBrokenLimit(item);
  if (limit.By != nullptr && limit.By->Message == message) return limit.Broken->Name;
  const Reason& reason = Reasons[static_cast<std::size_t>(message)];
  return reason.Slot == NoSlot ? reason.Field : ParameterField(item, reason.Slot);
}

void FindInvalid(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    const gint broken = CheckPtrnData(&item);
    if (broken < 0) return;
    const Reason& reason = Reasons[static_cast<std::size_t>(broken)];
    if (reason.Field != nullptr) {
      findings.AddItem(layout, item, BrokenField(item, broken), reason.Text);
    }
  });
}

std::string PointText(const POINT& point) {
  return "(" + std::to_string(point.x) + ", " + std::to_string(point.y) + ")";
}

// Bounds included: a shape may end at the layout's very edge.
bool Inside(const PTRNHEDR& header, const POINT& point) {
  return point.x >= 0 && point.y >= 0 && point.x <= header.Parm1[HedrSlot::Width] &&
         point.y <= header.Parm1[HedrSlot::Height];
}

void FindOutside(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    const bool twoPoints = HasTwoPoints(item.Type);
    const POINT one = item.Point1;
    const POINT two = item.Point2;
    if (!Inside(layout.Header, one)) {
      findings.AddItem(layout, item, "Point1", PointText(one) + " lies outside the layout");
    } else if (twoPoints && !Inside(layout.Header, two)) {
      findings.AddItem(layout, item, "Point2", PointText(two) + " lies outside the layout");
    }
  });
}

constexpr CheckRule Rules[] = {
    {"item-incomplete", "an item is marked to be completed", FindIncomplete},
    {"item-invalid", "an item would be refused by the tool box", FindInvalid},
    {"item-outside", "an item lies outside the layout or reaches out of it", FindOutside},
};

}  // namespace

std::span<const CheckRule> ItemRules() {
  return Rules;
}
