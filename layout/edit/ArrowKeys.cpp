// Moving the item in hand with the keyboard.
#include <algorithm>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/Offset.h"

namespace {

// The distance between the lines that the item's points snap to.
gint Step(gint interval) {
  const gint dots = GridDots(interval);
  return std::max(HasTwoPoints(PtrnData.Type) ? dots / 2 : dots, 1);
}

bool Touches(gint64 one, gint64 other, gint extent) {
  return std::max(one, other) >= 0 && std::min(one, other) < extent;
}

// Whether some of the item would stay on the layout.
bool StaysInReach(gint64 xdot, gint64 ydot) {
  const bool box = HasTwoPoints(PtrnData.Type);
  const gint64 x1 = PtrnData.Point1.x + xdot;
  const gint64 y1 = PtrnData.Point1.y + ydot;
  const gint64 x2 = box ? PtrnData.Point2.x + xdot : x1;
  const gint64 y2 = box ? PtrnData.Point2.y + ydot : y1;
  return Touches(x1, x2, PtrnHedr.Parm1[HedrSlot::Width]) &&
         Touches(y1, y2, PtrnHedr.Parm1[HedrSlot::Height]);
}

void Shift(POINT& point, gint64 xdot, gint64 ydot) {
  point.x = AddOffset(point.x, xdot);
  point.y = AddOffset(point.y, ydot);
}

}  // namespace

gint MoveItemInHand(gint columns, gint rows) {
  if (PtrnFlag == 0 || PtrnType == 0 || PtrnMode != ModeSelected) return 0;
  const gint64 xdot = gint64{columns} * Step(PtrnHedr.Parm2[ViewSlot::GridX]);
  const gint64 ydot = gint64{rows} * Step(PtrnHedr.Parm2[ViewSlot::GridY]);
  if (StaysInReach(xdot, ydot)) {
    Shift(PtrnData.Point1, xdot, ydot);
    Shift(PtrnData.Point2, xdot, ydot);
    SetToolBoxPoint();
    DrawRequest(0);
  }
  return 1;
}
