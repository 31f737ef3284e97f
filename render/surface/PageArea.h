// The heights and widths of the open layout's areas, in layout dots.
#pragma once

#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "render/surface/Plane.h"

struct PageArea {
  gint Width = OnPlane(PtrnHedr.Parm1[HedrSlot::Width]);
  gint Height = OnPlane(PtrnHedr.Parm1[HedrSlot::Height]);
  gint TitleHeight = OnPlane(PtrnHedr.Parm1[HedrSlot::TitleHeight]);
  gint ButtonHeight = OnPlane(PtrnHedr.Parm1[HedrSlot::ButtonAreaHeight]);

  gint WorkHeight() const { return Height - TitleHeight - ButtonHeight; }
};
