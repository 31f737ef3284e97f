// Outlines, handles, area selection, incomplete items, grid.
#include <gtest/gtest.h>

#include <climits>

#include "tests/render/Golden.h"
#include "tests/render/SampleLayout.h"

namespace {

class Overlay : public testing::Test {
 protected:
  Overlay() {
    SetHeader(200, 120);
    PtrnHedr.Parm2[ViewSlot::GridColour] = Ink::Blue;
    DrawSceneMarks();
  }

  // The overlay alone on white.
  std::unique_ptr<Drawable> PaintOverlay(gint width = 200, gint height = 120) {
    auto view = std::make_unique<Drawable>(width, height);
    PaintBack(*view, Ink::White);
    DrawGc gc;
    DrawWindow2(view.get(), &gc);
    return view;
  }

 private:
  Scene scene_;
};

bool IsBlank(const Drawable& view) {
  for (gint y = 0; y < view.Height(); ++y) {
    for (gint x = 0; x < view.Width(); ++x) {
      if (view.At(x, y) != InkPixel[Ink::White]) return false;
    }
  }
  return true;
}

gint CountColour(const Drawable& view, guint32 colour) {
  gint count = 0;
  for (gint y = 0; y < view.Height(); ++y) {
    for (gint x = 0; x < view.Width(); ++x) count += view.At(x, y) == colour ? 1 : 0;
  }
  return count;
}

constexpr guint32 Red = 0xff0000;  // of incomplete items, not of the palette
constexpr guint32 Blue = InkPixel[Ink::Blue];

TEST_F(Overlay, ShowsHandlesOfEveryOutline) {
  Drawable sheet(420, 240);
  PaintBack(sheet, Ink::White);
  DrawGc gc;
  const auto draw = [&](const PTRNDATA& item, gint zoom) {
    DrawMoveData(&sheet, &gc, &item, zoom);
  };
  draw(MakeItem(TypeRectangle, 20, 20, 100, 80), 100);
  draw(MakeItem(TypeLine, 130, 20, 200, 80), 100);
  draw(MakeItem(TypeLine, 220, 20, 220, 80), 100);
  draw(MakeItem(TypeEllipse, 250, 20, 330, 80), 100);
  PTRNDATA text = MakeItem(TypeFixedString, 360, 20, 0, 0);
  draw(text, 100);
  text.Point1.y = 60;
  text.Size = {48, 16};
  draw(text, 100);
  draw(MakeItem(TypeButton, 10, 60, 50, 105), 200);
  draw(MakeItem(TypeEllipse, 230, 200, 390, 400), 50);
  draw(MakeItem(TypeMark, 311, 200, 390, 280), 75);
  text.Point1 = {62, 25};
  text.Size = {9, 3};
  draw(text, 500);
  text.Size = {};
  text.Point1 = {80, 40};
  draw(text, 500);
  ExpectGolden(sheet, "overlay-handles");
}

TEST_F(Overlay, ShowsIncompleteItemsInRedWithoutHandles) {
  MakeSampleLayout();
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    PTRNDATA item;
    GetPtrnData(no, &item);
    item.UndfFlag = no % 3 != 2 ? 1 : 0;
    SetPtrnData(no, &item);
  }
  PtrnUndef = 1;
  PtrnMode = ModeSelected;  // gives way
  ExpectGolden(*PaintZoomedLayout(1, 0, 0, 320, 240), "overlay-incomplete");
}

TEST_F(Overlay, ShowsTheAreaAndTheItemInHandOverTheZoomedLayout) {
  MakeSampleLayout();
  PtrnMode = ModeArea;
  AreaPoint1 = {100, 90};
  AreaPoint2 = {11, 31};
  ExpectGolden(*PaintZoomedLayout(1, 0, 0, 320, 240), "overlay-area");
  PtrnMode = ModeDragging;
  PtrnData = FrameItem(4, 24, 60, 60, 3);
  ExpectGolden(*PaintZoomedLayout(0, 0, 80, 400, 300), "overlay-zoomed");
}

TEST_F(Overlay, FollowsTheEditingMode) {
  PtrnData = MakeItem(TypeRectangle, 20, 20, 60, 60);
  AreaPoint1 = {100, 20};
  AreaPoint2 = {150, 50};
  for (gint mode = 0; mode <= 6; ++mode) {
    PtrnMode = mode;
    const auto view = PaintOverlay();
    const bool item = mode >= 1 && mode <= 4;
    EXPECT_EQ(view->At(30, 20) == Blue, item) << mode;
    EXPECT_EQ(view->At(15, 20) == Blue, item) << mode;  // the corner's round handle
    EXPECT_EQ(view->At(120, 20) == Blue, mode == ModeArea) << mode;
    EXPECT_EQ(IsBlank(*view), mode == 0 || mode == 6) << mode;
  }
}

TEST_F(Overlay, OfIncompleteItemsComesBeforeAllModes) {
  PTRNDATA incomplete = MakeItem(TypeEllipse, 100, 20, 160, 60);
  incomplete.UndfFlag = 1;
  const PTRNDATA complete = MakeItem(TypeRectangle, 10, 70, 60, 110);
  AddItems({incomplete, complete});
  PtrnData = MakeItem(TypeRectangle, 20, 20, 60, 60);
  PtrnUndef = 1;
  PtrnMode = ModeDragging;
  const auto view = PaintOverlay();
  EXPECT_EQ(view->At(130, 20), Red);
  EXPECT_EQ(view->At(30, 70), InkPixel[Ink::White]);
  EXPECT_EQ(CountColour(*view, Blue), 0);
  PtrnUndef = 0;
  EXPECT_EQ(CountColour(*PaintOverlay(), Red), 0);
}

TEST_F(Overlay, ScalesPointsButNotHandles) {
  PtrnMode = ModeSelected;
  PtrnHedr.Parm2[ViewSlot::Zoom] = 4;
  PtrnData = MakeItem(TypeRectangle, 41, 41, 161, 161);  // 20..80 at 50 %
  const auto view = PaintOverlay();
  EXPECT_EQ(view->At(30, 20), Blue);
  EXPECT_EQ(view->At(30, 80), Blue);
  EXPECT_EQ(view->At(20, 30), Blue);
  EXPECT_EQ(view->At(80, 30), Blue);
  // The square around the middle of the top edge spans 45..55, 15..25.
  EXPECT_EQ(view->At(45, 15), Blue);
  EXPECT_EQ(view->At(55, 25), Blue);
  EXPECT_NE(view->At(44, 15), Blue);
  EXPECT_NE(view->At(56, 25), Blue);
}

TEST_F(Overlay, MarksAnUnpaintedTextWithACross) {
  PtrnMode = ModeCreating;
  PtrnData = MakeItem(TypeFixedString, 50, 40, 0, 0);
  const auto view = PaintOverlay();
  for (gint k = -5; k <= 5; ++k) {
    EXPECT_EQ(view->At(50 + k, 40 + k), Blue);
    EXPECT_EQ(view->At(50 + k, 40 - k), Blue);
  }
  EXPECT_EQ(CountColour(*view, Blue), 21);
}

TEST_F(Overlay, MarksAnIncompleteUnpaintedTextWithADot) {
  PTRNDATA item = MakeItem(TypeFixedString, 50, 40, 0, 0);
  item.UndfFlag = 1;
  AddItems({item});
  PtrnUndef = 1;
  const auto view = PaintOverlay();
  EXPECT_EQ(view->At(50, 40), Red);
  EXPECT_EQ(CountColour(*view, Red), 1);
}

TEST_F(Overlay, OfAnUnknownTypeIsNothing) {
  PtrnMode = ModeSelected;
  for (const gint type : {0, 16, -3, 99999}) {
    PtrnData = MakeItem(type, 20, 20, 60, 60);
    EXPECT_TRUE(IsBlank(*PaintOverlay())) << type;
  }
}

class Grid : public Overlay {
 protected:
  Grid() { PtrnHedr.Parm2[ViewSlot::GridShown] = 1; }
  std::unique_ptr<Drawable> PaintGrid(gint x, gint y, gint width, gint height) {
    auto view = std::make_unique<Drawable>(width, height, x, y);
    PaintBack(*view, Ink::White);
    DrawGc gc;
    DrawGridData(view.get(), &gc);
    return view;
  }
};

TEST_F(Grid, IsSolidAtEveryTenthLineButTheFirst) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 4;   // 8 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 11;  // 40 dots
  const auto view = PaintGrid(0, 0, 200, 120);
  // Rows 4 and 5 lie in the first gap of the dotted lines (4 on, 2 off).
  for (gint x = 0; x < 200; ++x) {
    EXPECT_EQ(view->At(x, 3) == Blue, x % 8 == 0) << x;
    EXPECT_EQ(view->At(x, 4) == Blue, x == 80 || x == 160) << x;
    EXPECT_EQ(view->At(x, 5) == Blue, x == 80 || x == 160) << x;
  }
  for (gint y = 1; y < 120; ++y) {
    EXPECT_EQ(view->At(1, y) == Blue, y % 40 == 0) << y;
    EXPECT_EQ(view->At(4, y) == Blue, false) << y;
  }
}

TEST_F(Grid, EndsBeforeTheScaledExtent) {
  PtrnHedr.Parm1[HedrSlot::Width] = 80;
  PtrnHedr.Parm1[HedrSlot::Height] = 40;
  PtrnHedr.Parm2[ViewSlot::Zoom] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 10 dots, 20 at 200 %
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;
  const auto view = PaintGrid(0, 0, 200, 120);
  EXPECT_EQ(view->At(140, 1), Blue);
  EXPECT_NE(view->At(160, 1), Blue);  // 160 is the extent itself
  EXPECT_EQ(view->At(1, 60), Blue);
  EXPECT_NE(view->At(1, 80), Blue);
  // Each line reaches the extent, which is included: dotted pixel 80 is on (80 mod 6 = 2).
  EXPECT_EQ(view->At(140, 80), Blue);
  EXPECT_NE(view->At(140, 81), Blue);
}

TEST_F(Grid, HasNoLinesInADirectionWhoseStepVanishes) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 0;  // 1 dot
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;  // 10 dots
  for (const gint zoom : {3, 4}) {
    PtrnHedr.Parm2[ViewSlot::Zoom] = zoom;
    const auto view = PaintGrid(0, 0, 100, 60);
    EXPECT_NE(view->At(1, 1), Blue);
    EXPECT_NE(view->At(1, 2), Blue);
    EXPECT_EQ(view->At(1, 0), Blue);
  }
  PtrnHedr.Parm2[ViewSlot::GridY] = 0;
  EXPECT_TRUE(IsBlank(*PaintGrid(0, 0, 100, 60)));
}

TEST_F(Grid, IsAbsentUnlessShown) {
  PtrnHedr.Parm2[ViewSlot::GridShown] = 0;
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;
  EXPECT_TRUE(IsBlank(*PaintGrid(0, 0, 100, 60)));
}

TEST_F(Grid, OfABoundlessLayoutIsDrawnOnlyWhereItShows) {
  PtrnHedr.Parm1[HedrSlot::Width] = INT_MAX;
  PtrnHedr.Parm1[HedrSlot::Height] = INT_MAX;
  PtrnHedr.Parm2[ViewSlot::Zoom] = 0;
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 50 pixels at 500 %
  const auto view = PaintGrid(49000, 49000, 100, 60);
  EXPECT_EQ(view->At(49000, 49001), Blue);  // line 980, solid
  EXPECT_NE(view->At(49001, 49001), Blue);
}

TEST_F(Grid, TakesTheFirstEntryForNumbersOutOfRange) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = 77;   // 500 %
  PtrnHedr.Parm2[ViewSlot::GridX] = -4;  // 1 dot
  PtrnHedr.Parm2[ViewSlot::GridY] = 500;
  const auto view = PaintGrid(0, 0, 100, 60);
  EXPECT_EQ(view->At(5, 1), Blue);
  EXPECT_NE(view->At(4, 1), Blue);
  EXPECT_EQ(view->At(1, 5), Blue);
}

}  // namespace
