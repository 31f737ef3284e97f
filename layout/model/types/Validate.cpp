#include "layout/Validate.h"

#include <cstring>

#include "layout/ItemTypes.h"
#include "layout/Parameters.h"
#include "layout/model/types/Messages.h"

namespace {

bool SameX(const PTRNDATA& item) {
  return item.Point1.x == item.Point2.x;
}

bool SameY(const PTRNDATA& item) {
  return item.Point1.y == item.Point2.y;
}

// A line may be level or upright, what lies between corners may not.
bool HasNoExtent(const PTRNDATA& item) {
  if (!HasTwoPoints(item.Type)) return false;
  return ItemTypeOf(item.Type).Shape == ItemShape::Line ? SameX(item) && SameY(item)
                                                        : SameX(item) || SameY(item);
}

// Both limits 0 stand for no limits.
bool CrossedLimits(const PTRNDATA& item) {
  const gint lower = item.Parm[BarSlot::LowerLimit];
  const gint upper = item.Parm[BarSlot::UpperLimit];
  return (lower != 0 || upper != 0) && lower >= upper;
}

static_assert(gint{BarSlot::LowerLimit} == gint{SpinSlot::LowerLimit} &&
              gint{BarSlot::UpperLimit} == gint{SpinSlot::UpperLimit});
bool OnlyDecimals(const PTRNDATA& item) {
  return item.Parm[TextSlot::Length] <= item.Parm[TextSlot::Decimals];
}

bool NoText(const PTRNDATA& item) {
  return item.Text1[0] == '\0';
}

bool NoCode(const PTRNDATA& item) {
  return item.ID_Code[0] == '\0';
}

bool NoPicture(const PTRNDATA& item) {
  return ItemTypeOf(item.Type).Texts == ItemTexts::Picture && NoText(item);
}

bool NoNeededCode(const PTRNDATA& item) {
  return ItemTypeOf(item.Type).NeedsCode && NoCode(item);
}

bool NegativeNumber(const PTRNDATA& item) {
  return item.ID_No < 0;
}

bool MessageWithoutCode(const PTRNDATA& item) {
  return item.ID_Type >= 1 && item.ID_Type <= 4 && NoCode(item);
}

bool OpeningWithoutName(const PTRNDATA& item) {
  return item.ID_Type >= 5 && item.ID_Type <= 8 && item.ID_Name[0] == '\0';
}

// Kept: only the first character counts; "a-b" passes, so message 18 is never shown.
bool BadCodeStart(const PTRNDATA& item) {
  const gchar first = item.ID_Code[0];
  return first != '\0' && first != '_' && !g_ascii_isalpha(first);
}

struct Rule {
  gint Type;
  bool (*IsBroken)(const PTRNDATA& item);
  Message Number;
};

constexpr gint AnyType = 0;

// In the order in which they are tested: the first that is broken is told.

// Before the limits of the parameters.
constexpr Rule PointRules[] = {
    {AnyType, HasNoExtent, PointError},
};

// After them.
constexpr Rule Rules[] = {
    {TypeBarGraph, CrossedLimits, LimitsCrossed},
    {TypeFixedString, NoText, FixedTextMissing},
    {TypeNumeric, OnlyDecimals, TooManyDecimals},
    {TypeSpinButton, CrossedLimits, LimitsCrossed},

    {AnyType, NoPicture, BitmapMissing},
    {AnyType, NoNeededCode, CodeMissing},
    {AnyType, NegativeNumber, NumberRange},
    {AnyType, MessageWithoutCode, CodeMissing},
    {AnyType, OpeningWithoutName, LayoutNameMissing},
    {AnyType, BadCodeStart, CodeStart},
};

Message FirstBroken(std::span<const Rule> rules, const PTRNDATA& item) {
  for (const Rule& rule : rules) {
    if ((rule.Type == AnyType || rule.Type == item.Type) && rule.IsBroken(item)) return rule.Number;
  }
  return Valid;
}

}  // namespace

BrokenLimit FindBrokenLimit(const PTRNDATA& item) {
  std::array<gint, sizeof(PTRNDATA::Parm) / sizeof(gint)> values;
  std::memcpy(values.data(), item.Parm, sizeof values);
  return FindBrokenLimit(ItemParameters(item.Type), values);
}

gint CheckPtrnData(const PTRNDATA* item) {
  if (const Message broken = FirstBroken(PointRules, *item); broken != Valid) return broken;
  if (const Limit* broken = FindBrokenLimit(*item).By) return broken->Message;
  return FirstBroken(Rules, *item);
}
