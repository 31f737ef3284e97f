#include "layout/Parameters.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <type_traits>
#include <vector>

#include "layout/ItemTypes.h"
#include "layout/model/types/Messages.h"
#include "layout/model/types/Ranges.h"
#include "support/ConstantLists.h"

using namespace Ranges;
using enum Spread;

namespace {

using Limits = std::array<Limit, 2>;
constexpr Limits AtLeast(gint least, Message message, Condition counts = {}) {
  return {{{least, message, nullptr, counts}}};
}

// A movement amount, that of a control which is there not 0.
constexpr Limits Step(Condition needed = {}) {
  return {{{0, StepRange}, {1, StepMissing, nullptr, needed}}};
}

constexpr const gchar* LinePositions[] = {"中央", "上左", "下右", ""};
constexpr const gchar* BarDirections[] = {"縱", "横", ""};
constexpr const gchar* ScrollDirections[] = {"水平方向", "垂直方向", ""};
constexpr const gchar* TextPlacements[] = {"中央", "指定", ""};
// Bits of the four keys that leave an input field.
constexpr const gchar* CursorKeyTexts[] = {"なし", "↑",   "↓",   "↑↓",   "←",  "↑←",
                                           "↓←",   "↑↓←", "→",   "↑→",   "↓→", "↑↓→",
                                           "←→",   "↑←→", "↓←→", "↑↓←→", ""};

constexpr ValueRange LinePosition = ChoiceOf(LinePositions);
constexpr ValueRange Coordinate{Unit::Dots, G_MININT, G_MAXINT};
// A fixed text is as long as its field.
constexpr ValueRange Characters{Unit::Characters, 0, 100};
constexpr ValueRange Digits{Unit::Characters, 0, 99};
constexpr ValueRange Amount{Unit::Number, 0, 9999};
constexpr ValueRange GroupNumber{Unit::Number, 0, 99};

constexpr Parameter ItemRows[] = {
    {NAMED_SLOT(ItemSlot, X1), One, nullptr, Coordinate},
    {NAMED_SLOT(ItemSlot, Y1), One, nullptr, Coordinate},
    {NAMED_SLOT(ItemSlot, X2), One, nullptr, Coordinate},
    {NAMED_SLOT(ItemSlot, Y2), One, nullptr, Coordinate},
    {NAMED_SLOT(ItemSlot, TopLayer), One, "TOP", Switch},
    {NAMED_SLOT(ItemSlot, EraseColour), One, "消去色", Colour},
};
constexpr Parameter FrameRows[] = {
    {NAMED_SLOT(FrameSlot, AreaColour), Systems, "領域色", Colour},
    {NAMED_SLOT(FrameSlot, TopColour), Systems, "上 境界色", Colour},
    {NAMED_SLOT(FrameSlot, BottomColour), Systems, "下 境界色", Colour},
    {NAMED_SLOT(FrameSlot, LeftColour), Systems, "左 境界色", Colour},
    {NAMED_SLOT(FrameSlot, RightColour), Systems, "右 境界色", Colour},
    {NAMED_SLOT(FrameSlot, TopWidth), One, "上 枠幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(FrameSlot, BottomWidth), One, "下 枠幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(FrameSlot, LeftWidth), One, "左 枠幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(FrameSlot, RightWidth), One, "右 枠幅", Thickness, AtLeast(0, WidthRange)},
};
constexpr Parameter LineRows[] = {
    {NAMED_SLOT(LineSlot, Colour), Systems, "表示色", Colour},
    {NAMED_SLOT(LineSlot, Position), One, "表示位置", LinePosition},
    {NAMED_SLOT(LineSlot, Style), One, "線種", ChoiceOf(LineStyleList)},
    {NAMED_SLOT(LineSlot, Width), One, "線幅", Thickness, AtLeast(1, LineWidthRange)},
};
constexpr Parameter ShapeRows[] = {
    {NAMED_SLOT(ShapeSlot, LineColour), Systems, "境界色", Colour},
    {NAMED_SLOT(ShapeSlot, FillColour), Systems, "領域色", Colour},
    {NAMED_SLOT(ShapeSlot, Filled), One, "塗りつぶし", Switch},
    {NAMED_SLOT(ShapeSlot, Position), One, "表示位置", LinePosition},
    // Kept: the message names 0 as allowed; for a shape that is not filled it is not.
    {NAMED_SLOT(ShapeSlot, Width), One, "線幅", Thickness,
     AtLeast(1, WidthRange, Unless(ShapeSlot::Filled))},
};
constexpr Parameter BarGraphRows[] = {
    {NAMED_SLOT(BarSlot, BarColour), Systems, "表示色", Colour},
    {NAMED_SLOT(BarSlot, BackColour), Systems, "背景色", Colour},
    {NAMED_SLOT(BarSlot, OutlineColour), One, "外形色", Colour},
    {NAMED_SLOT(BarSlot, Direction), One, "表示方向", ChoiceOf(BarDirections)},
    {NAMED_SLOT(BarSlot, BarWidth), One, "線幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(BarSlot, OutlineWidth), One, "枠幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(BarSlot, LowerLimit), One, "下限値", Amount},
    {NAMED_SLOT(BarSlot, UpperLimit), One, "上限値", Amount},
};
constexpr Parameter TextRows[] = {
    {NAMED_SLOT(TextSlot, TextColour), Systems, "前景色", Colour},
    {NAMED_SLOT(TextSlot, BackColour), Systems, "背景色", Colour},
    {NAMED_SLOT(TextSlot, BackEnabled), One, "背景色有効", Switch},
    {NAMED_SLOT(TextSlot, Blinking), One, "点滅", Switch},
    {NAMED_SLOT(TextSlot, Font), One, "フォント", Font},
};
constexpr Parameter FixedStringRows[] = {
    {NAMED_SLOT(TextSlot, Length), One, "文字数", Characters},
};
constexpr Parameter VariableStringRows[] = {
    {NAMED_SLOT(TextSlot, Length), One, "文字数", Digits, AtLeast(1, LengthRange)},
    {NAMED_SLOT(TextSlot, JapaneseInput), One, "日本語入力", Switch},
};
constexpr Parameter NumericRows[] = {
    {NAMED_SLOT(TextSlot, Length), One, "表示桁数", Digits, AtLeast(1, LengthRange)},
    {NAMED_SLOT(TextSlot, Decimals), One, "小数点以下桁数", Digits, AtLeast(0, LengthRange)},
    {NAMED_SLOT(TextSlot, KeepZeros), One, "ゼロサプレスしない", Switch},
    {NAMED_SLOT(TextSlot, Grouping), One, "桁区切り使用", Switch},
    {NAMED_SLOT(TextSlot, Hexadecimal), One, "１６進数", Switch},
};
constexpr Parameter InputRows[] = {
    {NAMED_SLOT(TextSlot, InputAllowed), One, "入力可", Switch},
    {NAMED_SLOT(TextSlot, CursorKeys), One, "カーソル", ChoiceOf(CursorKeyTexts)},
};
constexpr Parameter ButtonRows[] = {
    {NAMED_SLOT(ButtonSlot, TopLeftColour), One, "左上枠", Colour},
    {NAMED_SLOT(ButtonSlot, BottomRightColour), One, "右下枠", Colour},
    {NAMED_SLOT(ButtonSlot, FaceColour), One, "ボタンの表面", Colour},
    {NAMED_SLOT(ButtonSlot, TextColour), EvenOdd, "ボタンの文字（色）", Colour},
    {NAMED_SLOT(ButtonSlot, TextPlacement), One, "ボタン文字列", ChoiceOf(TextPlacements)},
    {NAMED_SLOT(ButtonSlot, TextOffset), One, "ボタン文字列 位置", Thickness,
     AtLeast(0, OffsetRange)},
    {NAMED_SLOT(ButtonSlot, Font), One, "フォント", Font},
    {NAMED_SLOT(ButtonSlot, BorderWidth), One, "ボタンの枠幅", Thickness, AtLeast(1, WidthRange)},
};
constexpr Parameter ChoiceRows[] = {
    {NAMED_SLOT(ChoiceSlot, TextColour), EvenOdd, "前景色", Colour},
    {NAMED_SLOT(ChoiceSlot, BackColour), EvenOdd, "背景色", Colour},
    {NAMED_SLOT(ChoiceSlot, BackEnabled), One, "背景色有効", Switch},
    {NAMED_SLOT(ChoiceSlot, Font), One, "フォント", Font},
    {NAMED_SLOT(ChoiceSlot, Length), One, "文字数", Characters},
};
constexpr Parameter RadioButtonRows[] = {
    {NAMED_SLOT(ChoiceSlot, Number), One, "識別番号（ボタン）", GroupNumber,
     AtLeast(0, GroupNumberRange)},
};
constexpr Parameter CheckBoxRows[] = {
    {NAMED_SLOT(ChoiceSlot, Number), One, "識別番号（ボタン）", GroupNumber},
};
constexpr Parameter BitmapRows[] = {
    {NAMED_SLOT(BitmapSlot, TransparentColour), One, "透過色", Colour},
    {NAMED_SLOT(BitmapSlot, Transparent), One, "透過色 有効", Switch},
};
constexpr Parameter MarkRows[] = {
    {NAMED_SLOT(MarkSlot, MarkColour), Systems, "前景色", Colour},
    {NAMED_SLOT(MarkSlot, BackColour), Systems, "背景色", Colour},
    {NAMED_SLOT(MarkSlot, BackEnabled), One, "背景色有効", Switch},
    {NAMED_SLOT(MarkSlot, Blinking), One, "点滅", Switch},
    {NAMED_SLOT(MarkSlot, Mark), Systems, "マーク", Mark},
};
constexpr Parameter ScrollBarRows[] = {
    {NAMED_SLOT(ScrollSlot, TopLeftColour), One, "左上枠", Colour},
    {NAMED_SLOT(ScrollSlot, BottomRightColour), One, "右下枠", Colour},
    {NAMED_SLOT(ScrollSlot, TroughColour), One, "内部", Colour},
    {NAMED_SLOT(ScrollSlot, ThumbColour), One, "内部（つまみ）", Colour},
    {NAMED_SLOT(ScrollSlot, SingleArrows), One, "シングル", Switch},
    {NAMED_SLOT(ScrollSlot, DoubleArrows), One, "ダブル", Switch},
    {NAMED_SLOT(ScrollSlot, Direction), One, "表示方向", ChoiceOf(ScrollDirections)},
    {NAMED_SLOT(ScrollSlot, FrameWidth), One, "枠幅", Thickness, AtLeast(0, WidthRange)},
    {NAMED_SLOT(ScrollSlot, DisplayAmount), One, "表示量", Amount, AtLeast(1, DisplayAmountRange)},
    {NAMED_SLOT(ScrollSlot, DataAmount), One, "データ量", Amount, AtLeast(0, DataAmountRange)},
    {NAMED_SLOT(ScrollSlot, SingleStep), One, "移動量 シングル", Amount,
     Step(While(ScrollSlot::SingleArrows))},
    {NAMED_SLOT(ScrollSlot, DoubleStep), One, "移動量 ダブル", Amount,
     Step(While(ScrollSlot::DoubleArrows))},
    {NAMED_SLOT(ScrollSlot, PageStep), One, "移動量 ページ", Amount, Step()},
    {NAMED_SLOT(ScrollSlot, MouseWheel), One, "マウスホィール", Switch},
    {NAMED_SLOT(ScrollSlot, FunctionKeys), One, "ファンクションキー", Switch},
};
constexpr Parameter SpinButtonRows[] = {
    {NAMED_SLOT(SpinSlot, LowerLimit), One, "下限値", Amount},
    {NAMED_SLOT(SpinSlot, UpperLimit), One, "上限値", Amount},
};

// Item types, a bit each.
using TypeSet = guint;
template <typename... Types>
constexpr TypeSet Of(Types... types) {
  return (0u | ... | (1u << types));
}

// Which types a table is for.
struct ParameterTable {
  TypeSet Types;
  std::span<const Parameter> Rows;
};
constexpr TypeSet AllTypes = ~TypeSet{0};
constexpr ParameterTable Tables[] = {
    {AllTypes, ItemRows},
    {Of(TypeFrame), FrameRows},
    {Of(TypeLine), LineRows},
    {Of(TypeRectangle, TypeEllipse), ShapeRows},
    {Of(TypeBarGraph), BarGraphRows},
    {Of(TypeFixedString, TypeVariableString, TypeNumeric), TextRows},
    {Of(TypeFixedString), FixedStringRows},
    {Of(TypeVariableString), VariableStringRows},
    {Of(TypeNumeric), NumericRows},
    {Of(TypeVariableString, TypeNumeric), InputRows},
    {Of(TypeButton), ButtonRows},
    {Of(TypeRadioButton, TypeCheckBox), ChoiceRows},
    {Of(TypeRadioButton), RadioButtonRows},
    {Of(TypeCheckBox), CheckBoxRows},
    {Of(TypeBitmap), BitmapRows},
    {Of(TypeMark), MarkRows},
    {Of(TypeScrollBar), ScrollBarRows},
    {Of(TypeSpinButton), SpinButtonRows},
};

// Each type has parameters besides those of all items.
constexpr bool EachTypeHasParameters() {
  TypeSet types = 1;  // 0 is no type
  for (const ParameterTable& table : Tables) {
    if (table.Types != AllTypes) types |= table.Types;
  }
  return types == (TypeSet{1} << (ItemTypeCount + 1)) - 1;
}

static_assert(EachTypeHasParameters());

bool IsOfSecondPoint(const Parameter& row) {
  return row.Slot == ItemSlot::X2 || row.Slot == ItemSlot::Y2;
}

using Parameters = std::vector<Parameter>;

Parameters RowsOf(gint type) {
  Parameters parameters;
  for (const auto& table : Tables) {
    if ((table.Types >> type & 1u) != 0) {
      std::copy_if(
          table.Rows.begin(), table.Rows.end(), std::back_inserter(parameters),
          [type](const Parameter& row) { return !IsOfSecondPoint(row) || HasTwoPoints(type); });
    }
  }
  std::sort(parameters.begin(), parameters.end(),
            [](const Parameter& one, const Parameter& other) { return one.Slot < other.Slot; });
  return parameters;
}

struct TypeParameters {
  Parameters Rows;
  std::array<const Parameter*, std::extent_v<decltype(PTRNDATA::Parm)>> OfSlot = {};
};

const TypeParameters& ParametersOf(gint type) {
  static const auto byType = [] {
    std::array<TypeParameters, ItemTypeCount + 1> all;
    for (gsize no = 1; no < all.size(); ++no) {
      auto& [rows, ofSlot] = all[no];
      rows = RowsOf(static_cast<gint>(no));
      for (const Parameter& row : rows) std::fill_n(ofSlot.begin() + row.Slot, row.Count(), &row);
    }
    return all;
  }();
  return byType[IsItemType(type) ? static_cast<gsize>(type) : 0];
}

}  // namespace

std::span<const Parameter> ItemParameters(gint type) {
  return ParametersOf(type).Rows;
}

const Parameter* FindParameter(std::span<const Parameter> parameters, gint slot) {
  const auto found = std::find_if(parameters.begin(), parameters.end(),
                                  [slot](const Parameter& row) { return row.Holds(slot); });
  return found == parameters.end() ? nullptr : &*found;
}

const Parameter* FindParameter(gint type, gint slot) {
  const auto& ofSlot = ParametersOf(type).OfSlot;
  return slot >= 0 && slot < std::ssize(ofSlot) ? ofSlot[static_cast<gsize>(slot)] : nullptr;
}
