#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Store.h"
#include "render/HitTest.h"

namespace {

bool Pickable(gint type) {
  return IsItemType(type) && PtrnUnSlct[type - 1] == 0;
}

}  // namespace

gint MousePoint(POINT* point) {
  const gint64 zoom = ZoomPercent(PtrnHedr.Parm2[ViewSlot::Zoom]);
  // Division truncates toward zero, so a strip left of and above the layout counts as its edge.
  const gint64 x = gint64{point->x} * 100 / zoom;
  const gint64 y = gint64{point->y} * 100 / zoom;
  if (!IsOnLayout(PtrnHedr, x, y)) return 0;
  *point = {static_cast<gint>(x), static_cast<gint>(y)};
  return 1;
}

// The order of the store decides among overlapping items, not the order of painting.
gint SearchPtrnData1(const POINT* point) {
  const gint count = GetPtrnCount();
  for (gint no = 0; no < count; ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    if (item != nullptr && Pickable(item->Type) && SearchPtrnData(point, item) >= 1) return no;
  }
  return -1;
}

gint SearchPtrnData2(const POINT* point) {
  return Pickable(PtrnData.Type) ? SearchPtrnData(point, &PtrnData) : 0;
}
