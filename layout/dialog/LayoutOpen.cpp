// The dialog that chooses a layout to open.
#include <string>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/NameDialog.h"
#include "dialogs/kit/Cells.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/dialog/LayoutList.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

constexpr const gchar* Title = "レイアウトを開く";
constexpr const gchar* UndefinedTitle = "レイアウトを開く [未設定]";

constexpr gint Opened = 1;

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

void PtrnFileOpen_Open(GtkWidget* inside) {
  if (PtrnFileName[0] == '\0') return;
  CopyText(PtrnName, PtrnFileName);
  CloseDialog(inside, Opened);
}

void PtrnFileOpen_Delete(GtkWidget* /*button*/) {
  if (PtrnFileName[0] == '\0') return;
  FileDelete(ProjPath, PtrnFileName, "ptn");
  PtrnFileOpen_List(PtrnFileOpen_Flag);
}

void PtrnFileOpen_Undef(GtkWidget* button) {
  PtrnFileOpen_Flag = PtrnFileOpen_Flag == 0 ? 1 : 0;
  gtk_window_set_title(GTK_WINDOW(gtk_widget_get_toplevel(button)),
                       PtrnFileOpen_Flag == 0 ? Title : UndefinedTitle);
  PtrnFileOpen_List(PtrnFileOpen_Flag);
}

// PtrnName stays as it was: what opens is the layout that it names.
void PtrnFileOpen_Search(GtkWidget* button) {
  const gchar* chosen = Dlg_FileSelect(button, Title, 1);
  if (*chosen == '\0') return;
  gchar path[PathSize];
  gchar name[PathSize];
  gchar ext[PathSize];
  SplitPath(chosen, path, name, ext);
  FileCopy(path, name, ext, ProjPath, name, ext);
  CopyText(PtrnFileName, name);
  CloseDialog(button, Opened);
}

void FillList(GtkWidget* list) {
  KeepWidget(&LayoutNames, list);
  PtrnFileOpen_List(0);
}

}  // namespace

gint PtrnFileOpen(GtkWidget* parent) {
  PtrnFileOpen_Flag = 0;
  return RunNameDialog(
      parent,
      {.Frame =
           {.Title = Title,
            .Buttons = {{.Label = " フォルダーより探す ", .Pressed = PtrnFileOpen_Search},
                        {.Label = " 未設定 ", .Pressed = PtrnFileOpen_Undef},
                        {.Label = " 開く ", .Pressed = PtrnFileOpen_Open, .Shown = &OpenButton},
                        {.Label = " 削除 ", .Pressed = PtrnFileOpen_Delete, .Shown = &DeleteButton},
                        CancelButton()},
            .Resizable = true},
       .Names = "レイアウト",
       .Fill = FillList,
       .Above = [](const DialogWindow& dialog) { AddDialogLabel(dialog, "フォルダー"); },
       .BeginOnList = true,
       .Selected = SelectName,
       .Taken = [](GtkWidget* list, const std::string&) { PtrnFileOpen_Open(list); }});
}
