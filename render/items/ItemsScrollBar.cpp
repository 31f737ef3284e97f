// Scroll bar.
#include <algorithm>

#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Pictures.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"
#include "render/items/ScrollBarParts.h"

namespace {

gint FrameWidth(const PTRNDATA& item) {
  return std::max(0, BoundedWidth(item.Parm[ScrollSlot::FrameWidth]));
}

// A box with the bar's own border, raised at the top left.
void DrawBorderedBox(Drawable* drawable, DrawGc* gc, const PTRNDATA& item, const ItemBox& box,
                     gint areaColour) {
  const gint width = FrameWidth(item);
  const gint light = item.Parm[ScrollSlot::TopLeftColour];
  const gint dark = item.Parm[ScrollSlot::BottomRightColour];
  DrawGbox(drawable, gc, box.X1, box.Y1, box.X2, box.Y2, width, width, width, width, light, dark,
           light, dark, areaColour);
}

}  // namespace

void DrawPtrnData14(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  const bool vertical = item->Parm[ScrollSlot::Direction] != 0;
  DrawBorderedBox(drawable, gc, *item, box, item->Parm[ScrollSlot::TroughColour]);

  const auto parts =
      LayScrollBar(box, vertical, FrameWidth(*item), item->Parm[ScrollSlot::DoubleArrows] != 0,
                   item->Parm[ScrollSlot::SingleArrows] != 0);
  if (!parts) return;

  const auto square = [&](gint along) {
    const gint x = vertical ? parts->Across : along;
    const gint y = vertical ? along : parts->Across;
    return ItemBox{x, y, x + parts->Side, y + parts->Side};
  };
  const auto drawArrow = [&](gint along, const gchar* const* picture) {
    const ItemBox place = square(along);
    DrawXpm(drawable, gc, place.X1, place.Y1, parts->Side, parts->Side, picture);
  };
  if (parts->Double) {
    drawArrow(parts->Double->First, vertical ? XPM_UpArrow2 : XPM_LeftArrow2);
    drawArrow(parts->Double->Last, vertical ? XPM_DownArrow2 : XPM_RightArrow2);
  }
  if (parts->Single) {
    drawArrow(parts->Single->First, vertical ? XPM_UpArrow1 : XPM_LeftArrow1);
    drawArrow(parts->Single->Last, vertical ? XPM_DownArrow1 : XPM_RightArrow1);
  }
  if (parts->Thumb) {
    DrawBorderedBox(drawable, gc, *item, square(*parts->Thumb),
                    item->Parm[ScrollSlot::ThumbColour]);
  }
}
