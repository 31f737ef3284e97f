// Bar graph, shown at half of its scale.
#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"

void DrawPtrnData05(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  const bool horizontal = item->Parm[BarSlot::Direction] == 1;
  const gint barWidth = BoundedWidth(item->Parm[BarSlot::BarWidth]);
  const gint outlineWidth = BoundedWidth(item->Parm[BarSlot::OutlineWidth]);
  const gint barColour = SystemColour(*item, BarSlot::BarColour);

  FillArea(drawable, gc, box, SystemColour(*item, BarSlot::BackColour));
  if (barWidth != 0) {
    const ItemBox level = horizontal ? ItemBox{box.MiddleX(), box.Y1, box.MiddleX(), box.Y2}
                                     : ItemBox{box.X1, box.MiddleY(), box.X2, box.MiddleY()};
    DrawLine(drawable, gc, level.X1, level.Y1, level.X2, level.Y2, 0, barWidth, 0, barColour);
  } else {
    const ItemBox area = horizontal ? ItemBox{box.X1, box.Y1, box.MiddleX(), box.Y2}
                                    : ItemBox{box.X1, box.MiddleY(), box.X2, box.Y2};
    FillArea(drawable, gc, area, barColour);
  }
  if (outlineWidth != 0) {
    DrawRect(drawable, gc, box.X1, box.Y1, box.X2, box.Y2, outlineWidth, 1,
             item->Parm[BarSlot::OutlineColour], -1);
  }
}
