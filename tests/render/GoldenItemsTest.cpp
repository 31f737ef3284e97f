// Every item type in its variants, grouped on sheets.
#include <gtest/gtest.h>

#include "tests/render/Golden.h"
#include "tests/render/ItemSamples.h"

namespace {

class GoldenItems : public testing::Test {
 protected:
  GoldenItems() { DrawSceneMarks(); }
  Drawable& Sheet(gint width, gint height) {
    sheet_ = std::make_unique<Drawable>(width, height);
    PaintBack(*sheet_, Ink::White);
    return *sheet_;
  }
  void Paint(const PTRNDATA& item) { PaintItem(*sheet_, item); }

 private:
  Scene scene_;
  SceneBitmaps bitmaps_;
  std::unique_ptr<Drawable> sheet_;
};

TEST_F(GoldenItems, Frames) {
  Drawable& sheet = Sheet(300, 90);
  Paint(FrameItem(10, 10, 60, 50, 0));
  Paint(FrameItem(70, 10, 120, 50, 1));
  Paint(FrameItem(130, 10, 180, 50, 6));
  PTRNDATA uneven = FrameItem(190, 10, 240, 50, 2);
  uneven.Parm[FrameSlot::TopWidth] = 10;
  uneven.Parm[FrameSlot::RightWidth] = 0;
  Paint(uneven);
  PTRNDATA hollow = FrameItem(250, 10, 290, 50, 3);
  SetAllSystems(&hollow, FrameSlot::AreaColour, -1);
  Paint(hollow);
  // Borders wider than the box.
  Paint(FrameItem(40, 65, 60, 80, 12));
  // Reversed corners: no area, borders all the same.
  Paint(FrameItem(180, 85, 130, 65, 3));
  ExpectGolden(sheet, "frames");
}

TEST_F(GoldenItems, Lines) {
  Drawable& sheet = Sheet(330, 230);
  for (gint style = 0; style < 3; ++style) {
    for (gint position = 0; position < 3; ++position) {
      const gint x = 10 + position * 50;
      const gint y = 10 + style * 40;
      Paint(LineItem(x, y, x + 40, y, style, 1, position));
      Paint(LineItem(x, y + 12, x + 40, y + 12, style, 4, position));
      Paint(LineItem(x + 40, y + 26, x, y + 26, style, 3, position));
      const gint column = 170 + style * 54 + position * 18;
      Paint(LineItem(column, 10, column, 60, style, 1, position));
      Paint(LineItem(column, 70, column, 120, style, 5, position));
    }
    const gint x = 10 + style * 110;
    Paint(LineItem(x, 140, x + 90, 160, style, 1));
    Paint(LineItem(x, 150, x + 90, 170, style, 4, style));
    Paint(LineItem(x, 220, x + 20, 170, style, 1));
    Paint(LineItem(x + 40, 180, x + 20, 220, style, 3));
    Paint(LineItem(x + 50, 220, x + 90, 180, style, 6, 1));
  }
  Paint(LineItem(0, 0, 100, 100, 0, 0));  // without width there is no line
  ExpectGolden(sheet, "lines");
}

TEST_F(GoldenItems, RectanglesAndEllipses) {
  Drawable& sheet = Sheet(350, 220);
  for (const gint type : {gint{TypeRectangle}, gint{TypeEllipse}}) {
    const gint top = type == TypeRectangle ? 15 : 120;
    for (gint position = 0; position < 3; ++position) {
      const gint x = 15 + position * 110;
      Paint(ShapeItem(type, x, top, x + 40, top + 30, 0, 1, position));
      Paint(ShapeItem(type, x + 55, top, x + 95, top + 30, 1, 5, position));
      Paint(ShapeItem(type, x, top + 50, x + 40, top + 80, 1, 0, position));
      Paint(ShapeItem(type, x + 95, top + 80, x + 55, top + 50, 1, 2, position));
    }
  }
  ExpectGolden(sheet, "shapes");
}

TEST_F(GoldenItems, BarGraphs) {
  Drawable& sheet = Sheet(330, 110);
  for (gint direction = 0; direction < 2; ++direction) {
    const gint x = 10 + direction * 160;
    Paint(BarItem(x, 10, x + 30, 100, direction, 0, 0));
    Paint(BarItem(x + 40, 10, x + 71, 100, direction, 0, 2));
    Paint(BarItem(x + 80, 10, x + 110, 100, direction, 1, 1));
    Paint(BarItem(x + 120, 10, x + 151, 101, direction, 6, 3));
  }
  ExpectGolden(sheet, "bargraphs");
}

TEST_F(GoldenItems, Texts) {
  Drawable& sheet = Sheet(420, 330);
  gint y = 8;
  for (const gint font : {Font12, Font16, Font24}) {
    for (const gint back : {0, 1}) {
      const gint x = 8 + back * 206;
      const Parms parms = {{TextSlot::BackEnabled, back}};
      Paint(TextItem(TypeFixedString, x, y, font, parms, "水位 Level ｱｲｳ"));
      Parms variable = parms;
      variable.emplace_back(TextSlot::Length, 10);
      Paint(TextItem(TypeVariableString, x, y + 34, font, variable));
      Parms numeric = parms;
      numeric.insert(numeric.end(),
                     {{TextSlot::Length, 9}, {TextSlot::Decimals, 2}, {TextSlot::Grouping, 1}});
      Paint(TextItem(TypeNumeric, x, y + 68, font, numeric));
    }
    y += 106;
  }
  Paint(TextItem(TypeFixedString, 330, 8, NoFont, {{TextSlot::BackEnabled, 1}}, "unnamed font"));
  Paint(TextItem(TypeFixedString, 330, 40, Font12, {{TextSlot::BackEnabled, 1}}, ""));
  ExpectGolden(sheet, "texts");
}

TEST_F(GoldenItems, Buttons) {
  Drawable& sheet = Sheet(330, 190);
  PaintBack(sheet, Ink::Cream);
  Paint(ButtonItem(10, 10, 100, 40, Font16, 1, "起動"));
  Paint(ButtonItem(110, 10, 210, 40, Font16, 3, "Start"));
  Paint(ButtonItem(220, 10, 320, 40, Font12, 0, "枠なし"));
  Paint(ButtonItem(10, 50, 100, 100, Font24, 8, "停止"));
  PTRNDATA placed = ButtonItem(110, 50, 210, 100, Font16, 2, "指定");
  placed.Parm[ButtonSlot::TextPlacement] = 1;
  placed.Parm[ButtonSlot::TextOffset] = 10;
  Paint(placed);
  // A placed caption may run past the right edge.
  placed.Point1.x = 220;
  placed.Point2.x = 290;
  placed.Parm[ButtonSlot::TextOffset] = 60;
  Paint(placed);
  Paint(ButtonItem(10, 110, 100, 140, Font16, 2, ""));
  ColorCode = 1;
  Paint(ButtonItem(110, 110, 210, 140, Font16, 2, "系統２"));
  ColorCode = 0;
  // A caption longer than its button, and a border wider than the button.
  Paint(ButtonItem(250, 110, 290, 140, Font16, 2, "長い文字列"));
  Paint(ButtonItem(10, 160, 30, 176, Font12, 12, ""));
  Paint(ButtonItem(110, 150, 210, 180, NoFont, 2, "no font"));
  ExpectGolden(sheet, "buttons");
}

TEST_F(GoldenItems, RadioButtonsAndCheckBoxes) {
  Drawable& sheet = Sheet(420, 220);
  for (gint system = 0; system < 2; ++system) {
    ColorCode = system;
    for (const gint type : {gint{TypeRadioButton}, gint{TypeCheckBox}}) {
      const gint x = 10 + (type - TypeRadioButton) * 205;
      const gint y = 10 + system * 105;
      Paint(ChoiceItem(type, x, y, Font16, 0, "自動運転"));
      Paint(ChoiceItem(type, x + 100, y, Font16, 1, "自動運転"));
      Paint(ChoiceItem(type, x, y + 30, Font24, 1, "Auto"));
      Paint(ChoiceItem(type, x + 110, y + 30, Font12, 0, "手動"));
      Paint(ChoiceItem(type, x, y + 70, Font16, 1, ""));
      Paint(ChoiceItem(type, x + 50, y + 70, Font16, 0, ""));
      Paint(ChoiceItem(type, x + 100, y + 70, NoFont, 1, "no font"));
    }
  }
  ExpectGolden(sheet, "choices");
}

TEST_F(GoldenItems, BitmapsMarksAndSpinButtons) {
  Drawable& sheet = Sheet(420, 250);
  PaintBack(sheet, Ink::Cream);
  Paint(BitmapItem(10, 10, 42, 34, 0));
  Paint(BitmapItem(60, 10, 92, 34, 1));
  Paint(BitmapItem(110, 10, 206, 82, 0));
  Paint(BitmapItem(215, 10, 311, 82, 1));
  Paint(BitmapItem(335, 20, 315, 70, 0));  // absolute size from the first point
  Paint(BitmapItem(370, 10, 410, 50, 0, "missing.png"));
  gint x = 10;
  for (const gint mark : {SceneMark::Stripes16x32, SceneMark::Disc32x32, SceneMark::Wedge64x32,
                          SceneMark::Cross32x64, SceneMark::Ring64x64, SceneMark::Empty}) {
    const SIZE size = MarkDataSize[mark / 50];
    Paint(MarkItem(x, 100, x + size.cx, 100 + size.cy, mark, 0));
    Paint(MarkItem(x, 170, x + 50, 230, mark, 1));
    x += 68;
  }
  Paint(MarkItem(60, 240, 10, 235, SceneMark::Disc32x32, 1));  // negative width: nothing
  Paint(MakeItem(TypeSpinButton, 360, 90, 376, 122));
  Paint(MakeItem(TypeSpinButton, 384, 84, 414, 134));
  ExpectGolden(sheet, "pictures");
}

TEST_F(GoldenItems, ScrollBars) {
  Drawable& sheet = Sheet(420, 240);
  PaintBack(sheet, Ink::Cream);
  gint place = 10;
  for (gint variant = 0; variant < 4; ++variant) {
    const gint single = variant & 1;
    const gint twofold = variant >> 1;
    Paint(ScrollItem(place, 10, place + 24, 190, 1, 2, single, twofold));
    Paint(ScrollItem(170, place, 410, place + 24, 0, 2, single, twofold));
    place += 36;
  }
  Paint(ScrollItem(170, 160, 240, 184, 0, 2, 1, 1));  // arrows meet: no trough, no thumb
  Paint(ScrollItem(260, 160, 340, 164, 0, 2, 1, 1));  // too thin for a square
  Paint(ScrollItem(260, 170, 340, 190, 0, 0, 1, 0));
  Paint(ScrollItem(410, 230, 260, 206, 0, 3, 1, 0));  // reversed corners
  Paint(ScrollItem(10, 200, 130, 230, 0, 5, 1, 0));
  ExpectGolden(sheet, "scrollbars");
}

// One row of items for each colour system; colours differ wherever an item keeps one per system.
TEST_F(GoldenItems, ColourSystems) {
  constexpr gint colours[4] = {Ink::Blue, Ink::Orange, Ink::Green, Ink::Violet};
  constexpr gint backs[4] = {Ink::Cream, Ink::Dark, Ink::Rose, Ink::Silver};
  constexpr gint marks[4] = {SceneMark::Disc32x32, SceneMark::Ring64x64, SceneMark::Cross32x64,
                             SceneMark::Stripes16x32};
  const auto colour = [&](PTRNDATA item, std::initializer_list<gint> fronts, gint back) {
    for (gint system = 0; system < 4; ++system) {
      for (const gint slot : fronts) item.Parm[slot + system] = colours[system];
      if (back >= 0) item.Parm[back + system] = backs[system];
      if (item.Type == TypeMark) item.Parm[MarkSlot::Mark + system] = marks[system];
    }
    return item;
  };
  Drawable& sheet = Sheet(420, 164);
  for (gint system = 0; system < 4; ++system) {
    ColorCode = system;
    const gint y = 6 + system * 40;
    Paint(colour(FrameItem(6, y, 36, y + 30, 4),
                 {FrameSlot::TopColour, FrameSlot::BottomColour, FrameSlot::LeftColour,
                  FrameSlot::RightColour},
                 FrameSlot::AreaColour));
    Paint(colour(LineItem(44, y + 15, 74, y + 15, 0, 5), {LineSlot::Colour}, -1));
    Paint(colour(ShapeItem(TypeRectangle, 82, y, 112, y + 30, 1, 3, 1), {ShapeSlot::LineColour},
                 ShapeSlot::FillColour));
    Paint(colour(ShapeItem(TypeEllipse, 120, y, 150, y + 30, 1, 3, 1), {ShapeSlot::LineColour},
                 ShapeSlot::FillColour));
    Paint(colour(BarItem(158, y, 178, y + 30, 0, 0, 1), {BarSlot::BarColour}, BarSlot::BackColour));
    Paint(colour(TextItem(TypeFixedString, 186, y, Font16, {{TextSlot::BackEnabled, 1}}, "系統"),
                 {TextSlot::TextColour}, TextSlot::BackColour));
    Paint(ButtonItem(230, y, 280, y + 30, Font16, 2, "OK"));
    Paint(ChoiceItem(TypeRadioButton, 290, y, Font16, 1, "甲"));
    Paint(ChoiceItem(TypeCheckBox, 340, y, Font16, 1, "乙"));
    Paint(
        colour(MarkItem(386, y, 416, y + 30, 0, 1), {MarkSlot::MarkColour}, MarkSlot::BackColour));
  }
  ExpectGolden(sheet, "colour-systems");
}

}  // namespace
