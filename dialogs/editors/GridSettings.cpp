// The grid settings dialog of the open layout.
#include "dialogs/Editors.h"
#include "dialogs/frame/TableDialog.h"
#include "dialogs/kit/Rows.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "support/ConstantLists.h"

// The dialog's copy of the header; the controls are bound to it.
PTRNHEDR DlgHedr;

namespace {

gint* Parm2(gint slot) {
  return Rows::IntAt(&DlgHedr, offsetof(PTRNHEDR, Parm2) + static_cast<gsize>(slot) * sizeof(gint));
}

}  // namespace

DLG_STRING PtrnGrid_String[] = {{0, 0, 0, 0, "横", nullptr},
                                {1, 0, 0, 0, "縱", nullptr},
                                {2, 0, 0, 0, "表示色", nullptr},
                                {-1, 0, 0, 0, nullptr, nullptr}};
DLG_COMBOBOX PtrnGrid_Combo[] = {{0, 1, 1, 0, Parm2(ViewSlot::GridX), GridIntvList, ""},
                                 {1, 1, 1, 0, Parm2(ViewSlot::GridY), GridIntvList, ""},
                                 {-1, 0, 0, 0, nullptr, nullptr, nullptr}};
DLG_COLRDATA PtrnGrid_Colr[] = {{2, 1, 1, Parm2(ViewSlot::GridColour), ""},
                                {-1, 0, 0, nullptr, nullptr}};

namespace {

void PtrnGridSet_OK() {
  PtrnHedr = DlgHedr;
}

}  // namespace

void PtrnGridSet(GtkWidget* /*parent*/, gpointer /*data*/) {
  ClearToolBox();
  DlgHedr = PtrnHedr;
  RunTableDialog(PtrnWnd, {.Frame = {.Title = "方眼設定"},
                           .Tables = ControlTables{.String = PtrnGrid_String,
                                                   .Combo = PtrnGrid_Combo,
                                                   .Colr = PtrnGrid_Colr},
                           .Take = PtrnGridSet_OK});
  DrawRequest(1);
}
