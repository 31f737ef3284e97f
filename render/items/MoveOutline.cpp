// Outlines and drag handles.
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "render/HitTest.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"
#include "render/items/OutlineByType.h"

namespace {

gint OutlineColour(gint undefined) {
  return undefined != 0 ? gint{ColourRed} : gint{PtrnHedr.Parm2[ViewSlot::GridColour]};
}

// The pen of one outline.
struct Outline {
  Drawable* Surface;
  DrawGc* Gc;
  gint Colour;

  void Rectangle(const ItemBox& box) const {
    DrawRect(Surface, Gc, box.X1, box.Y1, box.X2, box.Y2, 1, 0, Colour, -1);
  }
  void Ellipse(const ItemBox& box) const {
    DrawCrcl(Surface, Gc, box.X1, box.Y1, box.X2, box.Y2, 1, 0, Colour, -1);
  }
  void Line(gint x1, gint y1, gint x2, gint y2) const {
    ThinLine(Surface, Gc, x1, y1, x2, y2, Colour);
  }
  void RoundHandle(gint x, gint y) const {
    Ellipse({x - HandleReach, y - HandleReach, x + HandleReach, y + HandleReach});
  }
  void SquareHandle(gint x, gint y) const {
    Rectangle({x - HandleReach, y - HandleReach, x + HandleReach, y + HandleReach});
  }
};

}  // namespace

void DrawMoveData(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint zoom) {
  if (const OutlineFunction draw = OutlineOf(item->Type)) draw(drawable, gc, item, 0, zoom);
}

void DrawMoveData01(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom) {
  const Outline outline{drawable, gc, OutlineColour(undefined)};
  const ItemBox box = Zoomed(ItemBoxOf(*item), zoom);
  outline.Rectangle(box);
  if (undefined != 0) return;
  outline.RoundHandle(box.X1, box.Y1);
  outline.RoundHandle(box.X2, box.Y2);
  outline.RoundHandle(box.X1, box.Y2);
  outline.RoundHandle(box.X2, box.Y1);
  outline.SquareHandle(box.MiddleX(), box.Y1);
  outline.SquareHandle(box.MiddleX(), box.Y2);
  outline.SquareHandle(box.X1, box.MiddleY());
  outline.SquareHandle(box.X2, box.MiddleY());
}

void DrawMoveData02(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom) {
  const Outline outline{drawable, gc, OutlineColour(undefined)};
  const ItemBox line = Zoomed(ItemBoxOf(*item), zoom);
  outline.Line(line.X1, line.Y1, line.X2, line.Y2);
  if (undefined != 0) return;
  outline.RoundHandle(line.X1, line.Y1);
  outline.RoundHandle(line.X2, line.Y2);
}

void DrawMoveData04(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom) {
  const Outline outline{drawable, gc, OutlineColour(undefined)};
  const ItemBox box = Zoomed(ItemBoxOf(*item), zoom);
  outline.Ellipse(box);
  if (undefined != 0) return;
  outline.RoundHandle(box.MiddleX(), box.Y1);
  outline.RoundHandle(box.MiddleX(), box.Y2);
  outline.RoundHandle(box.X1, box.MiddleY());
  outline.RoundHandle(box.X2, box.MiddleY());
}

void DrawMoveData06(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom) {
  const Outline outline{drawable, gc, OutlineColour(undefined)};
  const gint x = Zoomed(item->Point1.x, zoom);
  const gint y = Zoomed(item->Point1.y, zoom);
  if (undefined == 0 && item->Size.cx == 0 && item->Size.cy == 0) {
    // Not painted yet, so its extent is unknown.
    outline.Line(x - HandleReach, y - HandleReach, x + HandleReach, y + HandleReach);
    outline.Line(x + HandleReach, y - HandleReach, x - HandleReach, y + HandleReach);
    return;
  }
  outline.Rectangle({x, y, x + Zoomed(item->Size.cx, zoom), y + Zoomed(item->Size.cy, zoom)});
}

void DrawUndfData(Drawable* drawable, DrawGc* gc, gint zoom) {
  const gint count = GetPtrnCount();
  for (gint no = 0; no < count; ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    if (item == nullptr || item->UndfFlag == 0) continue;
    if (const OutlineFunction draw = OutlineOf(item->Type)) draw(drawable, gc, item, 1, zoom);
  }
}
