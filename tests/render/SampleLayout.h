// A small layout with a header of its own and an item of every type.
#pragma once

#include "tests/render/ItemSamples.h"

inline void SetHeader(gint width, gint height) {
  PtrnHedr.Parm1[HedrSlot::Width] = width;
  PtrnHedr.Parm1[HedrSlot::Height] = height;
  PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::Cream;
}

// A title area of `height` in font 16 (date in font 12).
inline void SetTitleArea(gint height, std::string_view title) {
  PtrnHedr.Parm1[HedrSlot::TitleHeight] = height;
  PtrnHedr.Parm1[HedrSlot::TitleColour] = Ink::Yellow;
  PtrnHedr.Parm1[HedrSlot::TitleAreaColour] = Ink::Navy;
  PtrnHedr.Parm1[HedrSlot::TitleFont] = Font16;
  PtrnHedr.Parm1[HedrSlot::DateFont] = Font12;
  CopyText(PtrnHedr.PtrnName1, Euc(title));
}

inline void SetButtonArea(gint height) {
  PtrnHedr.Parm1[HedrSlot::ButtonAreaHeight] = height;
  PtrnHedr.Parm1[HedrSlot::ButtonAreaColour] = Ink::Teal;
}

inline void SetFrame(gint width) {
  PtrnHedr.Parm1[HedrSlot::FrameWidth] = width;
  PtrnHedr.Parm1[HedrSlot::FrameColour] = Ink::Red;
}

inline void AddItems(std::initializer_list<PTRNDATA> items) {
  for (const PTRNDATA& item : items) AddPtrnData(&item);
}

// 160 x 120 with one item of every type.
inline void MakeSampleLayout() {
  SetHeader(160, 120);
  SetTitleArea(20, "水処理");
  SetButtonArea(16);
  SetFrame(2);
  AddItems({FrameItem(4, 24, 60, 60, 3), LineItem(4, 64, 60, 64, 1, 2),
            ShapeItem(TypeRectangle, 66, 24, 90, 44, 1, 2, 1),
            ShapeItem(TypeEllipse, 94, 24, 120, 44, 1, 2, 1), BarItem(124, 24, 134, 60, 0, 0, 1),
            TextItem(TypeFixedString, 8, 28, Font12, {}, "水位"),
            TextItem(TypeVariableString, 8, 42, Font12, {{TextSlot::Length, 5}}),
            TextItem(TypeNumeric, 66, 48, Font12, {{TextSlot::Length, 6}, {TextSlot::Decimals, 1}}),
            ButtonItem(4, 106, 40, 118, Font12, 1, "開始"),
            ChoiceItem(TypeRadioButton, 4, 70, Font12, 0, "自動"),
            ChoiceItem(TypeCheckBox, 4, 86, Font12, 0, "警報"), BitmapItem(56, 70, 88, 94, 1),
            MarkItem(94, 66, 120, 92, SceneMark::Disc32x32, 0),
            ScrollItem(124, 66, 140, 102, 1, 1, 1, 0),
            MakeItem(TypeSpinButton, 142, 70, 158, 102)});
}

// The layout's picture at 100 %.
inline std::unique_ptr<Drawable> PaintLayout() {
  auto picture =
      std::make_unique<Drawable>(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
  DrawGc gc;
  DrawWindow1(picture.get(), &gc);
  return picture;
}

// What the canvas shows of the zoomed layout in a rectangle: picture, grid and overlay.
inline std::unique_ptr<Drawable> PaintZoomedLayout(gint zoomIndex, gint x, gint y, gint width,
                                                   gint height) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = zoomIndex;
  constexpr gint percent[5] = {500, 200, 100, 75, 50};
  const auto picture = PaintLayout();
  auto view = std::make_unique<Drawable>(width, height, x, y);
  PaintZoomed(*view, *picture, picture->Width() * percent[zoomIndex] / 100,
              picture->Height() * percent[zoomIndex] / 100);
  DrawGc gc;
  DrawGridData(view.get(), &gc);
  DrawWindow2(view.get(), &gc);
  return view;
}
