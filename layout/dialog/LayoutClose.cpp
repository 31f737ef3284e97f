// The dialog that decides what becomes of a changed layout.
#include "dialogs/Kit.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutList.h"
#include "layout/dialog/LayoutNames.h"
#include "project/ProjectRecord.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

enum CloseResult { Cancelled = 0, Save = 1, Discard = 2 };

gint PtrnFileClose_Result = Cancelled;
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
void PtrnFileClose_Save(GtkWidget* /*button*/, GtkWidget* dialog) {
  if (PtrnFileName[0] == '\0') return;
  if (FileExist(ProjPath, PtrnFileName, "ptn") != 0 &&
      Dlg_MessageBox(dialog, "レイアウト保存", "同一名称のレイアウトファイルが存在します。",
                     "上書きしますか ？", 2) != 1)
    return;
  PtrnFileClose_Result = Save;
  gtk_widget_destroy(dialog);
}

void PtrnFileClose_Delete(GtkWidget* /*button*/, GtkWidget* dialog) {
  PtrnFileClose_Result = Discard;
  gtk_widget_destroy(dialog);
}

void PtrnFileClose_CAN(GtkWidget* /*button*/, GtkWidget* dialog) {
  PtrnFileClose_Result = Cancelled;
  gtk_widget_destroy(dialog);
}

void AddNameEntry(const DialogWindow& dialog) {
  constexpr const gchar* Label = "画面/帳票名";
  gtk_box_pack_start(GTK_BOX(dialog.Content), NewLabel(Label), FALSE, FALSE, 0);
  GtkWidget* table = gtk_grid_new();
  Dlg_EditBox(dialog.Window, table, PtrnFileClose_Edit);
  SetAccessibleName(PtrnFileClose_Edit[0].entry, Label);
  g_signal_connect(PtrnFileClose_Edit[0].entry, "changed", G_CALLBACK(PtrnFileClose_Entry),
                   nullptr);
  gtk_box_pack_start(GTK_BOX(dialog.Content), table, FALSE, FALSE, 0);
  gtk_widget_show(table);
}

}  // namespace

gint PtrnFileClose(GtkWidget* parent) {
  PtrnFileClose_Result = Cancelled;
  CopyText(PtrnFileName, FieldText(PtrnName));
  const DialogWindow dialog = NewDialogWindow("レイアウトを閉じる");
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  AddNameEntry(dialog);
  GtkWidget* list = NewNameList("レイアウト");
  AddLayoutList(dialog, list);
  ListLayouts(list, false);
  KeepWidget(&SaveButton,
             AddDialogButton(dialog, " 保存 ", G_CALLBACK(PtrnFileClose_Save), dialog.Window));
  SetDefaultButton(SaveButton);
  KeepWidget(&DiscardButton,
             AddDialogButton(dialog, " 破棄 ", G_CALLBACK(PtrnFileClose_Delete), dialog.Window));
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(PtrnFileClose_CAN), dialog.Window);
  EnableActions();
  RunModal(dialog.Window, parent);
  return PtrnFileClose_Result;
}
