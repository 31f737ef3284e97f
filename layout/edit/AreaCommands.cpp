#include <algorithm>

#include "layout/Area.h"
#include "layout/CopyDialogs.h"
#include "layout/EditState.h"
#include "layout/LayoutCommands.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/CopyMove.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/NothingOpen.h"

namespace {

void OrderCorners() {
  const POINT one = AreaPoint1;
  const POINT two = AreaPoint2;
  AreaPoint1 = {std::min(gint{one.x}, gint{two.x}), std::min(gint{one.y}, gint{two.y})};
  AreaPoint2 = {std::max(gint{one.x}, gint{two.x}), std::max(gint{one.y}, gint{two.y})};
}

bool InArea(gint64 x, gint64 y) {
  return x >= AreaPoint1.x && x <= AreaPoint2.x && y >= AreaPoint1.y && y <= AreaPoint2.y;
}

// Calls `change` with every item inside the area that stood in the store at the beginning.
template <class Change>
void ForItemsInside(Change change) {
  const gint count = GetPtrnCount();
  PTRNDATA item;
  for (gint no = 0; no < count; ++no) {
    if (GetPtrnData(no, &item) != 0 && AreaButnCheck(&item) != 0) change(no, item);
  }
}

}  // namespace

gint AreaButnCheck(const PTRNDATA* item) {
  const bool box = HasTwoPoints(item->Type);
  const gint64 x2 = box ? gint64{item->Point2.x} : gint64{item->Point1.x} + item->Size.cx;
  const gint64 y2 = box ? gint64{item->Point2.y} : gint64{item->Point1.y} + item->Size.cy;
  return InArea(item->Point1.x, item->Point1.y) && InArea(x2, y2) ? 1 : 0;
}

void AreaButn_Delt() {
  if (EndedWithNothingOpen()) return;
  PushPtrnData();
  if (DelPtrnDataIf([](const PTRNDATA* item) { return AreaButnCheck(item) != 0; }) > 0) {
    PtrnFlag = 2;
  }
}

void AreaButn_Move() {
  if (EndedWithNothingOpen() || Dlg_AreaMove(PtrnWnd, &CopyMoveParm) != 1) return;
  PushPtrnData();
  ForItemsInside([](gint no, PTRNDATA& item) {
    ShiftItem(&item, CopyMoveParm);
    SetPtrnData(no, &item);
    PtrnFlag = 2;
  });
}

void AreaButn_Copy() {
  if (EndedWithNothingOpen() || Dlg_AreaCopy(PtrnWnd, &CopyMoveParm) != 1) return;
  PushPtrnData();
  ForItemsInside([](gint /*no*/, const PTRNDATA& item) { AddShiftedCopies(item, CopyMoveParm); });
}

void AreaBoxButn([[maybe_unused]] GtkWidget* widget, gpointer data) {
  if (EndedWithNothingOpen()) return;
  const gint command = GPOINTER_TO_INT(data);
  if (command > 0) OrderCorners();
  switch (command) {
    case AreaCode::Delete:
      AreaButn_Delt();
      break;
    case AreaCode::Move:
      AreaButn_Move();
      break;
    case AreaCode::Copy:
      AreaButn_Copy();
      break;
    default:
      break;
  }
  PtrnMode = ModeIdle;
  SetMenuActive1();
  DrawRequest(1);
}
