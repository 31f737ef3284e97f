// Button.
#include <string>

#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"

namespace {

void DrawTopLeftBorder(Drawable* drawable, DrawGc* gc, const ItemBox& box, gint width,
                       gint colour) {
  for (gint k = 0; k < width; ++k) {
    ThinLine(drawable, gc, box.X1 + k, box.Y1 + k, box.X2 - k, box.Y1 + k, colour);
    ThinLine(drawable, gc, box.X1 + k, box.Y1 + k, box.X1 + k, box.Y2 - k, colour);
  }
}

// Kept: its upright begins at X2, one column right of the face, which ends before it.
void DrawBottomRightBorder(Drawable* drawable, DrawGc* gc, const ItemBox& box, gint width,
                           gint colour) {
  for (gint k = 0; k < width; ++k) {
    ThinLine(drawable, gc, box.X1 + k, box.Y2 - k - 1, box.X2 - k, box.Y2 - k - 1, colour);
    ThinLine(drawable, gc, box.X2 - k, box.Y1 + k - 1, box.X2 - k, box.Y2 - k - 1, colour);
  }
}

void DrawCaption(Drawable* drawable, DrawGc* gc, const PTRNDATA& item, const ItemBox& box) {
  const std::string caption = ItemText(item);
  if (caption.empty()) return;
  const gint font = item.Parm[ButtonSlot::Font];
  const SIZE extent = GetTextSize(font, caption.c_str());
  const bool placed = item.Parm[ButtonSlot::TextPlacement] == 1;
  const gint x = box.X1 + (placed ? OnPlane(item.Parm[ButtonSlot::TextOffset])
                                  : (box.Width() - extent.cx) / 2);
  const gint y = box.Y1 + (box.Height() - extent.cy) / 2;
  DrawText(drawable, gc, x, y, font, ParityColour(item, ButtonSlot::TextColour),
           item.Parm[ButtonSlot::FaceColour], caption.c_str());
}

}  // namespace

void DrawPtrnData09(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  const gint border = BoundedWidth(item->Parm[ButtonSlot::BorderWidth]);
  FillArea(drawable, gc, box, item->Parm[ButtonSlot::FaceColour]);
  DrawTopLeftBorder(drawable, gc, box, border, item->Parm[ButtonSlot::TopLeftColour]);
  DrawBottomRightBorder(drawable, gc, box, border, item->Parm[ButtonSlot::BottomRightColour]);
  DrawCaption(drawable, gc, *item, box);
}
