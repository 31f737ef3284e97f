// Random items, painted and compared pixel by pixel with the rules said a second time.
#include <gtest/gtest.h>

#include <random>

#include "render/PlainPicture.h"
#include "render/Scene.h"

namespace {

constexpr gint Extent = 120;
constexpr gint Back = Ink::Cream;
constexpr int Rounds = 300;

class Offsets : public testing::Test {
 protected:
  gint Pick(gint low, gint high) { return std::uniform_int_distribution<gint>(low, high)(random_); }
  gint Colour() { return Pick(0, Ink::Count - 1); }
  // A box whose first corner is its top left one; some reach past the surface.
  PTRNDATA UprightBox(gint type) {
    const gint x = Pick(-20, 100);
    const gint y = Pick(-20, 100);
    return MakeItem(type, x, y, x + Pick(1, 70), y + Pick(1, 70));
  }
  PTRNDATA AnyBox(gint type) {
    return MakeItem(type, Pick(-20, 140), Pick(-20, 140), Pick(-20, 140), Pick(-20, 140));
  }

  void Check(const PTRNDATA& item, const PlainPicture& expected, int round) {
    Drawable painted(Extent, Extent);
    PaintBack(painted, Back);
    PaintItem(painted, item);
    ASSERT_TRUE(expected.Equals(painted))
        << "round " << round << ", points " << item.Point1.x << ", " << item.Point1.y << ", "
        << item.Point2.x << ", " << item.Point2.y;
  }

 private:
  Scene scene_;
  std::mt19937 random_{20261121};
};

TEST_F(Offsets, OfLevelAndUprightLines) {
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA line = AnyBox(TypeLine);
    if (Pick(0, 1) == 0) {
      line.Point2.x = line.Point1.x;
    } else {
      line.Point2.y = line.Point1.y;
    }
    if (line.Point1.x == line.Point2.x && line.Point1.y == line.Point2.y) continue;
    const gint style = line.Parm[LineSlot::Style] = Pick(0, 2);
    const gint width = line.Parm[LineSlot::Width] = Pick(0, 9);
    const gint position = line.Parm[LineSlot::Position] = Pick(0, 2);
    const gint colour = Colour();
    SetAllSystems(&line, LineSlot::Colour, colour);

    PlainPicture expected(Extent, Extent, Back);
    expected.ThickStroke(line.Point1.x, line.Point1.y, line.Point2.x, line.Point2.y, style, width,
                         position, colour);
    Check(line, expected, round);
  }
}

TEST_F(Offsets, OfRectangles) {
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA box = round % 2 == 0 ? UprightBox(TypeRectangle) : AnyBox(TypeRectangle);
    // Thin enough not to turn inside out.
    const gint room =
        std::min(std::abs(box.Point2.x - box.Point1.x), std::abs(box.Point2.y - box.Point1.y));
    const gint width = box.Parm[ShapeSlot::Width] = Pick(0, std::min(8, room / 2));
    const gint position = box.Parm[ShapeSlot::Position] = round % 2 == 0 ? Pick(0, 2) : 0;
    const gint filled = box.Parm[ShapeSlot::Filled] = Pick(0, 1);
    const gint line = Colour();
    const gint fill = Colour();
    SetAllSystems(&box, ShapeSlot::LineColour, line);
    SetAllSystems(&box, ShapeSlot::FillColour, fill);

    PlainPicture expected(Extent, Extent, Back);
    expected.Rectangle(box.Point1.x, box.Point1.y, box.Point2.x, box.Point2.y, width, position,
                       line, filled != 0 ? fill : -1);
    Check(box, expected, round);
  }
}

TEST_F(Offsets, OfFramedBoxes) {
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA box = UprightBox(TypeFrame);
    const PlainPicture::Sides width{Pick(0, 12), Pick(0, 12), Pick(0, 12), Pick(0, 12)};
    const PlainPicture::Sides colour{Colour(), Colour(), Colour(), Colour()};
    const gint area = Colour();
    box.Parm[FrameSlot::TopWidth] = width.Top;
    box.Parm[FrameSlot::BottomWidth] = width.Bottom;
    box.Parm[FrameSlot::LeftWidth] = width.Left;
    box.Parm[FrameSlot::RightWidth] = width.Right;
    SetAllSystems(&box, FrameSlot::TopColour, colour.Top);
    SetAllSystems(&box, FrameSlot::BottomColour, colour.Bottom);
    SetAllSystems(&box, FrameSlot::LeftColour, colour.Left);
    SetAllSystems(&box, FrameSlot::RightColour, colour.Right);
    SetAllSystems(&box, FrameSlot::AreaColour, area);

    PlainPicture expected(Extent, Extent, Back);
    expected.FramedBox(box.Point1.x, box.Point1.y, box.Point2.x, box.Point2.y, width, colour, area);
    Check(box, expected, round);
  }
}

TEST_F(Offsets, OfBarGraphs) {
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA bar = UprightBox(TypeBarGraph);
    const gint x1 = bar.Point1.x;
    const gint y1 = bar.Point1.y;
    const gint x2 = bar.Point2.x;
    const gint y2 = bar.Point2.y;
    const bool horizontal = Pick(0, 1) == 1;
    const gint lineWidth = Pick(0, 1) * Pick(1, 9);
    const gint outline = Pick(0, std::min({6, (x2 - x1) / 2, (y2 - y1) / 2}));
    const gint colour = Colour();
    const gint back = Colour();
    const gint outlineColour = Colour();
    bar.Parm[BarSlot::Direction] = horizontal ? 1 : 0;
    bar.Parm[BarSlot::BarWidth] = lineWidth;
    bar.Parm[BarSlot::OutlineWidth] = outline;
    bar.Parm[BarSlot::OutlineColour] = outlineColour;
    SetAllSystems(&bar, BarSlot::BarColour, colour);
    SetAllSystems(&bar, BarSlot::BackColour, back);

    const gint midX = (x1 + x2) / 2;
    const gint midY = (y1 + y2) / 2;
    PlainPicture expected(Extent, Extent, Back);
    expected.Fill(x1, y1, x2, y2, back);
    if (lineWidth > 0 && horizontal) {
      expected.ThickStroke(midX, y1, midX, y2, 0, lineWidth, 0, colour);
    } else if (lineWidth > 0) {
      expected.ThickStroke(x1, midY, x2, midY, 0, lineWidth, 0, colour);
    } else if (horizontal) {
      expected.Fill(x1, y1, midX, y2, colour);
    } else {
      expected.Fill(x1, midY, x2, y2, colour);
    }
    expected.Rectangle(x1, y1, x2, y2, outline, 1, outlineColour, -1);
    Check(bar, expected, round);
  }
}

TEST_F(Offsets, OfButtonsWithoutCaption) {
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA button = UprightBox(TypeButton);
    const gint x1 = button.Point1.x;
    const gint y1 = button.Point1.y;
    const gint x2 = button.Point2.x;
    const gint y2 = button.Point2.y;
    const gint light = button.Parm[ButtonSlot::TopLeftColour] = Colour();
    const gint dark = button.Parm[ButtonSlot::BottomRightColour] = Colour();
    const gint face = button.Parm[ButtonSlot::FaceColour] = Colour();
    const gint border = button.Parm[ButtonSlot::BorderWidth] = Pick(0, 10);

    PlainPicture expected(Extent, Extent, Back);
    expected.Fill(x1, y1, x2, y2, face);
    for (gint k = 0; k < border; ++k) {
      expected.Stroke(x1 + k, y1 + k, x2 - k, y1 + k, 0, light);
      expected.Stroke(x1 + k, y1 + k, x1 + k, y2 - k, 0, light);
    }
    for (gint k = 0; k < border; ++k) {
      expected.Stroke(x1 + k, y2 - 1 - k, x2 - k, y2 - 1 - k, 0, dark);
      expected.Stroke(x2 - k, y1 - 1 + k, x2 - k, y2 - 1 - k, 0, dark);
    }
    Check(button, expected, round);
  }
}

// Lays a bar along x; the other direction exchanges x and y.
class PlainScrollBar {
 public:
  PlainScrollBar(PlainPicture* picture, bool vertical) : picture_(picture), vertical_(vertical) {}

  void Square(gint along, gint across, gint side, gint colour) {
    if (vertical_) {
      picture_->Fill(across, along, across + side, along + side, colour);
    } else {
      picture_->Fill(along, across, along + side, across + side, colour);
    }
  }
  void Thumb(gint along, gint across, gint side, gint frame, gint light, gint dark, gint face) {
    const gint x = vertical_ ? across : along;
    const gint y = vertical_ ? along : across;
    picture_->FramedBox(x, y, x + side, y + side, {frame, frame, frame, frame},
                        {light, dark, light, dark}, face);
  }

 private:
  PlainPicture* picture_;
  bool vertical_;
};

TEST_F(Offsets, OfScrollBarsOutsideTheirArrows) {
  int thumbs = 0;
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    const bool vertical = Pick(0, 1) == 1;
    const gint thickness = Pick(1, 24);
    const gint length = Pick(1, 110);
    const gint x = Pick(-5, 20);
    const gint y = Pick(-5, 20);
    PTRNDATA bar = vertical ? MakeItem(TypeScrollBar, x, y, x + thickness, y + length)
                            : MakeItem(TypeScrollBar, x, y, x + length, y + thickness);
    const gint light = bar.Parm[ScrollSlot::TopLeftColour] = Colour();
    const gint dark = bar.Parm[ScrollSlot::BottomRightColour] = Colour();
    const gint trough = bar.Parm[ScrollSlot::TroughColour] = Colour();
    const gint face = bar.Parm[ScrollSlot::ThumbColour] = Colour();
    const gint frame = bar.Parm[ScrollSlot::FrameWidth] = Pick(0, 4);
    const gint single = bar.Parm[ScrollSlot::SingleArrows] = Pick(0, 1);
    const gint twofold = bar.Parm[ScrollSlot::DoubleArrows] = Pick(0, 1);
    bar.Parm[ScrollSlot::Direction] = vertical ? 1 : 0;

    PlainPicture expected(Extent, Extent, Back);
    expected.FramedBox(bar.Point1.x, bar.Point1.y, bar.Point2.x, bar.Point2.y,
                       {frame, frame, frame, frame}, {light, dark, light, dark}, trough);
    const gint side = thickness - 2 * frame;
    if (side >= 1) {
      const gint across = (vertical ? x : y) + frame;
      const gint begin = (vertical ? y : x) + frame;
      const gint end = (vertical ? y : x) + length - frame;
      const gint arrows = single + twofold;
      PlainScrollBar parts(&expected, vertical);
      for (gint k = 0; k < arrows; ++k) {
        parts.Square(begin + k * side, across, side, PlainPicture::Anything);
        parts.Square(end - (k + 1) * side, across, side, PlainPicture::Anything);
      }
      if (begin + arrows * side < end - arrows * side) {
        ++thumbs;
        parts.Thumb(((end - 2 * side) + (begin + side)) / 2, across, side, frame, light, dark,
                    face);
      }
    }
    Check(bar, expected, round);
  }
  EXPECT_GT(thumbs, 50);
}

// Slanted lines: one-dot lines side by side, shifted as the rule says; the first 7 shifts by hand.
TEST_F(Offsets, OfSlantedLines) {
  constexpr gint shifts[7] = {0, -1, -1, 0, -2, 1, -3};
  for (int round = 0; round < Rounds && !HasFatalFailure(); ++round) {
    PTRNDATA line = AnyBox(TypeLine);
    if (line.Point1.x == line.Point2.x || line.Point1.y == line.Point2.y) continue;
    const gint width = line.Parm[LineSlot::Width] = Pick(2, 7);
    line.Parm[LineSlot::Position] = Pick(0, 2);
    SetAllSystems(&line, LineSlot::Colour, Ink::Red);
    const bool steep =
        std::abs(line.Point1.x - line.Point2.x) < std::abs(line.Point1.y - line.Point2.y);

    Drawable expected(Extent, Extent);
    PaintBack(expected, Back);
    DrawGc gc;
    for (gint k = 0; k < width; ++k) {
      const gint dx = steep ? shifts[k] : 0;
      const gint dy = steep ? 0 : shifts[k];
      DrawLine(&expected, &gc, line.Point1.x + dx, line.Point1.y + dy, line.Point2.x + dx,
               line.Point2.y + dy, 0, 1, 0, Ink::Red);
    }
    Drawable painted(Extent, Extent);
    PaintBack(painted, Back);
    PaintItem(painted, line);
    for (gint y = 0; y < Extent; ++y) {
      for (gint x = 0; x < Extent; ++x) {
        ASSERT_EQ(painted.At(x, y), expected.At(x, y))
            << "round " << round << " at " << x << ", " << y;
      }
    }
  }
}

}  // namespace
