// Random items together with what they should look like by the plain rules.
#pragma once

#include <functional>
#include <random>

#include "tests/render/PlainPicture.h"
#include "tests/render/Scene.h"

struct RandomItem {
  PTRNDATA Item;
  std::function<void(PlainPicture&)> Draw;
};

// Items around and across the borders of a picture of 120 x 120. Boxes have their first corner at
// the top left unless said otherwise.
class RandomItems {
 public:
  explicit RandomItems(unsigned seed) : random_(seed) {}

  gint Pick(gint low, gint high) { return std::uniform_int_distribution<gint>(low, high)(random_); }
  gint Colour() { return Pick(0, Ink::Count - 1); }

  // Level or upright.
  RandomItem Line() {
    const gint x = Pick(-20, 140);
    const gint y = Pick(-20, 140);
    const gint length = Pick(1, 100) * (Pick(0, 1) == 0 ? -1 : 1);
    const bool upright = Pick(0, 1) == 0;
    PTRNDATA item = MakeItem(TypeLine, x, y, upright ? x : x + length, upright ? y + length : y);
    const gint style = item.Parm[LineSlot::Style] = Pick(0, 2);
    const gint width = item.Parm[LineSlot::Width] = Pick(0, 9);
    const gint position = item.Parm[LineSlot::Position] = Pick(0, 2);
    const gint colour = Colour();
    SetAllSystems(&item, LineSlot::Colour, colour);
    return {item, [=](PlainPicture& picture) {
              picture.ThickStroke(item.Point1.x, item.Point1.y, item.Point2.x, item.Point2.y, style,
                                  width, position, colour);
            }};
  }

  // Corners in any order; never thicker than would turn it inside out.
  RandomItem Rectangle() {
    PTRNDATA item = UprightBox(TypeRectangle);
    const gint room = std::min(item.Point2.x - item.Point1.x, item.Point2.y - item.Point1.y);
    if (Pick(0, 3) == 0) std::swap(item.Point1, item.Point2);
    const gint width = item.Parm[ShapeSlot::Width] = Pick(0, std::min(8, room / 2));
    const gint position = item.Parm[ShapeSlot::Position] = Pick(0, 2);
    const gint filled = item.Parm[ShapeSlot::Filled] = Pick(0, 1);
    const gint line = Colour();
    const gint fill = Colour();
    SetAllSystems(&item, ShapeSlot::LineColour, line);
    SetAllSystems(&item, ShapeSlot::FillColour, fill);
    return {item, [=](PlainPicture& picture) {
              picture.Rectangle(item.Point1.x, item.Point1.y, item.Point2.x, item.Point2.y, width,
                                position, line, filled != 0 ? fill : -1);
            }};
  }

  RandomItem Frame() {
    PTRNDATA item = UprightBox(TypeFrame);
    const PlainPicture::Sides width{Pick(0, 12), Pick(0, 12), Pick(0, 12), Pick(0, 12)};
    const PlainPicture::Sides colour{Colour(), Colour(), Colour(), Colour()};
    const gint area = Colour();
    item.Parm[FrameSlot::TopWidth] = width.Top;
    item.Parm[FrameSlot::BottomWidth] = width.Bottom;
    item.Parm[FrameSlot::LeftWidth] = width.Left;
    item.Parm[FrameSlot::RightWidth] = width.Right;
    SetAllSystems(&item, FrameSlot::TopColour, colour.Top);
    SetAllSystems(&item, FrameSlot::BottomColour, colour.Bottom);
    SetAllSystems(&item, FrameSlot::LeftColour, colour.Left);
    SetAllSystems(&item, FrameSlot::RightColour, colour.Right);
    SetAllSystems(&item, FrameSlot::AreaColour, area);
    return {item, [=](PlainPicture& picture) {
              picture.FramedBox(item.Point1.x, item.Point1.y, item.Point2.x, item.Point2.y, width,
                                colour, area);
            }};
  }

  RandomItem BarGraph() {
    PTRNDATA item = UprightBox(TypeBarGraph);
    const gint x1 = item.Point1.x;
    const gint y1 = item.Point1.y;
    const gint x2 = item.Point2.x;
    const gint y2 = item.Point2.y;
    const gint horizontal = item.Parm[BarSlot::Direction] = Pick(0, 1);
    const gint line = item.Parm[BarSlot::BarWidth] = Pick(0, 1) * Pick(1, 9);
    const gint outline = item.Parm[BarSlot::OutlineWidth] =
        Pick(0, std::min({6, (x2 - x1) / 2, (y2 - y1) / 2}));
    const gint outlineColour = item.Parm[BarSlot::OutlineColour] = Colour();
    const gint colour = Colour();
    const gint back = Colour();
    SetAllSystems(&item, BarSlot::BarColour, colour);
    SetAllSystems(&item, BarSlot::BackColour, back);
    return {item, [=](PlainPicture& picture) {
              const gint middleX = (x1 + x2) / 2;
              const gint middleY = (y1 + y2) / 2;
              picture.Fill(x1, y1, x2, y2, back);
              if (line > 0 && horizontal == 1) {
                picture.ThickStroke(middleX, y1, middleX, y2, 0, line, 0, colour);
              } else if (line > 0) {
                picture.ThickStroke(x1, middleY, x2, middleY, 0, line, 0, colour);
              } else if (horizontal == 1) {
                picture.Fill(x1, y1, middleX, y2, colour);
              } else {
                picture.Fill(x1, middleY, x2, y2, colour);
              }
              picture.Rectangle(x1, y1, x2, y2, outline, 1, outlineColour, -1);
            }};
  }

  // Without caption.
  RandomItem Button() {
    PTRNDATA item = UprightBox(TypeButton);
    const gint x1 = item.Point1.x;
    const gint y1 = item.Point1.y;
    const gint x2 = item.Point2.x;
    const gint y2 = item.Point2.y;
    const gint light = item.Parm[ButtonSlot::TopLeftColour] = Colour();
    const gint dark = item.Parm[ButtonSlot::BottomRightColour] = Colour();
    const gint face = item.Parm[ButtonSlot::FaceColour] = Colour();
    const gint border = item.Parm[ButtonSlot::BorderWidth] = Pick(0, 10);
    return {item, [=](PlainPicture& picture) {
              picture.Fill(x1, y1, x2, y2, face);
              for (gint k = 0; k < border; ++k) {
                picture.Stroke(x1 + k, y1 + k, x2 - k, y1 + k, 0, light);
                picture.Stroke(x1 + k, y1 + k, x1 + k, y2 - k, 0, light);
              }
              for (gint k = 0; k < border; ++k) {
                picture.Stroke(x1 + k, y2 - 1 - k, x2 - k, y2 - 1 - k, 0, dark);
                picture.Stroke(x2 - k, y1 - 1 + k, x2 - k, y2 - 1 - k, 0, dark);
              }
            }};
  }

  // With arrows, whose pictures are left out of the comparison, when asked for.
  RandomItem ScrollBar(bool mayHaveArrows) {
    const bool vertical = Pick(0, 1) == 1;
    const gint thickness = Pick(1, 24);
    const gint length = Pick(1, 110);
    const gint x = Pick(-5, 90);
    const gint y = Pick(-5, 90);
    PTRNDATA item = vertical ? MakeItem(TypeScrollBar, x, y, x + thickness, y + length)
                             : MakeItem(TypeScrollBar, x, y, x + length, y + thickness);
    const gint light = item.Parm[ScrollSlot::TopLeftColour] = Colour();
    const gint dark = item.Parm[ScrollSlot::BottomRightColour] = Colour();
    const gint trough = item.Parm[ScrollSlot::TroughColour] = Colour();
    const gint face = item.Parm[ScrollSlot::ThumbColour] = Colour();
    const gint frame = item.Parm[ScrollSlot::FrameWidth] = Pick(0, 4);
    const gint single = item.Parm[ScrollSlot::SingleArrows] = mayHaveArrows ? Pick(0, 1) : 0;
    const gint twofold = item.Parm[ScrollSlot::DoubleArrows] = mayHaveArrows ? Pick(0, 1) : 0;
    item.Parm[ScrollSlot::Direction] = vertical ? 1 : 0;
    return {item, [=](PlainPicture& picture) {
              const PlainPicture::Sides frames{frame, frame, frame, frame};
              const PlainPicture::Sides colours{light, dark, light, dark};
              picture.FramedBox(item.Point1.x, item.Point1.y, item.Point2.x, item.Point2.y, frames,
                                colours, trough);
              const gint side = thickness - 2 * frame;
              if (side < 1) return;
              const gint across = (vertical ? x : y) + frame;
              const gint begin = (vertical ? y : x) + frame;
              const gint end = (vertical ? y : x) + length - frame;
              const gint arrows = (single + twofold) * side;
              const auto anything = [&](gint from, gint to) {
                if (vertical) {
                  picture.Fill(across, from, across + side, to, PlainPicture::Anything);
                } else {
                  picture.Fill(from, across, to, across + side, PlainPicture::Anything);
                }
              };
              anything(begin, begin + arrows);
              anything(end - arrows, end);
              if (begin + arrows >= end - arrows) return;
              const gint thumb = ((end - 2 * side) + (begin + side)) / 2;
              const gint left = vertical ? across : thumb;
              const gint top = vertical ? thumb : across;
              picture.FramedBox(left, top, left + side, top + side, frames, colours, face);
            }};
  }

 private:
  PTRNDATA UprightBox(gint type) {
    const gint x = Pick(-20, 100);
    const gint y = Pick(-20, 100);
    return MakeItem(type, x, y, x + Pick(1, 70), y + Pick(1, 70));
  }

  std::mt19937 random_;
};
