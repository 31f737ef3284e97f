// The page of each item type: its rows as they read. The tables that the rows of ToolBox_Line make
// are known as ToolLine_String, ToolLine_Numr and so on; those of ToolBox_Butn as ToolButn1_String
// with one language, ToolButn2_String with two.
#include <array>

#include "Constant.h"
#include "dialogs/ToolBox.h"
#include "dialogs/toolbox/ToolBoxRows.h"
#include "layout/ItemSlots.h"
#include "project/ProjectRecord.h"
#include "support/Resource.h"

namespace {

constexpr const gchar* LinePositions[] = {"中央", "上左", "下右"};

void EraseColour(PageRows& page) {
  page.Row("消去色").Colour(ItemSlot::EraseColour);
}

void ToolBox_Gbox(PageRows& page) {
  page.BuildLaterColoursLast();
  page.Row("領域色").SystemColours(FrameSlot::AreaColour);
  page.Row("上 境界色/枠幅").SystemColours(FrameSlot::TopColour).Number(FrameSlot::TopWidth, 99);
  page.Row("下 境界色/枠幅")
      .SystemColours(FrameSlot::BottomColour)
      .Number(FrameSlot::BottomWidth, 99);
  page.Row("左 境界色/枠幅").SystemColours(FrameSlot::LeftColour).Number(FrameSlot::LeftWidth, 99);
  page.Row("右 境界色/枠幅")
      .SystemColours(FrameSlot::RightColour)
      .Number(FrameSlot::RightWidth, 99);
  EraseColour(page);
}

void ToolBox_Line(PageRows& page) {
  page.Row("線種").Choice(LineSlot::Style, LineStyleList);
  page.Row("線幅").Number(LineSlot::Width, 99);
  page.Row("表示色").SystemColours(LineSlot::Colour);
  EraseColour(page);
  page.Row("表示位置").Radio(LineSlot::Position, LinePositions);
}

void ToolBox_Rect(PageRows& page) {
  page.Row("線幅").Number(ShapeSlot::Width, 99);
  page.Row("境界色").SystemColours(ShapeSlot::LineColour);
  page.Row("領域色").SystemColours(ShapeSlot::FillColour);
  page.Row().Check(ShapeSlot::Filled, "塗りつぶし", 3);
  EraseColour(page);
  page.Row("表示位置").Radio(ShapeSlot::Position, LinePositions);
}

void ToolBox_Crcl(PageRows& page) {
  ToolBox_Rect(page);
}

void ToolBox_Barg(PageRows& page) {
  page.Row("表示方向").Radio(BarSlot::Direction, std::array{"縱", "横"});
  page.Row("表示色").SystemColours(BarSlot::BarColour);
  page.Row("背景色").SystemColours(BarSlot::BackColour);
  page.Row("外形色").Colour(BarSlot::OutlineColour);
  EraseColour(page);
  page.Row("線幅/枠幅").Number(BarSlot::BarWidth, 99).Number(BarSlot::OutlineWidth, 99);
  page.Row("下限値/上限値").Number(BarSlot::LowerLimit, 9999).Number(BarSlot::UpperLimit, 9999);
}

// From the colours on, the pages of strings and numbers begin alike.
void StringColours(PageRows& page) {
  page.Row("前景色").SystemColours(TextSlot::TextColour);
  page.Row("背景色").SystemColours(TextSlot::BackColour);
  page.Row().Check(TextSlot::BackEnabled, "背景色有効").Check(TextSlot::Blinking, "点滅");
  EraseColour(page);
}

void CursorKeys(PageRows& page) {
  page.Row("カーソル")
      .Check(&CusrUp, "↑", 1)
      .Check(&CusrDown, "↓", 1)
      .Check(&CusrLeft, "←", 1)
      .Check(&CusrRight, "→", 1);
}

void ToolBox_Fchr(PageRows& page) {
  // Kept: further texts are labelled as fonts, and the font is counted among them.
  page.Texts(std::array{"文字列", "フォント１", "フォント２"});
  constexpr const gchar* FontLabels[] = {"フォント", "フォント２", "フォント３"};
  page.Row(FontLabels[page.Language()]).Choice(TextSlot::Font, FontNameList);
  StringColours(page);
}

void ToolBox_Char(PageRows& page) {
  page.Row("文字数").Number(TextSlot::Length, 99);
  page.Row("フォント").Choice(TextSlot::Font, FontNameList);
  StringColours(page);
  page.Row().Check(TextSlot::InputAllowed, "入力可");
  page.Row().Check(TextSlot::JapaneseInput, "日本語入力");
  CursorKeys(page);
}

void ToolBox_Numr(PageRows& page) {
  page.Row("表示桁数").Number(TextSlot::Length, 99).Number(TextSlot::Decimals, 99);
  page.Row("フォント").Choice(TextSlot::Font, FontNameList);
  StringColours(page);
  page.Row().Check(TextSlot::InputAllowed, "入力可");
  page.Row().Check(TextSlot::KeepZeros, "ゼロサプレスしない");
  page.Row().Check(TextSlot::Grouping, "桁区切り使用");
  page.Row().Check(TextSlot::Hexadecimal, "１６進数");
  CursorKeys(page);
}

void ButtonTexts(PageRows& page) {
  if (page.Language() == 0)
    page.Texts(std::array{"ボタンの文字"});
  else
    page.Texts(std::array{"ボタンの文字１", "ボタンの文字２", "ボタンの文字３"});
}

void ToolBox_Butn(PageRows& page) {
  ButtonTexts(page);
  page.Row("フォント").Choice(ButtonSlot::Font, FontNameList);
  page.Row("ボタンの枠幅").Number(ButtonSlot::BorderWidth, 99);
  page.Row("左上/右下枠").Colour(ButtonSlot::TopLeftColour).Colour(ButtonSlot::BottomRightColour);
  page.Row("ボタンの表面").Colour(ButtonSlot::FaceColour);
  page.Row("ボタンの文字").ColourPair(ButtonSlot::TextColour);
  // Kept: with two languages the swatch stands in the first line, away from its label.
  page.Row("消去色");
  if (page.Language() == 1) page.InLine(0);
  page.Colour(ItemSlot::EraseColour);
  page.Row("ボタン文字列")
      .Radio(ButtonSlot::TextPlacement, std::array{"中央", "指定"})
      .Number(ButtonSlot::TextOffset, 99);
  // Kept: a label without a control.
  page.Row("ファンクションキー");
}

// The pages of radio buttons and check boxes begin alike.
void ChoiceRows(PageRows& page) {
  ButtonTexts(page);
  page.Row("フォント").Choice(ChoiceSlot::Font, FontNameList);
  page.Row("前景色").ColourPair(ChoiceSlot::TextColour);
  page.Row("背景色")
      .ColourPair(ChoiceSlot::BackColour)
      .Check(ChoiceSlot::BackEnabled, "背景色有効");
  EraseColour(page);
}

void ToolBox_Rdio(PageRows& page) {
  ChoiceRows(page);
  page.Row("識別番号").Number(ChoiceSlot::Number, 99);
}

void ToolBox_Chck(PageRows& page) {
  ChoiceRows(page);
}

void ToolBox_Bmap(PageRows& page) {
  page.Row("ビットマップ名").Entry(PtrnData.Text1, true).Browse(ToolBox_Name);
  page.Row("透過色")
      .Colour(BitmapSlot::TransparentColour)
      .Check(BitmapSlot::Transparent, "有効", 1);
  EraseColour(page);
}

void ToolBox_Mark(PageRows& page) {
  // Kept: four marks with two colour systems as well.
  page.Row("マーク").SystemMarks(MarkSlot::Mark);
  page.Row("前景色").SystemColours(MarkSlot::MarkColour);
  page.Row("背景色").SystemColours(MarkSlot::BackColour);
  page.Row().Check(MarkSlot::BackEnabled, "背景色有効").Check(MarkSlot::Blinking, "点滅");
  EraseColour(page);
}

void ToolBox_Sbar(PageRows& page) {
  page.Row("表示方向").Radio(ScrollSlot::Direction, std::array{"水平方向", "垂直方向"}, 2);
  page.Row("ボタン")
      .Check(ScrollSlot::SingleArrows, "シングル")
      .Check(ScrollSlot::DoubleArrows, "ダブル");
  page.Row("左上/右下枠").Colour(ScrollSlot::TopLeftColour).Colour(ScrollSlot::BottomRightColour);
  page.Row("内部").Colour(ScrollSlot::TroughColour).Colour(ScrollSlot::ThumbColour);
  EraseColour(page);
  page.Row("枠幅").Number(ScrollSlot::FrameWidth, 99);
  page.Row("表示/データ量")
      .Number(ScrollSlot::DisplayAmount, 9999)
      .Number(ScrollSlot::DataAmount, 9999);
  page.Row("移動量")
      .Number(ScrollSlot::SingleStep, 9999)
      .Number(ScrollSlot::DoubleStep, 9999)
      .Number(ScrollSlot::PageStep, 9999);
  page.Row("マウスホィール").Check(ScrollSlot::MouseWheel, "使用可");
  page.Row("ファンクションキー").Check(ScrollSlot::FunctionKeys, "使用可");
}

void ToolBox_Spin(PageRows& page) {
  EraseColour(page);
  page.Row("下限/上限値").Number(SpinSlot::LowerLimit, 9999).Number(SpinSlot::UpperLimit, 9999);
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
  for (const TypePage& page : Pages)
    if (page.Type != ++type) return false;
  return type == ItemTypeCount;
}());

}  // namespace

void DescribePage(PageRows& page, gint type) {
  Pages[type - 1].Describe(page);
}
