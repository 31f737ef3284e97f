// The heights and widths of a layout's areas, in layout dots.
#pragma once

#include "layout/ItemSlots.h"
#include "layout/Records.h"
#include "render/surface/Plane.h"

struct PageArea {
  explicit PageArea(const PTRNHEDR& header)
      : Width(OnPlane(header.Parm1[HedrSlot::Width])),
        Height(OnPlane(header.Parm1[HedrSlot::Height])),
        TitleHeight(OnPlane(header.Parm1[HedrSlot::TitleHeight])),
        ButtonHeight(OnPlane(header.Parm1[HedrSlot::ButtonAreaHeight])) {}

  gint Width;
  gint Height;
  gint TitleHeight;
  gint ButtonHeight;

  gint WorkHeight() const { return Height - TitleHeight - ButtonHeight; }
};
