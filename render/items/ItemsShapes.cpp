// Framed box, line, rectangle and ellipse.
#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"

namespace {

using ShapePrimitive = void (*)(Drawable*, DrawGc*, gint, gint, gint, gint, gint, gint, gint, gint);

void DrawShape(ShapePrimitive draw, Drawable* drawable, DrawGc* gc, const PTRNDATA& item) {
  const ItemBox box = ItemBoxOf(item);
  draw(drawable, gc, box.X1, box.Y1, box.X2, box.Y2, BoundedWidth(item.Parm[ShapeSlot::Width]),
       item.Parm[ShapeSlot::Position], SystemColour(item, ShapeSlot::LineColour),
       OptionalColour(item.Parm[ShapeSlot::Filled], SystemColour(item, ShapeSlot::FillColour)));
}

}  // namespace

void DrawPtrnData01(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  DrawGbox(
      drawable, gc, box.X1, box.Y1, box.X2, box.Y2, BoundedWidth(item->Parm[FrameSlot::TopWidth]),
      BoundedWidth(item->Parm[FrameSlot::BottomWidth]),
      BoundedWidth(item->Parm[FrameSlot::LeftWidth]),
      BoundedWidth(item->Parm[FrameSlot::RightWidth]), SystemColour(*item, FrameSlot::TopColour),
      SystemColour(*item, FrameSlot::BottomColour), SystemColour(*item, FrameSlot::LeftColour),
      SystemColour(*item, FrameSlot::RightColour), SystemColour(*item, FrameSlot::AreaColour));
}

void DrawPtrnData02(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const gint width = BoundedWidth(item->Parm[LineSlot::Width]);
  if (width <= 0) return;
  const ItemBox line = ItemBoxOf(*item);
  DrawLine(drawable, gc, line.X1, line.Y1, line.X2, line.Y2, item->Parm[LineSlot::Style], width,
           item->Parm[LineSlot::Position], SystemColour(*item, LineSlot::Colour));
}

void DrawPtrnData03(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  DrawShape(DrawRect, drawable, gc, *item);
}

void DrawPtrnData04(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  DrawShape(DrawCrcl, drawable, gc, *item);
}
