// The dialog that asks how often and how far to copy, or how far to move.
#include "dialogs/frame/TableDialog.h"
#include "layout/Screen.h"

namespace {

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

gint Dlg_Copy_Move(GtkWidget* parent, gint mode, const gchar* title, DLGPARM* parm) {
  EditParm = *parm;
  const bool copy = mode == 0;
  return RunTableDialog(parent,
                        {.Frame = {.Title = title, .Place = GTK_WIN_POS_CENTER_ON_PARENT},
                         .Tables = ControlTables{.String = copy ? Dlg_Copy_String : Dlg_Move_String,
                                                 .Numr = copy ? Dlg_Copy_Numr : Dlg_Move_Numr},
                         .Ok = copy ? " 複写 " : " 移動 ",
                         .Take = [parm] { *parm = EditParm; }});
}
