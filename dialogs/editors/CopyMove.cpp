// The dialog that asks how often and how far to copy, or how far to move.
#include "dialogs/Kit.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/ControlTables.h"
#include "layout/Screen.h"

namespace {

gint CopyMoveResult = 0;
// Working copy that the rows are bound to; reaches the caller when it is confirmed.
DLGPARM EditParm;

}  // namespace

DLG_STRING Dlg_Copy_String[] = {{0, 0, 0, 0, "複写箇数", nullptr},
                                {1, 0, 0, 0, "Ｘ方向ドット数", nullptr},
                                {2, 0, 0, 0, "Ｙ方向ドット数", nullptr},
                                {3, 0, 0, 0, "識別番号", nullptr},
                                {-1, 0, 0, 0, nullptr, nullptr}};
DLG_NUMRBOX Dlg_Copy_Numr[] = {{0, 1, 1, 2, 99, 0, &EditParm.cont, "", nullptr},
                               {1, 1, 1, 4, 9999, 0, &EditParm.xdot, "", nullptr},
                               {2, 1, 1, 4, 9999, 0, &EditParm.ydot, "", nullptr},
                               {3, 1, 1, 4, 9999, 0, &EditParm.code, "", nullptr},
                               {-1, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr}};
DLG_STRING Dlg_Move_String[] = {{0, 0, 0, 0, "Ｘ方向ドット数", nullptr},
                                {1, 0, 0, 0, "Ｙ方向ドット数", nullptr},
                                {-1, 0, 0, 0, nullptr, nullptr}};
DLG_NUMRBOX Dlg_Move_Numr[] = {{0, 1, 1, 4, 9999, 0, &EditParm.xdot, "", nullptr},
                               {1, 1, 1, 4, 9999, 0, &EditParm.ydot, "", nullptr},
                               {-1, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr}};

namespace {

void Dlg_CopyMove_OK(GtkWidget* /*button*/, GtkWidget* window) {
  CopyMoveResult = 1;
  gtk_widget_destroy(window);
}

void Dlg_CopyMove_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  gtk_widget_destroy(window);
}

}  // namespace

gint Dlg_Copy_Move(GtkWidget* parent, gint mode, const gchar* title, DLGPARM* parm) {
  CopyMoveResult = 0;
  EditParm = *parm;
  const bool copy = mode == 0;
  const DialogWindow dialog = NewDialogWindow(title);
  gtk_window_set_resizable(GTK_WINDOW(dialog.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER_ON_PARENT);

  GtkWidget* table = NewControlGrid(20);
  gtk_box_pack_start(GTK_BOX(dialog.Content), table, TRUE, TRUE, 0);
  Dlg_String(dialog.Window, table, copy ? Dlg_Copy_String : Dlg_Move_String);
  Dlg_NumrBox(dialog.Window, table, copy ? Dlg_Copy_Numr : Dlg_Move_Numr);
  NameControls(table);
  SetDefaultButton(AddDialogButton(dialog, copy ? " 複写 " : " 移動 ", G_CALLBACK(Dlg_CopyMove_OK),
                                   dialog.Window));
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(Dlg_CopyMove_CAN), dialog.Window);
  RunModal(dialog.Window, parent);
  if (CopyMoveResult == 1) *parm = EditParm;
  return CopyMoveResult;
}
