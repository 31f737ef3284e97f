// Which form of the copy and move dialog a command asks with.
#include "layout/CopyDialogs.h"

#include "layout/Screen.h"

namespace {

constexpr const gchar* CopyTitle = "描画情報複写";
constexpr const gchar* MoveTitle = "描画情報移動";

}  // namespace

gint Dlg_ToolCopy(GtkWidget* parent, DLGPARM* parm) {
  return Dlg_Copy_Move(parent, 0, CopyTitle, parm);
}

gint Dlg_AreaCopy(GtkWidget* parent, DLGPARM* parm) {
  return Dlg_Copy_Move(parent, 0, CopyTitle, parm);
}

gint Dlg_AreaMove(GtkWidget* parent, DLGPARM* parm) {
  return Dlg_Copy_Move(parent, 1, MoveTitle, parm);
}
