#include "layout/Parameters.h"

#include <algorithm>
#include <vector>

#include "Constant.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/model/types/Messages.h"
#include "layout/model/types/Ranges.h"

using namespace Ranges;

namespace {

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

// Item types, a bit each.
using TypeSet = guint;
template <typename... Types>
constexpr TypeSet Of(Types... types) {
  return (0u | ... | (1u << types));
}
constexpr TypeSet AllTypes = ~0u;
constexpr TypeSet Shapes = Of(TypeRectangle, TypeEllipse);
constexpr TypeSet Texts = Of(TypeFixedString, TypeVariableString, TypeNumeric);
constexpr TypeSet Inputs = Of(TypeVariableString, TypeNumeric);
constexpr TypeSet Choices = Of(TypeRadioButton, TypeCheckBox);

struct Row {
  TypeSet Types;
  Parameter Is;
};

// In the order of the slots within a type.
constexpr Row Rows[] = {
    {AllTypes, {NAMED_SLOT(ItemSlot, X1), Spread::One, nullptr, Coordinate}},
    {AllTypes, {NAMED_SLOT(ItemSlot, Y1), Spread::One, nullptr, Coordinate}},
    {AllTypes, {NAMED_SLOT(ItemSlot, X2), Spread::One, nullptr, Coordinate}},
    {AllTypes, {NAMED_SLOT(ItemSlot, Y2), Spread::One, nullptr, Coordinate}},

    {Of(TypeFrame), {NAMED_SLOT(FrameSlot, AreaColour), Spread::Systems, "領域色", Colour}},
    {Of(TypeFrame), {NAMED_SLOT(FrameSlot, TopColour), Spread::Systems, "上 境界色", Colour}},
    {Of(TypeFrame), {NAMED_SLOT(FrameSlot, BottomColour), Spread::Systems, "下 境界色", Colour}},
    {Of(TypeFrame), {NAMED_SLOT(FrameSlot, LeftColour), Spread::Systems, "左 境界色", Colour}},
    {Of(TypeFrame), {NAMED_SLOT(FrameSlot, RightColour), Spread::Systems, "右 境界色", Colour}},
    {Of(TypeFrame),
     {NAMED_SLOT(FrameSlot, TopWidth), Spread::One, "上 枠幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeFrame),
     {NAMED_SLOT(FrameSlot, BottomWidth), Spread::One, "下 枠幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeFrame),
     {NAMED_SLOT(FrameSlot, LeftWidth), Spread::One, "左 枠幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeFrame),
     {NAMED_SLOT(FrameSlot, RightWidth), Spread::One, "右 枠幅", Thickness, {{{0, WidthRange}}}}},

    {Of(TypeLine), {NAMED_SLOT(LineSlot, Colour), Spread::Systems, "表示色", Colour}},
    {Of(TypeLine), {NAMED_SLOT(LineSlot, Position), Spread::One, "表示位置", LinePosition}},
    {Of(TypeLine), {NAMED_SLOT(LineSlot, Style), Spread::One, "線種", ChoiceOf(LineStyleList)}},
    {Of(TypeLine),
     {NAMED_SLOT(LineSlot, Width), Spread::One, "線幅", Thickness, {{{1, LineWidthRange}}}}},

    {Shapes, {NAMED_SLOT(ShapeSlot, LineColour), Spread::Systems, "境界色", Colour}},
    {Shapes, {NAMED_SLOT(ShapeSlot, FillColour), Spread::Systems, "領域色", Colour}},
    {Shapes, {NAMED_SLOT(ShapeSlot, Filled), Spread::One, "塗りつぶし", Switch}},
    {Shapes, {NAMED_SLOT(ShapeSlot, Position), Spread::One, "表示位置", LinePosition}},
    // Kept: the message names 0 as allowed; for a shape that is not filled it is not.
    {Shapes,
     {NAMED_SLOT(ShapeSlot, Width),
      Spread::One,
      "線幅",
      Thickness,
      {{{1, WidthRange, nullptr, Unless(ShapeSlot::Filled)}}}}},

    {Of(TypeBarGraph), {NAMED_SLOT(BarSlot, BarColour), Spread::Systems, "表示色", Colour}},
    {Of(TypeBarGraph), {NAMED_SLOT(BarSlot, BackColour), Spread::Systems, "背景色", Colour}},
    {Of(TypeBarGraph), {NAMED_SLOT(BarSlot, OutlineColour), Spread::One, "外形色", Colour}},
    {Of(TypeBarGraph),
     {NAMED_SLOT(BarSlot, Direction), Spread::One, "表示方向", ChoiceOf(BarDirections)}},
    {Of(TypeBarGraph),
     {NAMED_SLOT(BarSlot, BarWidth), Spread::One, "線幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeBarGraph),
     {NAMED_SLOT(BarSlot, OutlineWidth), Spread::One, "枠幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeBarGraph), {NAMED_SLOT(BarSlot, LowerLimit), Spread::One, "下限値", Amount}},
    {Of(TypeBarGraph), {NAMED_SLOT(BarSlot, UpperLimit), Spread::One, "上限値", Amount}},

    {Texts, {NAMED_SLOT(TextSlot, TextColour), Spread::Systems, "前景色", Colour}},
    {Texts, {NAMED_SLOT(TextSlot, BackColour), Spread::Systems, "背景色", Colour}},
    {Texts, {NAMED_SLOT(TextSlot, BackEnabled), Spread::One, "背景色有効", Switch}},
    {Texts, {NAMED_SLOT(TextSlot, Blinking), Spread::One, "点滅", Switch}},
    {Texts, {NAMED_SLOT(TextSlot, Font), Spread::One, "フォント", Font}},
    {Of(TypeFixedString), {NAMED_SLOT(TextSlot, Length), Spread::One, "文字数", Characters}},
    {Of(TypeVariableString),
     {NAMED_SLOT(TextSlot, Length), Spread::One, "文字数", Digits, {{{1, LengthRange}}}}},
    {Of(TypeNumeric),
     {NAMED_SLOT(TextSlot, Length), Spread::One, "表示桁数", Digits, {{{1, LengthRange}}}}},
    {Of(TypeNumeric),
     {NAMED_SLOT(TextSlot, Decimals), Spread::One, "小数点以下桁数", Digits, {{{0, LengthRange}}}}},
    {Inputs, {NAMED_SLOT(TextSlot, InputAllowed), Spread::One, "入力可", Switch}},
    {Of(TypeVariableString),
     {NAMED_SLOT(TextSlot, JapaneseInput), Spread::One, "日本語入力", Switch}},
    {Of(TypeNumeric), {NAMED_SLOT(TextSlot, KeepZeros), Spread::One, "ゼロサプレスしない", Switch}},
    {Of(TypeNumeric), {NAMED_SLOT(TextSlot, Grouping), Spread::One, "桁区切り使用", Switch}},
    {Of(TypeNumeric), {NAMED_SLOT(TextSlot, Hexadecimal), Spread::One, "１６進数", Switch}},
    {Inputs, {NAMED_SLOT(TextSlot, CursorKeys), Spread::One, "カーソル", ChoiceOf(CursorKeyTexts)}},

    {Of(TypeButton), {NAMED_SLOT(ButtonSlot, TopLeftColour), Spread::One, "左上枠", Colour}},
    {Of(TypeButton), {NAMED_SLOT(ButtonSlot, BottomRightColour), Spread::One, "右下枠", Colour}},
    {Of(TypeButton), {NAMED_SLOT(ButtonSlot, FaceColour), Spread::One, "ボタンの表面", Colour}},
    {Of(TypeButton),
     {NAMED_SLOT(ButtonSlot, TextColour), Spread::EvenOdd, "ボタンの文字（色）", Colour}},
    {Of(TypeButton),
     {NAMED_SLOT(ButtonSlot, TextPlacement), Spread::One, "ボタン文字列",
      ChoiceOf(TextPlacements)}},
    {Of(TypeButton),
     {NAMED_SLOT(ButtonSlot, TextOffset),
      Spread::One,
      "ボタン文字列 位置",
      Thickness,
      {{{0, OffsetRange}}}}},
    {Of(TypeButton), {NAMED_SLOT(ButtonSlot, Font), Spread::One, "フォント", Font}},
    {Of(TypeButton),
     {NAMED_SLOT(ButtonSlot, BorderWidth),
      Spread::One,
      "ボタンの枠幅",
      Thickness,
      {{{1, WidthRange}}}}},

    {Choices, {NAMED_SLOT(ChoiceSlot, TextColour), Spread::EvenOdd, "前景色", Colour}},
    {Choices, {NAMED_SLOT(ChoiceSlot, BackColour), Spread::EvenOdd, "背景色", Colour}},
    {Choices, {NAMED_SLOT(ChoiceSlot, BackEnabled), Spread::One, "背景色有効", Switch}},
    {Choices, {NAMED_SLOT(ChoiceSlot, Font), Spread::One, "フォント", Font}},
    {Choices, {NAMED_SLOT(ChoiceSlot, Length), Spread::One, "文字数", Characters}},
    {Of(TypeRadioButton),
     {NAMED_SLOT(ChoiceSlot, Number),
      Spread::One,
      "識別番号（ボタン）",
      GroupNumber,
      {{{0, GroupNumberRange}}}}},
    {Of(TypeCheckBox),
     {NAMED_SLOT(ChoiceSlot, Number), Spread::One, "識別番号（ボタン）", GroupNumber}},

    {Of(TypeBitmap), {NAMED_SLOT(BitmapSlot, TransparentColour), Spread::One, "透過色", Colour}},
    {Of(TypeBitmap), {NAMED_SLOT(BitmapSlot, Transparent), Spread::One, "透過色 有効", Switch}},

    {Of(TypeMark), {NAMED_SLOT(MarkSlot, MarkColour), Spread::Systems, "前景色", Colour}},
    {Of(TypeMark), {NAMED_SLOT(MarkSlot, BackColour), Spread::Systems, "背景色", Colour}},
    {Of(TypeMark), {NAMED_SLOT(MarkSlot, BackEnabled), Spread::One, "背景色有効", Switch}},
    {Of(TypeMark), {NAMED_SLOT(MarkSlot, Blinking), Spread::One, "点滅", Switch}},
    {Of(TypeMark), {NAMED_SLOT(MarkSlot, Mark), Spread::Systems, "マーク", Mark}},

    {Of(TypeScrollBar), {NAMED_SLOT(ScrollSlot, TopLeftColour), Spread::One, "左上枠", Colour}},
    {Of(TypeScrollBar), {NAMED_SLOT(ScrollSlot, BottomRightColour), Spread::One, "右下枠", Colour}},
    {Of(TypeScrollBar), {NAMED_SLOT(ScrollSlot, TroughColour), Spread::One, "内部", Colour}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, ThumbColour), Spread::One, "内部（つまみ）", Colour}},
    {Of(TypeScrollBar), {NAMED_SLOT(ScrollSlot, SingleArrows), Spread::One, "シングル", Switch}},
    {Of(TypeScrollBar), {NAMED_SLOT(ScrollSlot, DoubleArrows), Spread::One, "ダブル", Switch}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, Direction), Spread::One, "表示方向", ChoiceOf(ScrollDirections)}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, FrameWidth), Spread::One, "枠幅", Thickness, {{{0, WidthRange}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, DisplayAmount),
      Spread::One,
      "表示量",
      Amount,
      {{{1, DisplayAmountRange}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, DataAmount),
      Spread::One,
      "データ量",
      Amount,
      {{{0, DataAmountRange}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, SingleStep),
      Spread::One,
      "移動量 シングル",
      Amount,
      {{{0, StepRange}, {1, StepMissing, nullptr, While(ScrollSlot::SingleArrows)}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, DoubleStep),
      Spread::One,
      "移動量 ダブル",
      Amount,
      {{{0, StepRange}, {1, StepMissing, nullptr, While(ScrollSlot::DoubleArrows)}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, PageStep),
      Spread::One,
      "移動量 ページ",
      Amount,
      {{{0, StepRange}, {1, StepMissing}}}}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, MouseWheel), Spread::One, "マウスホィール", Switch}},
    {Of(TypeScrollBar),
     {NAMED_SLOT(ScrollSlot, FunctionKeys), Spread::One, "ファンクションキー", Switch}},

    {Of(TypeSpinButton), {NAMED_SLOT(SpinSlot, LowerLimit), Spread::One, "下限値", Amount}},
    {Of(TypeSpinButton), {NAMED_SLOT(SpinSlot, UpperLimit), Spread::One, "上限値", Amount}},

    {AllTypes, {NAMED_SLOT(ItemSlot, TopLayer), Spread::One, "TOP", Switch}},
    {AllTypes, {NAMED_SLOT(ItemSlot, EraseColour), Spread::One, "消去色", Colour}},
};

bool IsOf(const Row& row, gint type) {
  const bool second = row.Is.Slot == ItemSlot::X2 || row.Is.Slot == ItemSlot::Y2;
  return (row.Types >> type & 1u) != 0 && !(second && PtrnDataType[type] == 0);
}

using Parameters = std::vector<Parameter>;

Parameters RowsOf(gint type) {
  Parameters parameters;
  for (const Row& row : Rows)
    if (IsOf(row, type)) parameters.push_back(row.Is);
  return parameters;
}

}  // namespace

std::span<const Parameter> ItemParameters(gint type) {
  static const auto byType = [] {
    std::array<Parameters, std::size(PtrnDataType)> all;
    for (gsize no = 1; no < all.size(); ++no) all[no] = RowsOf(static_cast<gint>(no));
    return all;
  }();
  if (!IsItemType(type)) return {};
  return byType[static_cast<gsize>(type)];
}

const Parameter* FindParameter(std::span<const Parameter> parameters, gint slot) {
  const auto found = std::find_if(parameters.begin(), parameters.end(),
                                  [slot](const Parameter& row) { return row.Holds(slot); });
  return found == parameters.end() ? nullptr : &*found;
}

const Parameter* FindParameter(gint type, gint slot) {
  return FindParameter(ItemParameters(type), slot);
}
