// The page of each item type: its rows as they read. The tables that the rows of ToolBox_Line make
// are known as ToolLine_String, ToolLine_Numr and so on; those of ToolBox_Butn as ToolButn1_String
// with one language, ToolButn2_String with two.
#include <array>

#include "dialogs/ToolBox.h"
#include "dialogs/toolbox/ToolBoxRows.h"
#include "layout/ItemSlots.h"

namespace {

void ToolBox_Gbox(PageRows& page) {
  page.BuildLaterColoursLast();
  page.Row().Colours(FrameSlot::AreaColour);
  page.Row("上 境界色/枠幅").Colours(FrameSlot::TopColour).Number(FrameSlot::TopWidth);
  page.Row("下 境界色/枠幅").Colours(FrameSlot::BottomColour).Number(FrameSlot::BottomWidth);
  page.Row("左 境界色/枠幅").Colours(FrameSlot::LeftColour).Number(FrameSlot::LeftWidth);
  page.Row("右 境界色/枠幅").Colours(FrameSlot::RightColour).Number(FrameSlot::RightWidth);
  page.Row().Colours(ItemSlot::EraseColour);
}

void ToolBox_Line(PageRows& page) {
  page.Row().Choice(LineSlot::Style);
  page.Row().Number(LineSlot::Width);
  page.Row().Colours(LineSlot::Colour);
  page.Row().Colours(ItemSlot::EraseColour);
  page.Row().Radio(LineSlot::Position);
}

void ToolBox_Rect(PageRows& page) {
  page.Row().Number(ShapeSlot::Width);
  page.Row().Colours(ShapeSlot::LineColour);
  page.Row().Colours(ShapeSlot::FillColour);
  page.Row().Check(ShapeSlot::Filled, 3);
  page.Row().Colours(ItemSlot::EraseColour);
  page.Row().Radio(ShapeSlot::Position);
}

void ToolBox_Crcl(PageRows& page) {
  ToolBox_Rect(page);
}

void ToolBox_Barg(PageRows& page) {
  page.Row().Radio(BarSlot::Direction);
  page.Row().Colours(BarSlot::BarColour);
  page.Row().Colours(BarSlot::BackColour);
  page.Row().Colours(BarSlot::OutlineColour);
  page.Row().Colours(ItemSlot::EraseColour);
  page.Row("線幅/枠幅").Number(BarSlot::BarWidth).Number(BarSlot::OutlineWidth);
  page.Row("下限値/上限値").Number(BarSlot::LowerLimit).Number(BarSlot::UpperLimit);
}

void StringColours(PageRows& page) {
  page.Row().Colours(TextSlot::TextColour);
  page.Row().Colours(TextSlot::BackColour);
  page.Row().Check(TextSlot::BackEnabled).Check(TextSlot::Blinking);
  page.Row().Colours(ItemSlot::EraseColour);
}

void ToolBox_Fchr(PageRows& page) {
  // Kept: further texts are labelled as fonts, and the font is counted among them.
  page.Texts(std::array{"文字列", "フォント１", "フォント２"});
  constexpr const gchar* FontLabels[] = {"フォント", "フォント２", "フォント３"};
  page.Row(FontLabels[page.Language()]).Choice(TextSlot::Font);
  StringColours(page);
}

void ToolBox_Char(PageRows& page) {
  page.Row().Number(TextSlot::Length);
  page.Row().Choice(TextSlot::Font);
  StringColours(page);
  page.Row().Check(TextSlot::InputAllowed);
  page.Row().Check(TextSlot::JapaneseInput);
  page.Row().CursorKeys(TextSlot::CursorKeys);
}

void ToolBox_Numr(PageRows& page) {
  page.Row().Number(TextSlot::Length).Number(TextSlot::Decimals);
  page.Row().Choice(TextSlot::Font);
  StringColours(page);
  page.Row().Check(TextSlot::InputAllowed);
  page.Row().Check(TextSlot::KeepZeros);
  page.Row().Check(TextSlot::Grouping);
  page.Row().Check(TextSlot::Hexadecimal);
  page.Row().CursorKeys(TextSlot::CursorKeys);
}

void ButtonTexts(PageRows& page) {
  if (page.Language() == 0) {
    page.Texts(std::array{"ボタンの文字"});
  } else {
    page.Texts(std::array{"ボタンの文字１", "ボタンの文字２", "ボタンの文字３"});
  }
}

void ToolBox_Butn(PageRows& page) {
  ButtonTexts(page);
  page.Row().Choice(ButtonSlot::Font);
  page.Row().Number(ButtonSlot::BorderWidth);
  page.Row("左上/右下枠").Colours(ButtonSlot::TopLeftColour).Colours(ButtonSlot::BottomRightColour);
  page.Row().Colours(ButtonSlot::FaceColour);
  page.Row("ボタンの文字").Colours(ButtonSlot::TextColour);
  page.Row();
  // Kept: with two languages the swatch stands in the first line, away from its label.
  if (page.Language() == 1) page.InLine(0);
  page.Colours(ItemSlot::EraseColour);
  page.Row().Radio(ButtonSlot::TextPlacement).Number(ButtonSlot::TextOffset);
  // Kept: a label without a control.
  page.Row("ファンクションキー");
}

void ChoiceRows(PageRows& page) {
  ButtonTexts(page);
  page.Row().Choice(ChoiceSlot::Font);
  page.Row().Colours(ChoiceSlot::TextColour);
  page.Row().Colours(ChoiceSlot::BackColour).Check(ChoiceSlot::BackEnabled);
  page.Row().Colours(ItemSlot::EraseColour);
}

void ToolBox_Rdio(PageRows& page) {
  ChoiceRows(page);
  page.Row("識別番号").Number(ChoiceSlot::Number);
}

void ToolBox_Chck(PageRows& page) {
  ChoiceRows(page);
}

void ToolBox_Bmap(PageRows& page) {
  page.Row("ビットマップ名").Entry(PtrnData.Text1, true).Browse(ToolBox_Name);
  page.Row().Colours(BitmapSlot::TransparentColour).Check(BitmapSlot::Transparent, "有効", 1);
  page.Row().Colours(ItemSlot::EraseColour);
}

void ToolBox_Mark(PageRows& page) {
  // Kept: four marks with two colour systems as well.
  page.Row().Marks(MarkSlot::Mark);
  page.Row().Colours(MarkSlot::MarkColour);
  page.Row().Colours(MarkSlot::BackColour);
  page.Row().Check(MarkSlot::BackEnabled).Check(MarkSlot::Blinking);
  page.Row().Colours(ItemSlot::EraseColour);
}

void ToolBox_Sbar(PageRows& page) {
  page.Row().Radio(ScrollSlot::Direction, 2);
  page.Row("ボタン").Check(ScrollSlot::SingleArrows).Check(ScrollSlot::DoubleArrows);
  page.Row("左上/右下枠").Colours(ScrollSlot::TopLeftColour).Colours(ScrollSlot::BottomRightColour);
  page.Row().Colours(ScrollSlot::TroughColour).Colours(ScrollSlot::ThumbColour);
  page.Row().Colours(ItemSlot::EraseColour);
  page.Row().Number(ScrollSlot::FrameWidth);
  page.Row("表示/データ量").Number(ScrollSlot::DisplayAmount).Number(ScrollSlot::DataAmount);
  page.Row("移動量")
      .Number(ScrollSlot::SingleStep)
      .Number(ScrollSlot::DoubleStep)
      .Number(ScrollSlot::PageStep);
  page.Row().Check(ScrollSlot::MouseWheel, "使用可");
  page.Row().Check(ScrollSlot::FunctionKeys, "使用可");
}

void ToolBox_Spin(PageRows& page) {
  page.Row().Colours(ItemSlot::EraseColour);
  page.Row("下限/上限値").Number(SpinSlot::LowerLimit).Number(SpinSlot::UpperLimit);
}

struct TypePage {
  gint Type;
  void (*Describe)(PageRows& page);
};
constexpr TypePage Pages[] = {{TypeFrame, ToolBox_Gbox},          {TypeLine, ToolBox_Line},
                              {TypeRectangle, ToolBox_Rect},      {TypeEllipse, ToolBox_Crcl},
                              {TypeBarGraph, ToolBox_Barg},       {TypeFixedString, ToolBox_Fchr},
                              {TypeVariableString, ToolBox_Char}, {TypeNumeric, ToolBox_Numr},
                              {TypeButton, ToolBox_Butn},         {TypeRadioButton, ToolBox_Rdio},
                              {TypeCheckBox, ToolBox_Chck},       {TypeBitmap, ToolBox_Bmap},
                              {TypeMark, ToolBox_Mark},           {TypeScrollBar, ToolBox_Sbar},
                              {TypeSpinButton, ToolBox_Spin}};

// One page per type, in the order of the types.
static_assert([] {
  gint type = 0;
  for (const TypePage& page : Pages) {
    if (page.Type != ++type) return false;
  }
  return type == ItemTypeCount;
}());

}  // namespace

void DescribePage(PageRows& page, gint type) {
  Pages[type - 1].Describe(page);
}
