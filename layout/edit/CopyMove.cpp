#include "layout/edit/CopyMove.h"

#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/Offset.h"

DLGPARM CopyMoveParm;

void SetPointParms(PTRNDATA* item) {
  item->Parm[ItemSlot::X1] = item->Point1.x;
  item->Parm[ItemSlot::Y1] = item->Point1.y;
  if (HasTwoPoints(item->Type)) {
    item->Parm[ItemSlot::X2] = item->Point2.x;
    item->Parm[ItemSlot::Y2] = item->Point2.y;
  }
}

void ShiftItem(PTRNDATA* item, const DLGPARM& parm) {
  item->Point1 = {AddOffset(item->Point1.x, parm.xdot), AddOffset(item->Point1.y, parm.ydot)};
  item->Point2 = {AddOffset(item->Point2.x, parm.xdot), AddOffset(item->Point2.y, parm.ydot)};
  SetPointParms(item);
}

void AddShiftedCopies(PTRNDATA item, const DLGPARM& parm) {
  constexpr gint64 NumberCount = 10000;
  for (gint i = 0; i < parm.cont; ++i) {
    ShiftItem(&item, parm);
    item.ID_No = static_cast<gint>((gint64{item.ID_No} + parm.code) % NumberCount);
    AddPtrnData(&item);
    PtrnFlag = 2;
  }
}
