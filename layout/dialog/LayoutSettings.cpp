// The settings dialog of a layout, over the working copy EditHedr.
#include "ProjData.h"
#include "PtrnMisc.h"
#include "dialogs/Choosers.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/LatePress.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutSettingsPages.h"

namespace {

gint EditPtrnData_Result = 0;

void EditPtrnData_OK(GtkWidget* /*button*/, GtkWidget* window) {
  if (EditPtrnData_Check() == 0) return;
  EditPtrnData_Renew();
  EditPtrnData_Result = 1;
  gtk_widget_destroy(window);
}

void EditPtrnData_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  EditPtrnData_Result = 0;
  gtk_widget_destroy(window);
}

void EditPtrnData_Bmap(GtkWidget* button, DLG_EDITBOX* edit) {
  const gchar* chosen = Dlg_FileSelect(gtk_widget_get_toplevel(button), "画像ファイル選択", 2);
  if (*chosen != '\0') TakePicture(chosen, edit);
}

void AddBrowseButton(GtkWidget* table, DLG_EDITBOX* edit) {
  GtkWidget* button = NewButton("参照");
  g_signal_connect(button, "clicked", G_CALLBACK(EditPtrnData_Bmap), edit);
  gtk_grid_attach(GTK_GRID(table), button, 4, edit->line, 1, 1);
  gtk_widget_show(button);
}

void AddPage(const DialogWindow& dialog, const LayoutPage& page) {
  GtkWidget* table = NewControlGrid(15);
  gtk_box_pack_start(GTK_BOX(dialog.Content), table, TRUE, TRUE, 0);
  BuildControls(dialog.Window, table, page.Tables);
  if (page.Bitmap != nullptr) AddBrowseButton(table, page.Bitmap);
  NameControls(table);
}

}  // namespace

gint EditPtrnData(GtkWidget* parent) {
  EditPtrnData_Result = 0;
  const LayoutPage page = PageOfKind(EditHedr.Parm1[HedrSlot::Kind]);
  const DialogWindow dialog = NewDialogWindow(page.Title);
  gtk_window_set_resizable(GTK_WINDOW(dialog.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  EditLayoutWindow = dialog.Window;
  AddPage(dialog, page);
  gtk_widget_grab_focus(page.Tables.Edit->entry);
  SetDefaultButton(AddDialogButton(dialog, " 設定 ", G_CALLBACK(EditPtrnData_OK), dialog.Window));
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(EditPtrnData_CAN), dialog.Window);
  RunModal(dialog.Window, parent);
  EditLayoutWindow = nullptr;
  return EditPtrnData_Result;
}
