// The grid settings dialog of the open layout.
#include "Constant.h"
#include "dialogs/Editors.h"
#include "dialogs/Kit.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/kit/ControlTables.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"

// The dialog's copy of the header; the controls are bound to it.
PTRNHEDR DlgHedr;

namespace {

gint* Parm2(gint slot) {
  char* record = reinterpret_cast<char*>(&DlgHedr);
  const gsize offset = offsetof(PTRNHEDR, Parm2) + static_cast<gsize>(slot) * sizeof(gint);
  return static_cast<gint*>(static_cast<void*>(record + offset));
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

void PtrnGridSet_OK(GtkWidget* /*button*/, GtkWidget* window) {
  PtrnHedr = DlgHedr;
  gtk_widget_destroy(window);
}

void PtrnGridSet_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  gtk_widget_destroy(window);
}

}  // namespace

void PtrnGridSet(GtkWidget* /*parent*/, gpointer /*data*/) {
  ClearToolBox();
  DlgHedr = PtrnHedr;
  const DialogWindow dialog = NewDialogWindow("方眼設定");
  gtk_window_set_resizable(GTK_WINDOW(dialog.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  GtkWidget* table = NewControlGrid(20);
  gtk_box_pack_start(GTK_BOX(dialog.Content), table, TRUE, TRUE, 0);
  BuildControls(dialog.Window, table,
                {.String = PtrnGrid_String, .Combo = PtrnGrid_Combo, .Colr = PtrnGrid_Colr});
  NameControls(table);
  SetDefaultButton(AddDialogButton(dialog, " 設定 ", G_CALLBACK(PtrnGridSet_OK), dialog.Window));
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(PtrnGridSet_CAN), dialog.Window);
  RunModal(dialog.Window, PtrnWnd);
  DrawRequest(1);
}
