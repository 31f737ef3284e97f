// The settings dialog of a layout, over the working copy EditHedr.
#include "layout/LayoutSettings.h"

#include "dialogs/Choosers.h"
#include "dialogs/frame/TableDialog.h"
#include "dialogs/kit/LatePress.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutSettingsPages.h"

namespace {

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

}  // namespace

gint EditPtrnData(GtkWidget* parent) {
  const LayoutPage page = PageOfKind(EditHedr.Parm1[HedrSlot::Kind]);
  return RunTableDialog(parent, {.Frame = {.Title = page.Title, .Window = &EditLayoutWindow},
                                 .Tables = page.Tables,
                                 .ColumnSpacing = 15,
                                 .Complete =
                                     [&page](GtkWidget* grid) {
                                       if (page.Bitmap != nullptr) {
                                         AddBrowseButton(grid, page.Bitmap);
                                       }
                                     },
                                 .First = page.Tables.Edit,
                                 .Check = EditPtrnData_Check,
                                 .Take = EditPtrnData_Renew});
}
