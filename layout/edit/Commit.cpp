#include "layout/Commit.h"

#include "layout/CopyDialogs.h"
#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/LayoutCommands.h"
#include "layout/Registry.h"
#include "layout/Screen.h"
#include "layout/ShownTexts.h"
#include "layout/Store.h"
#include "layout/edit/CopyMove.h"
#include "layout/edit/ItemDefaults.h"
#include "layout/edit/NothingOpen.h"
#include "support/Resource.h"
#include "support/Text.h"

namespace {

void FillParms() {
  const ItemTypeRow& type = ItemTypeOf(PtrnData.Type);
  if (type.HasCursorKeys) SetToolBoxCursor();
  SetPointParms(&PtrnData);
  if (type.Texts == ItemTexts::Words) {
    PtrnData.Parm[TextSlot::Length] = static_cast<gint>(TextOf(PtrnData, Language).size());
  }
}

void StoreItem() {
  if (PtrnNo < 0 || SetPtrnData(PtrnNo, &PtrnData) == 0) AddPtrnData(&PtrnData);
  PtrnFlag = 2;
}

void RegisterTexts() {
  PtrnData.RegstFlag = 0;
  // Kept: one less than the list numbers that the registry knows; the texts reach lists 3, 3 and 1.
  RegstPtrnText(PtrnData.Text1, 0);
  RegstPtrnText(PtrnData.Text2, 1);
  RegstPtrnText(PtrnData.Text3, 2);
}

}  // namespace

gint ToolButn_OK() {
  if (EndedWithNothingOpen() || TestPtrnData() == 0) return 0;
  PushPtrnData();
  FillParms();
  StoreItem();
  RegstPtrnCode(PtrnData.ID_Code, PtrnData.ID_No);
  if (PtrnData.RegstFlag != 0) RegisterTexts();
  if (PtrnData.CheckFlag != 0) {
    PtrnData.CheckFlag = 0;
    SaveItemDefaults(PtrnData);
  }
  return 1;
}

void ToolButn_Delt() {
  if (EndedWithNothingOpen()) return;
  PushPtrnData();
  DelPtrnData(PtrnNo);
  PtrnFlag = 2;
}

// Copies the stored item: what was changed in hand and not registered is not copied.
void ToolButn_Copy() {
  if (EndedWithNothingOpen() || Dlg_ToolCopy(PtrnWnd, &CopyMoveParm) != 1) return;
  PushPtrnData();
  PTRNDATA item;
  if (GetPtrnData(PtrnNo, &item) != 0) AddShiftedCopies(item, CopyMoveParm);
}
