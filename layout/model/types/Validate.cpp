#include <string_view>

#include "Constant.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Validate.h"

namespace {

// Indexes into ErrorMessage.
enum Message {
  Valid = -1,
  PointError = 0,
  NumberRange = 1,
  CodeMissing = 2,
  LayoutNameMissing = 3,
  WidthRange = 4,
  LineWidthRange = 5,
  LimitsCrossed = 6,
  FixedTextMissing = 7,
  LengthRange = 8,
  TooManyDecimals = 9,
  OffsetRange = 10,
  GroupNumberRange = 11,
  BitmapMissing = 12,
  DisplayAmountRange = 13,
  DataAmountRange = 14,
  StepRange = 15,
  StepMissing = 16,
  CodeStart = 17,
};

bool SameX(const PTRNDATA& item) {
  return item.Point1.x == item.Point2.x;
}
bool SameY(const PTRNDATA& item) {
  return item.Point1.y == item.Point2.y;
}
bool IsFlat(const PTRNDATA& item) {
  return SameX(item) || SameY(item);
}
bool IsOnePoint(const PTRNDATA& item) {
  return SameX(item) && SameY(item);
}

template <gint Slot>
bool Negative(const PTRNDATA& item) {
  return item.Parm[Slot] < 0;
}
template <gint Slot>
bool BelowOne(const PTRNDATA& item) {
  return item.Parm[Slot] < 1;
}

bool OpenWithoutLine(const PTRNDATA& item) {
  return item.Parm[ShapeSlot::Filled] == 0 && item.Parm[ShapeSlot::Width] <= 0;
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
bool ArrowsWithoutStep(const PTRNDATA& item) {
  return (item.Parm[ScrollSlot::SingleArrows] != 0 && item.Parm[ScrollSlot::SingleStep] == 0) ||
         (item.Parm[ScrollSlot::DoubleArrows] != 0 && item.Parm[ScrollSlot::DoubleStep] == 0);
}
bool NoPageStep(const PTRNDATA& item) {
  return item.Parm[ScrollSlot::PageStep] == 0;
}
bool NoText(const PTRNDATA& item) {
  return item.Text1[0] == '\0';
}
bool NoCode(const PTRNDATA& item) {
  return item.ID_Code[0] == '\0';
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

// In the order in which they are tested; the first broken one is told.
constexpr Rule Rules[] = {
    {TypeLine, IsOnePoint, PointError},
    {TypeFrame, IsFlat, PointError},
    {TypeRectangle, IsFlat, PointError},
    {TypeEllipse, IsFlat, PointError},
    {TypeBarGraph, IsFlat, PointError},
    {TypeButton, IsFlat, PointError},
    {TypeBitmap, IsFlat, PointError},
    {TypeMark, IsFlat, PointError},
    {TypeScrollBar, IsFlat, PointError},
    {TypeSpinButton, IsFlat, PointError},

    {TypeFrame, Negative<FrameSlot::TopWidth>, WidthRange},
    {TypeFrame, Negative<FrameSlot::BottomWidth>, WidthRange},
    {TypeFrame, Negative<FrameSlot::LeftWidth>, WidthRange},
    {TypeFrame, Negative<FrameSlot::RightWidth>, WidthRange},

    {TypeLine, BelowOne<LineSlot::Width>, LineWidthRange},

    // Kept: the message names 0 as allowed; for a shape that is not filled it is not.
    {TypeRectangle, OpenWithoutLine, WidthRange},
    {TypeEllipse, OpenWithoutLine, WidthRange},

    {TypeBarGraph, Negative<BarSlot::BarWidth>, WidthRange},
    {TypeBarGraph, Negative<BarSlot::OutlineWidth>, WidthRange},
    {TypeBarGraph, CrossedLimits, LimitsCrossed},
    {TypeBarGraph, NoCode, CodeMissing},

    {TypeFixedString, NoText, FixedTextMissing},

    {TypeVariableString, BelowOne<TextSlot::Length>, LengthRange},
    {TypeVariableString, NoCode, CodeMissing},

    {TypeNumeric, BelowOne<TextSlot::Length>, LengthRange},
    {TypeNumeric, Negative<TextSlot::Decimals>, LengthRange},
    {TypeNumeric, OnlyDecimals, TooManyDecimals},
    {TypeNumeric, NoCode, CodeMissing},

    {TypeButton, BelowOne<ButtonSlot::BorderWidth>, WidthRange},
    {TypeButton, Negative<ButtonSlot::TextOffset>, OffsetRange},

    {TypeRadioButton, Negative<ChoiceSlot::Number>, GroupNumberRange},

    {TypeBitmap, NoText, BitmapMissing},

    {TypeScrollBar, Negative<ScrollSlot::FrameWidth>, WidthRange},
    {TypeScrollBar, BelowOne<ScrollSlot::DisplayAmount>, DisplayAmountRange},
    {TypeScrollBar, Negative<ScrollSlot::DataAmount>, DataAmountRange},
    {TypeScrollBar, Negative<ScrollSlot::SingleStep>, StepRange},
    {TypeScrollBar, Negative<ScrollSlot::DoubleStep>, StepRange},
    {TypeScrollBar, Negative<ScrollSlot::PageStep>, StepRange},
    {TypeScrollBar, ArrowsWithoutStep, StepMissing},
    {TypeScrollBar, NoPageStep, StepMissing},
    {TypeScrollBar, NoCode, CodeMissing},

    {TypeSpinButton, CrossedLimits, LimitsCrossed},
    {TypeSpinButton, NoCode, CodeMissing},

    {AnyType, NegativeNumber, NumberRange},
    {AnyType, MessageWithoutCode, CodeMissing},
    {AnyType, OpeningWithoutName, LayoutNameMissing},
    {AnyType, BadCodeStart, CodeStart},
};

}  // namespace

gint CheckPtrnData(const PTRNDATA* item) {
  for (const Rule& rule : Rules) {
    if ((rule.Type == AnyType || rule.Type == item->Type) && rule.IsBroken(*item)) {
      return rule.Number;
    }
  }
  return Valid;
}
