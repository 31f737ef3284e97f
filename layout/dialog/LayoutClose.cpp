// The dialog that decides what becomes of a changed layout.
#include "dialogs/Kit.h"
#include "dialogs/choosers/NameDialog.h"
#include "dialogs/frame/Accessible.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutList.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

enum CloseResult { Save = 1, Discard = 2 };

GtkWidget* SaveButton = nullptr;
GtkWidget* DiscardButton = nullptr;

DLG_EDITBOX PtrnFileClose_Edit[] = {{0, 0, 0, 80, 0, PtrnFileName, nullptr},
                                    {-1, 0, 0, 0, 0, nullptr, nullptr}};

void EnableActions() {
  gtk_widget_set_sensitive(SaveButton, PtrnFileName[0] != '\0');
  gtk_widget_set_sensitive(DiscardButton, PtrnFileName[0] != '\0');
}

void PtrnFileClose_Entry(GtkEditable* /*entry*/, gpointer /*data*/) {
  EnableActions();
}

// Kept: the question is about the name in the entry; the caller writes under the layout's own.
void PtrnFileClose_Save(GtkWidget* button) {
  if (PtrnFileName[0] == '\0') return;
  if (FileExist(ProjPath, PtrnFileName, "ptn") != 0 &&
      Dlg_MessageBox(button, "レイアウト保存", "同一名称のレイアウトファイルが存在します。",
                     "上書きしますか ？", 2) != 1) {
    return;
  }
  CloseDialog(button, Save);
}

void AddNameEntry(const DialogWindow& dialog) {
  constexpr const gchar* Label = "画面/帳票名";
  AddDialogLabel(dialog, Label);
  GtkWidget* table = gtk_grid_new();
  Dlg_EditBox(dialog.Window, table, PtrnFileClose_Edit);
  SetAccessibleName(PtrnFileClose_Edit[0].entry, Label);
  g_signal_connect(PtrnFileClose_Edit[0].entry, "changed", G_CALLBACK(PtrnFileClose_Entry),
                   nullptr);
  gtk_box_pack_start(GTK_BOX(dialog.Content), table, FALSE, FALSE, 0);
  gtk_widget_show(table);
  AddDialogLabel(dialog, "フォルダー");
}

}  // namespace

gint PtrnFileClose(GtkWidget* parent) {
  CopyText(PtrnFileName, FieldText(PtrnName));
  return RunNameDialog(
      parent,
      {.Frame = {.Title = "レイアウトを閉じる",
                 .Build = [](const DialogWindow& /*dialog*/) { EnableActions(); },
                 .Buttons = {{.Label = " 保存 ",
                              .Pressed = PtrnFileClose_Save,
                              .Default = true,
                              .Shown = &SaveButton},
                             {.Label = " 破棄 ", .Answer = Discard, .Shown = &DiscardButton},
                             CancelButton()},
                 .Resizable = true},
       .Names = "レイアウト",
       .Fill = [](GtkWidget* list) { ListLayouts(list, false); },
       .Above = AddNameEntry});
}
