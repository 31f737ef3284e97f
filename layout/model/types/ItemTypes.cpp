#include "layout/ItemTypes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

// Index = type code. The ranks' steps of ten leave room for types in between.
constexpr ItemTypeRow ItemTypeRows[] = {
    {},
    {.Type = TypeFrame,
     .Name = "Frame",
     .Label = "矩形枠",
     .PaintRank = 10,
     .Shape = ItemShape::Box,
     .Covers = true,
     .CoverColour = FrameSlot::AreaColour},
    {.Type = TypeLine, .Name = "Line", .Label = "直線", .PaintRank = 50, .Shape = ItemShape::Line},
    {.Type = TypeRectangle,
     .Name = "Rectangle",
     .Label = "矩形",
     .PaintRank = 20,
     .Shape = ItemShape::Box,
     .Covers = true,
     .CoverSwitch = ShapeSlot::Filled,
     .CoverColour = ShapeSlot::FillColour},
    {.Type = TypeEllipse,
     .Name = "Ellipse",
     .Label = "楕円",
     .PaintRank = 30,
     .Shape = ItemShape::Oval,
     .Covers = true,
     .CoverSwitch = ShapeSlot::Filled},
    {.Type = TypeBarGraph,
     .Name = "BarGraph",
     .Label = "棒グラフ",
     .PaintRank = 40,
     .Shape = ItemShape::Box,
     .Data = ItemData::Number,
     .NeedsCode = true,
     .FrontColour = BarSlot::BarColour,
     .BackColour = BarSlot::BackColour,
     .Covers = true},
    {.Type = TypeFixedString,
     .Name = "FixedString",
     .Label = "固定文字列",
     .PaintRank = 130,
     .Family = ItemFamily::Texts,
     .Shape = ItemShape::Anchored,
     .Texts = ItemTexts::Words,
     .Font = TextSlot::Font,
     .FrontColour = TextSlot::TextColour,
     .BackColour = TextSlot::BackColour,
     .BackSwitch = TextSlot::BackEnabled},
    {.Type = TypeVariableString,
     .Name = "VariableString",
     .Label = "可変文字列",
     .PaintRank = 140,
     .Family = ItemFamily::Texts,
     .Shape = ItemShape::Anchored,
     .Data = ItemData::Text,
     .NeedsCode = true,
     .HasCursorKeys = true,
     .Font = TextSlot::Font,
     .FrontColour = TextSlot::TextColour,
     .BackColour = TextSlot::BackColour,
     .BackSwitch = TextSlot::BackEnabled},
    {.Type = TypeNumeric,
     .Name = "Numeric",
     .Label = "数値データ",
     .PaintRank = 150,
     .Family = ItemFamily::Texts,
     .Shape = ItemShape::Anchored,
     .Data = ItemData::Number,
     .NeedsCode = true,
     .HasCursorKeys = true,
     .Font = TextSlot::Font,
     .FrontColour = TextSlot::TextColour,
     .BackColour = TextSlot::BackColour,
     .BackSwitch = TextSlot::BackEnabled},
    {.Type = TypeButton,
     .Name = "Button",
     .Label = "ボタン",
     .PaintRank = 100,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Box,
     .Texts = ItemTexts::Caption,
     .TextLabel = "ボタンの文字",
     .Data = ItemData::Command,
     .Font = ButtonSlot::Font,
     .FrontColour = ButtonSlot::TextColour,
     .BackColour = ButtonSlot::FaceColour,
     .Covers = true,
     .CoverColour = ButtonSlot::FaceColour},
    {.Type = TypeRadioButton,
     .Name = "RadioButton",
     .Label = "ラジオボタン",
     .PaintRank = 110,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Anchored,
     .Texts = ItemTexts::Words,
     .TextLabel = "ボタンの文字",
     .Data = ItemData::Choice,
     .Font = ChoiceSlot::Font,
     .FrontColour = ChoiceSlot::TextColour,
     .BackColour = ChoiceSlot::BackColour,
     .BackSwitch = ChoiceSlot::BackEnabled},
    {.Type = TypeCheckBox,
     .Name = "CheckBox",
     .Label = "チェックボックス",
     .PaintRank = 120,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Anchored,
     .Texts = ItemTexts::Words,
     .TextLabel = "ボタンの文字",
     .Data = ItemData::Switch,
     .Font = ChoiceSlot::Font,
     .FrontColour = ChoiceSlot::TextColour,
     .BackColour = ChoiceSlot::BackColour,
     .BackSwitch = ChoiceSlot::BackEnabled},
    {.Type = TypeBitmap,
     .Name = "Bitmap",
     .Label = "ビットマップ",
     .PaintRank = 60,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Box,
     .Texts = ItemTexts::Picture,
     .TextLabel = "ビットマップ名",
     .Covers = true},
    {.Type = TypeMark,
     .Name = "Mark",
     .Label = "マーク",
     .PaintRank = 70,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Box,
     .FrontColour = MarkSlot::MarkColour,
     .BackColour = MarkSlot::BackColour,
     .BackSwitch = MarkSlot::BackEnabled},
    {.Type = TypeScrollBar,
     .Name = "ScrollBar",
     .Label = "スクロールバー",
     .PaintRank = 80,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Box,
     .Data = ItemData::Number,
     .NeedsCode = true,
     .Covers = true},
    {.Type = TypeSpinButton,
     .Name = "SpinButton",
     .Label = "スピンボタン",
     .PaintRank = 90,
     .Family = ItemFamily::Controls,
     .Shape = ItemShape::Box,
     .Data = ItemData::Number,
     .NeedsCode = true,
     .Covers = true},
};

namespace {

static_assert(std::size(ItemTypeRows) == ItemTypeCount + 1, "each type has a row");

constexpr bool RowsAreInOrder() {
  for (gint type = 0; type <= ItemTypeCount; ++type) {
    if (ItemTypeRows[type].Type != type) return false;
  }
  return true;
}

static_assert(RowsAreInOrder());

// The type that is painted at a place.
constexpr gint PaintedAt(gint place) {
  const auto before = [](const ItemTypeRow& one) {
    return std::count_if(
        std::begin(ItemTypeRows) + 1, std::end(ItemTypeRows),
        [&one](const ItemTypeRow& other) { return other.PaintRank < one.PaintRank; });
  };
  const auto found = std::find_if(std::begin(ItemTypeRows) + 1, std::end(ItemTypeRows),
                                  [&](const ItemTypeRow& row) { return before(row) == place; });
  return found->Type;  // none: two ranks are alike, and this is no constant
}

constexpr bool NeedsTwoPoints(gint type) {
  return ItemTypeRows[type].Shape > ItemShape::Anchored;
}

constexpr gint PointsOf(gint no) {
  return NeedsTwoPoints(no + 1) ? 1 : 0;
}

constexpr const gchar* LabelAt(gint no) {
  return ItemTypeRows[no + 1].Label;
}

// An array takes its entries one by one. A list that is short of a type does not compile.
#define OF_EACH_TYPE(Entry)                                                                 \
  Entry(0), Entry(1), Entry(2), Entry(3), Entry(4), Entry(5), Entry(6), Entry(7), Entry(8), \
      Entry(9), Entry(10), Entry(11), Entry(12), Entry(13), Entry(14)

}  // namespace

constinit const gint PtrnDataType[] = {0, OF_EACH_TYPE(PointsOf)};
constinit const gint PtrnTable[] = {OF_EACH_TYPE(PaintedAt)};
constinit const gchar* const PtrnTypeList[] = {OF_EACH_TYPE(LabelAt), ""};

std::span<const ItemTypeRow> ItemTypes() {
  return std::span(ItemTypeRows).subspan(1);
}
