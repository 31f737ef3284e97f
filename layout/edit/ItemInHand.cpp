#include "layout/EditState.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/ItemDefaults.h"
#include "layout/edit/MouseStates.h"

void DispToolBox(gint existing, gint type) {
  if (existing == 0) {
    PtrnNo = -1;
    PtrnData = PTRNDATA{};
    PtrnData.Type = type;
    LoadItemDefaults(&PtrnData);
  }
  PtrnData.Point1 = {PtrnData.Parm[ItemSlot::X1], PtrnData.Parm[ItemSlot::Y1]};
  PtrnData.Point2 = {PtrnData.Parm[ItemSlot::X2], PtrnData.Parm[ItemSlot::Y2]};
  PtrnData.RegstFlag = 0;
  PtrnData.CheckFlag = 0;
  SetCursor(CursorPlain);
  SetMenuActive1();
  Dlg_ToolBox(PtrnWnd, type);
}

void ClearToolBox() {
  PtrnType = 0;
  PtrnMode = ModeIdle;
  SetMenuActive1();
  SetCursor(CursorPlain);
  SaveToolBox();
  Dlg_ToolBox(PtrnWnd, 0);
}
