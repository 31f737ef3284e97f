// Sizes that painting finds, and what painting leaves alone.
#include <gtest/gtest.h>

#include <climits>

#include "tests/render/ItemSamples.h"
#include "tests/render/SampleLayout.h"

namespace {

// A packed SIZE may lie anywhere, so its members cannot be handed to EXPECT_EQ.
struct Extent {
  explicit Extent(SIZE size) : Width(size.cx), Height(size.cy) {}
  gint Width;
  gint Height;
};

class Items : public testing::Test {
 protected:
  Extent SizeOf(const PTRNDATA& item) {
    Drawable surface(200, 60);
    return Extent(PaintItem(surface, item).Size);
  }

 private:
  Scene scene_;
};

bool IsBlack(const Drawable& surface) {
  for (gint y = 0; y < surface.Height(); ++y) {
    for (gint x = 0; x < surface.Width(); ++x) {
      if (surface.At(surface.X() + x, surface.Y() + y) != 0) return false;
    }
  }
  return true;
}

TEST_F(Items, OfTextAreAsLargeAsTheirInk) {
  // "#" of the 16-dot font is 8 dots wide; its ink leaves less than a dot's column at each end.
  const Extent one = SizeOf(TextItem(TypeVariableString, 0, 0, Font16, {{TextSlot::Length, 1}}));
  const Extent ten = SizeOf(TextItem(TypeVariableString, 0, 0, Font16, {{TextSlot::Length, 10}}));
  EXPECT_EQ(ten.Width - one.Width, 72);
  EXPECT_EQ(ten.Height, one.Height);
  const Extent sample = SizeOf(TextItem(TypeNumeric, 0, 0, Font16, {{TextSlot::Length, 6}}));
  const Extent asterisks(GetTextSize(Font16, "******"));
  EXPECT_EQ(sample.Width, asterisks.Width);
  EXPECT_EQ(sample.Height, asterisks.Height);
}

TEST_F(Items, OfTextWithoutFontOrTextHaveNoExtent) {
  for (const PTRNDATA& item :
       {TextItem(TypeFixedString, 5, 5, NoFont, {}, "text"),
        TextItem(TypeFixedString, 5, 5, Font16, {}, ""),
        TextItem(TypeVariableString, 5, 5, Font16, {}), TextItem(TypeNumeric, 5, 5, 99, {})}) {
    PTRNDATA painted = item;
    painted.Size = {7, 7};
    const Extent size = SizeOf(painted);
    EXPECT_EQ(size.Width, 0);
    EXPECT_EQ(size.Height, 0);
  }
}

TEST_F(Items, OfChoicesAreASquareAndTheirCaption) {
  for (const gint type : {gint{TypeRadioButton}, gint{TypeCheckBox}}) {
    const Extent alone = SizeOf(ChoiceItem(type, 4, 4, Font16, 0, ""));
    EXPECT_EQ(alone.Width, 16);
    EXPECT_EQ(alone.Height, 16);
    const Extent captioned = SizeOf(ChoiceItem(type, 4, 4, Font16, 0, "自動"));
    EXPECT_EQ(captioned.Width, 24 + GetTextSize(Font16, Euc("自動").c_str()).cx);
    EXPECT_EQ(captioned.Height, 16);
    const Extent unnamed = SizeOf(ChoiceItem(type, 4, 4, NoFont, 0, "自動"));
    EXPECT_EQ(unnamed.Width, 0);
    EXPECT_EQ(unnamed.Height, 0);
  }
}

TEST_F(Items, FollowTheLanguage) {
  PTRNDATA item = TextItem(TypeFixedString, 0, 0, Font16, {}, "1");
  CopyText(item.Text2, "22");
  CopyText(item.Text3, "333");
  // "1" begins and ends in the 2nd and 4th column of its cell; "2" and "3" end in the 7th of 8, and
  // "3" begins in the first.
  EXPECT_EQ(SizeOf(item).Width, 1 + 4);
  Language = 1;
  EXPECT_EQ(SizeOf(item).Width, 1 + 15);
  for (const gint third : {2, 3, -1, 1000}) {
    Language = third;
    EXPECT_EQ(SizeOf(item).Width, 0 + 23) << third;
  }
}

TEST_F(Items, OfABitmapHaveOneFileForAllLanguages) {
  const SceneBitmaps bitmaps;
  for (Language = 0; Language < 3; ++Language) {
    Drawable surface(32, 24);
    PaintItem(surface, BitmapItem(0, 0, 32, 24, 0));
    EXPECT_EQ(surface.At(0, 0), InkPixel[Ink::Sky]) << Language;
  }
}

TEST_F(Items, GiveTheirSizesToTheStore) {
  SetHeader(200, 100);
  AddItems({ChoiceItem(TypeCheckBox, 4, 4, Font16, 0, ""), FrameItem(50, 10, 80, 40, 1),
            ChoiceItem(TypeRadioButton, 30, 4, Font24, 0, "")});
  PTRNDATA top = ChoiceItem(TypeCheckBox, 4, 60, Font12, 0, "");
  top.Parm[ItemSlot::TopLayer] = 1;
  PTRNDATA nowhere = top;
  nowhere.Parm[ItemSlot::TopLayer] = 2;
  AddItems({top, nowhere});
  PaintLayout();
  const gint widths[] = {16, 0, 24, 12, 0};
  for (gint no = 0; no < 5; ++no) {
    PTRNDATA item;
    ASSERT_EQ(GetPtrnData(no, &item), 1);
    EXPECT_EQ(Extent(item.Size).Width, widths[no]) << no;
  }
}

TEST_F(Items, OfOneLayerLeaveTheOtherAlone) {
  SetHeader(100, 40);
  PTRNDATA low = ShapeItem(TypeRectangle, 0, 0, 40, 40, 1, 0);
  PTRNDATA high = ShapeItem(TypeRectangle, 50, 0, 90, 40, 1, 0);
  high.Parm[ItemSlot::TopLayer] = 1;
  AddItems({low, high});
  DrawGc gc;
  for (const gint layer : {0, 1}) {
    Drawable surface(100, 40);
    DrawPtrnData(&surface, &gc, layer);
    EXPECT_EQ(surface.At(20, 20) == InkPixel[Ink::Yellow], layer == 0);
    EXPECT_EQ(surface.At(70, 20) == InkPixel[Ink::Yellow], layer == 1);
  }
}

TEST_F(Items, WithNumbersOfNothingPaintNothing) {
  for (const gint number : {-1, 103, 9999, INT_MIN, INT_MAX}) {
    Drawable surface(100, 60);
    for (gint type = 1; type <= 15; ++type) {
      PTRNDATA item = MakeItem(type, 10, 10, 60, 50, {}, "文字 Text");
      for (gint slot = 4; slot < 28; ++slot) item.Parm[slot] = number;
      if (type == TypeScrollBar) item.Parm[ScrollSlot::SingleArrows] = 0;
      if (type == TypeScrollBar) item.Parm[ScrollSlot::DoubleArrows] = 0;
      if (type != TypeSpinButton) PaintItem(surface, item);
    }
    EXPECT_TRUE(IsBlack(surface)) << number;
  }
}

TEST_F(Items, SurviveTheGreatestNumbersEverywhere) {
  const SceneBitmaps bitmaps;
  constexpr gint extremes[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX};
  DrawGc gc;
  Drawable surface(40, 30);
  gint painted = 0;
  for (gint type = 1; type <= 15; ++type) {
    for (const gint x1 : extremes) {
      for (const gint x2 : extremes) {
        for (const gint parameter : {INT_MIN, 1, 50, INT_MAX}) {
          PTRNDATA item = MakeItem(type, x1, x2, x2, x1);
          CopyText(item.Text1, type == TypeBitmap ? "house.png" : "text");
          for (gint slot = 4; slot < 28; ++slot) item.Parm[slot] = parameter;
          // Existing colours, so that something is painted at all.
          for (gint slot = 4; slot < 12; ++slot) item.Parm[slot] = 1;
          item = PaintItem(surface, item);
          DrawMoveData(&surface, &gc, &item, 500);
          ++painted;
        }
      }
    }
  }
  EXPECT_EQ(painted, 15 * 36 * 4);
}

TEST_F(Items, OfAnyColourSystemStayInsideTheirParameters) {
  Drawable surface(60, 60);
  for (const gint system : {-1, 4, INT_MIN, INT_MAX}) {
    ColorCode = system;
    PaintItem(surface, ShapeItem(TypeRectangle, 0, 0, 60, 60, 1, 0));
    EXPECT_EQ(surface.At(30, 30), InkPixel[Ink::Yellow]);
    PaintItem(surface, ButtonItem(0, 0, 60, 60, Font16, 1, "x"));
    PaintItem(surface, MarkItem(0, 0, 60, 60, 0, 1));
  }
}

TEST_F(Items, MayFillTheirTextFieldsToTheLastByte) {
  PTRNDATA item = TextItem(TypeFixedString, 0, 0, Font16, {});
  std::memset(item.Text1, 'A', sizeof item.Text1);
  const Extent size = SizeOf(item);
  EXPECT_GT(size.Width, 8 * 100);
  EXPECT_LE(size.Width, 8 * 102);
}

}  // namespace
