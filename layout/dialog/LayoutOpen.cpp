// The dialog that chooses a layout to open.
#include <string>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/kit/Cells.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutList.h"
#include "layout/dialog/LayoutNames.h"
#include "project/ProjectRecord.h"
#include "support/Files.h"
#include "support/Text.h"

gchar PtrnFileName[82];

namespace {

constexpr const gchar* Title = "レイアウトを開く";
constexpr const gchar* UndefinedTitle = "レイアウトを開く [未設定]";

gint PtrnFileOpen_Result = 0;
gint PtrnFileOpen_Flag = 0;  // 1 = only layouts with incomplete items are listed
GtkWidget* LayoutNames = nullptr;
GtkWidget* OpenButton = nullptr;
GtkWidget* DeleteButton = nullptr;

void SelectName(const std::string& name) {
  CopyText(PtrnFileName, name);
  gtk_widget_set_sensitive(OpenButton, !name.empty());
  gtk_widget_set_sensitive(DeleteButton, !name.empty());
}

void PtrnFileOpen_List(gint mode) {
  SelectName("");
  ListLayouts(LayoutNames, mode == 1);
}

void PtrnFileOpen_Select(GtkTreeSelection* /*selection*/, gpointer /*data*/) {
  SelectName(SelectedName(LayoutNames));
}

void PtrnFileOpen_Open(GtkWidget* /*button*/, GtkWidget* dialog) {
  if (PtrnFileName[0] == '\0') return;
  PtrnFileOpen_Result = 1;
  CopyText(PtrnName, PtrnFileName);
  gtk_widget_destroy(dialog);
}

void PtrnFileOpen_Activate(GtkTreeView* list, GtkTreePath* /*path*/, GtkTreeViewColumn* /*column*/,
                           gpointer /*data*/) {
  PtrnFileOpen_Open(nullptr, gtk_widget_get_toplevel(GTK_WIDGET(list)));
}

void PtrnFileOpen_Delete(GtkWidget* /*button*/, GtkWidget* /*dialog*/) {
  if (PtrnFileName[0] == '\0') return;
  FileDelete(ProjPath, PtrnFileName, "ptn");
  PtrnFileOpen_List(PtrnFileOpen_Flag);
}

void PtrnFileOpen_Undef(GtkWidget* /*button*/, GtkWidget* dialog) {
  PtrnFileOpen_Flag = PtrnFileOpen_Flag == 0 ? 1 : 0;
  gtk_window_set_title(GTK_WINDOW(dialog), PtrnFileOpen_Flag == 0 ? Title : UndefinedTitle);
  PtrnFileOpen_List(PtrnFileOpen_Flag);
}

// PtrnName stays as it was: what opens is the layout that it names.
void PtrnFileOpen_Search(GtkWidget* /*button*/, GtkWidget* dialog) {
  const gchar* chosen = Dlg_FileSelect(dialog, Title, 1);
  if (*chosen == '\0') return;
  gchar path[PathSize];
  gchar name[PathSize];
  gchar ext[PathSize];
  SplitPath(chosen, path, name, ext);
  FileCopy(path, name, ext, ProjPath, name, ext);
  CopyText(PtrnFileName, name);
  PtrnFileOpen_Result = 1;
  gtk_widget_destroy(dialog);
}

void PtrnFileOpen_CAN(GtkWidget* /*button*/, GtkWidget* dialog) {
  PtrnFileOpen_Result = 0;
  gtk_widget_destroy(dialog);
}

}  // namespace

gint PtrnFileOpen(GtkWidget* parent) {
  PtrnFileOpen_Result = 0;
  PtrnFileOpen_Flag = 0;
  const DialogWindow dialog = NewDialogWindow(Title);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  KeepWidget(&LayoutNames, NewNameList("レイアウト"));
  AddLayoutList(dialog, LayoutNames);
  AddDialogButton(dialog, " フォルダーより探す ", G_CALLBACK(PtrnFileOpen_Search), dialog.Window);
  AddDialogButton(dialog, " 未設定 ", G_CALLBACK(PtrnFileOpen_Undef), dialog.Window);
  KeepWidget(&OpenButton,
             AddDialogButton(dialog, " 開く ", G_CALLBACK(PtrnFileOpen_Open), dialog.Window));
  KeepWidget(&DeleteButton,
             AddDialogButton(dialog, " 削除 ", G_CALLBACK(PtrnFileOpen_Delete), dialog.Window));
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(PtrnFileOpen_CAN), dialog.Window);
  PtrnFileOpen_List(0);
  BeginOnNames(LayoutNames);
  OnNameSelected(LayoutNames, G_CALLBACK(PtrnFileOpen_Select), dialog.Window);
  g_signal_connect(LayoutNames, "row-activated", G_CALLBACK(PtrnFileOpen_Activate), nullptr);
  RunModal(dialog.Window, parent);
  return PtrnFileOpen_Result;
}
