// Items with sensible parameters, ready to place.
#pragma once

#include "tests/render/Scene.h"
#include "tests/render/SceneArt.h"

inline PTRNDATA FrameItem(gint x1, gint y1, gint x2, gint y2, gint width) {
  PTRNDATA item = MakeItem(TypeFrame, x1, y1, x2, y2,
                           {{FrameSlot::TopWidth, width},
                            {FrameSlot::BottomWidth, width},
                            {FrameSlot::LeftWidth, width},
                            {FrameSlot::RightWidth, width}});
  SetAllSystems(&item, FrameSlot::AreaColour, Ink::Cream);
  SetAllSystems(&item, FrameSlot::TopColour, Ink::Red);
  SetAllSystems(&item, FrameSlot::BottomColour, Ink::Green);
  SetAllSystems(&item, FrameSlot::LeftColour, Ink::Blue);
  SetAllSystems(&item, FrameSlot::RightColour, Ink::Orange);
  return item;
}

inline PTRNDATA LineItem(gint x1, gint y1, gint x2, gint y2, gint style, gint width,
                         gint position = 0) {
  PTRNDATA item = MakeItem(
      TypeLine, x1, y1, x2, y2,
      {{LineSlot::Style, style}, {LineSlot::Width, width}, {LineSlot::Position, position}});
  SetAllSystems(&item, LineSlot::Colour, Ink::Navy);
  return item;
}

// Rectangle or ellipse.
inline PTRNDATA ShapeItem(gint type, gint x1, gint y1, gint x2, gint y2, gint filled, gint width,
                          gint position = 0) {
  PTRNDATA item = MakeItem(
      type, x1, y1, x2, y2,
      {{ShapeSlot::Filled, filled}, {ShapeSlot::Width, width}, {ShapeSlot::Position, position}});
  SetAllSystems(&item, ShapeSlot::LineColour, Ink::Teal);
  SetAllSystems(&item, ShapeSlot::FillColour, Ink::Yellow);
  return item;
}

inline PTRNDATA BarItem(gint x1, gint y1, gint x2, gint y2, gint direction, gint width,
                        gint outline) {
  PTRNDATA item = MakeItem(TypeBarGraph, x1, y1, x2, y2,
                           {{BarSlot::Direction, direction},
                            {BarSlot::BarWidth, width},
                            {BarSlot::OutlineWidth, outline},
                            {BarSlot::OutlineColour, Ink::Black}});
  SetAllSystems(&item, BarSlot::BarColour, Ink::Green);
  SetAllSystems(&item, BarSlot::BackColour, Ink::Silver);
  return item;
}

// Fixed string, variable string or numeric data.
inline PTRNDATA TextItem(gint type, gint x, gint y, gint font, const Parms& parms,
                         std::string_view text = "") {
  PTRNDATA item = MakeItem(type, x, y, 0, 0, parms, text);
  item.Parm[TextSlot::Font] = font;
  SetAllSystems(&item, TextSlot::TextColour, Ink::Navy);
  SetAllSystems(&item, TextSlot::BackColour, Ink::Yellow);
  return item;
}

inline PTRNDATA ButtonItem(gint x1, gint y1, gint x2, gint y2, gint font, gint border,
                           std::string_view caption) {
  return MakeItem(TypeButton, x1, y1, x2, y2,
                  {{ButtonSlot::TopLeftColour, Ink::White},
                   {ButtonSlot::BottomRightColour, Ink::Dark},
                   {ButtonSlot::FaceColour, Ink::Silver},
                   {ButtonSlot::TextColour, Ink::Black},
                   {ButtonSlot::TextColour + 1, Ink::Red},
                   {ButtonSlot::Font, font},
                   {ButtonSlot::BorderWidth, border}},
                  caption);
}

// Radio button or check box.
inline PTRNDATA ChoiceItem(gint type, gint x, gint y, gint font, gint back,
                           std::string_view caption) {
  return MakeItem(type, x, y, 0, 0,
                  {{ChoiceSlot::TextColour, Ink::Navy},
                   {ChoiceSlot::TextColour + 1, Ink::Red},
                   {ChoiceSlot::BackColour, Ink::Yellow},
                   {ChoiceSlot::BackColour + 1, Ink::Sky},
                   {ChoiceSlot::BackEnabled, back},
                   {ChoiceSlot::Font, font}},
                  caption);
}

inline PTRNDATA BitmapItem(gint x1, gint y1, gint x2, gint y2, gint transparent,
                           std::string_view name = "house.png") {
  return MakeItem(
      TypeBitmap, x1, y1, x2, y2,
      {{BitmapSlot::TransparentColour, Ink::Sky}, {BitmapSlot::Transparent, transparent}}, name);
}

inline PTRNDATA MarkItem(gint x1, gint y1, gint x2, gint y2, gint mark, gint back) {
  PTRNDATA item = MakeItem(TypeMark, x1, y1, x2, y2, {{MarkSlot::BackEnabled, back}});
  SetAllSystems(&item, MarkSlot::MarkColour, Ink::Red);
  SetAllSystems(&item, MarkSlot::BackColour, Ink::Sky);
  SetAllSystems(&item, MarkSlot::Mark, mark);
  return item;
}

inline PTRNDATA ScrollItem(gint x1, gint y1, gint x2, gint y2, gint direction, gint frame,
                           gint single, gint twofold) {
  return MakeItem(TypeScrollBar, x1, y1, x2, y2,
                  {{ScrollSlot::TopLeftColour, Ink::White},
                   {ScrollSlot::BottomRightColour, Ink::Dark},
                   {ScrollSlot::TroughColour, Ink::Grey},
                   {ScrollSlot::ThumbColour, Ink::Silver},
                   {ScrollSlot::Direction, direction},
                   {ScrollSlot::FrameWidth, frame},
                   {ScrollSlot::SingleArrows, single},
                   {ScrollSlot::DoubleArrows, twofold}});
}
