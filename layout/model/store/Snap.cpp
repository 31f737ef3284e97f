#include "layout/Snap.h"

#include <algorithm>
#include <limits>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"

namespace {

gint Clamp(gint64 value) {
  return static_cast<gint>(std::clamp<gint64>(value, std::numeric_limits<gint>::min(),
                                              std::numeric_limits<gint>::max()));
}

// To the nearest line; the division truncates, so left of 0 it leans towards 0.
gint SnapToGrid(gint value, gint step) {
  return Clamp(step * ((gint64{value} + step / 2) / step));
}

gint SnapStep(gint interval, gint half) {
  return std::max(half ? GridDots(interval) / 2 : GridDots(interval), 1);
}

// Centres a line of text in the whole grid rows that it needs.
void CentreInRows(PTRNDATA& item, gint font) {
  const gint64 row = GridDots(PtrnHedr.Parm2[ViewSlot::GridY]);
  const gint64 height = GuardedFontHeight(font);
  const gint64 rows = std::max<gint64>((height + row - 1) / row, 1);
  item.Point1.y = Clamp(item.Point1.y + (rows * row - height + 1) / 2);
}

// Top left corner first.
void OrderCorners(PTRNDATA& item) {
  const POINT one = item.Point1;
  const POINT other = item.Point2;
  if (one.x > other.x) {
    item.Point1.x = other.x;
    item.Point2.x = one.x;
  }
  if (one.y > other.y) {
    item.Point1.y = other.y;
    item.Point2.y = one.y;
  }
}

}  // namespace

void NormalizePoint(POINT* point, gint half) {
  point->x = SnapToGrid(point->x, SnapStep(PtrnHedr.Parm2[ViewSlot::GridX], half));
  point->y = SnapToGrid(point->y, SnapStep(PtrnHedr.Parm2[ViewSlot::GridY], half));
}

void NormalizeZahyo(PTRNDATA* item) {
  if (!IsItemType(item->Type)) return;
  const ItemTypeRow& type = ItemTypeOf(item->Type);
  const gint half = HasTwoPoints(item->Type) ? 1 : 0;
  NormalizePoint(&item->Point1, half);
  NormalizePoint(&item->Point2, half);
  if (half == 0) {
    CentreInRows(*item, type.Font == NoSlot ? NoSlot : gint{item->Parm[type.Font]});
  } else if (type.Shape != ItemShape::Line) {
    OrderCorners(*item);
  }
}
