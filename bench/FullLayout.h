// A layout of 1600 x 1200 dots full of items of all types.
#pragma once

#include <random>

#include "tests/render/ItemSamples.h"

constexpr gint LayoutWidth = 1600;
constexpr gint LayoutHeight = 1200;

inline bool IsTextType(gint type) {
  return type == TypeFixedString || type == TypeVariableString || type == TypeNumeric ||
         type == TypeRadioButton || type == TypeCheckBox;
}

// An item of a type; odd and even numbers differ in their details.
inline PTRNDATA ItemOfType(gint type, gint number, gint x, gint y) {
  switch (type) {
    case TypeFrame:
      return FrameItem(x, y, x + 120, y + 80, 3);
    case TypeLine:
      return LineItem(x, y, x + 120, y + (number % 2) * 60, number % 3, 2);
    case TypeRectangle:
      return ShapeItem(TypeRectangle, x, y, x + 80, y + 50, 1, 2);
    case TypeEllipse:
      return ShapeItem(TypeEllipse, x, y, x + 80, y + 50, 1, 2);
    case TypeBarGraph:
      return BarItem(x, y, x + 20, y + 90, 0, 0, 1);
    case TypeFixedString:
      return TextItem(TypeFixedString, x, y, Font16, {{TextSlot::BackEnabled, 1}}, "貯水池水位");
    case TypeVariableString:
      return TextItem(TypeVariableString, x, y, Font16, {{TextSlot::Length, 12}});
    case TypeNumeric:
      return TextItem(TypeNumeric, x, y, Font24, {{TextSlot::Length, 8}, {TextSlot::Decimals, 2}});
    case TypeButton:
      return ButtonItem(x, y, x + 90, y + 32, Font16, 2, "");
    case TypeRadioButton:
      return ChoiceItem(TypeRadioButton, x, y, Font16, 1, "自動");
    case TypeCheckBox:
      return ChoiceItem(TypeCheckBox, x, y, Font16, 0, "警報");
    case TypeBitmap:
      return BitmapItem(x, y, x + 64, y + 48, number % 2);
    case TypeMark:
      return MarkItem(x, y, x + 32, y + 32, SceneMark::Disc32x32, number % 2);
    case TypeScrollBar:
      return ScrollItem(x, y, x + 24, y + 160, 1, 2, 1, 1);
    default:
      return MakeItem(TypeSpinButton, x, y, x + 16, y + 32);
  }
}

// The open layout, with `plain` items without text and `texts` with, in mixed order.
class FullLayout {
 public:
  FullLayout(gint plain, gint texts) {
    DrawSceneMarks();
    PtrnHedr.Parm1[HedrSlot::Width] = LayoutWidth;
    PtrnHedr.Parm1[HedrSlot::Height] = LayoutHeight;
    PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::Cream;
    std::mt19937 random(1);
    std::uniform_int_distribution<gint> x(0, LayoutWidth - 120);
    std::uniform_int_distribution<gint> y(0, LayoutHeight - 90);
    for (gint number = 0, type = 1; plain + texts > 0; ++number, type = type % 15 + 1) {
      gint& left = IsTextType(type) ? texts : plain;
      if (left == 0) continue;
      --left;
      const gint atX = x(random), atY = y(random);
      const PTRNDATA item = ItemOfType(type, number, atX, atY);
      AddPtrnData(&item);
    }
  }

 private:
  Scene scene_;
  SceneBitmaps bitmaps_;
};
