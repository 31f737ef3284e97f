// The project settings dialog. It edits working copies; its callers take them over.
#include <string>

#include "dialogs/Choosers.h"
#include "dialogs/Editors.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/TableDialog.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/LatePress.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFiles.h"
#include "project/dialog/ProjectSettingsPages.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

enum Result { Cancelled = 0, DefaultsRestored = 2 };

// Folder that a logo was chosen from, "" while none was.
std::string EditLogoPath;
// The logo itself there, in the file system's bytes; the record's name for it is EUC-JP.
std::string EditLogoFile;

enum EditRow { NameRow, FolderRow, ProgramRow };

// A logo goes into the bitmap folder of the folder that the project will have.
void EditProjData_OK() {
  const std::string folder = JoinPath(EditPath, "Bitmap", "");
  if (EditLogoPath.empty() || EditLogoPath == folder) return;
  CreateFolder(folder.c_str());
  const std::string logo(FieldText(EditData.LogoName));
  FileCopy("", EditLogoFile.c_str(), "", folder.c_str(), logo.c_str(), "");
}

void PickFolder(DLG_EDITBOX* row, const gchar* title) {
  const gchar* folder = Dlg_FolderSelect(EditProj, title);
  if (*folder == '\0') return;
  ShowChoice(row, folder);
}

void ProjPage1_Button1(GtkWidget* /*button*/, gpointer /*data*/) {
  PickFolder(&ProjPage1_Edit[FolderRow], "プロジェクト領域へのパス");
}

void ProjPage1_Button2(GtkWidget* /*button*/, gpointer /*data*/) {
  PickFolder(&ProjPage1_Edit[ProgramRow], "プログラム領域へのパス");
}

void ProjPage1_Button3(GtkWidget* /*button*/, gpointer /*data*/) {
  EditColrData(EditProj, GINT_TO_POINTER(1));
}

void ProjPage1_Button4(GtkWidget* button, gpointer /*data*/) {
  const std::string program(FieldText(EditData.ProgPath));
  ProjSetDefault();
  if (EditData.ProgPath[0] == '\0') CopyText(EditData.ProgPath, program);
  CloseDialog(button, DefaultsRestored);
}

void ProjPage2_Button(GtkWidget* /*button*/, gpointer /*data*/) {
  const gchar* chosen = Dlg_FileSelect(EditProj, "ロゴマーク選択", 2);
  if (*chosen == '\0') return;
  if (TakePicture(chosen, &ProjPage21_Edit[0], &EditLogoPath)) EditLogoFile = chosen;
}

void AddButton(GtkWidget* table, const gchar* label, gint line, gint culm, GCallback clicked) {
  GtkWidget* button = NewButton(label);
  gtk_widget_set_halign(button, GTK_ALIGN_START);
  g_signal_connect(button, "clicked", clicked, nullptr);
  gtk_grid_attach(GTK_GRID(table), button, culm, line, 1, 1);
  gtk_widget_show(button);
}

struct FrameButton {
  gint Page;
  gint Frame;
  gint Line;
  gint Culm;
  const gchar* Label;
  void (*Clicked)(GtkWidget*, gpointer);
};
constexpr FrameButton Buttons[] = {{0, 0, 1, 4, "参照", ProjPage1_Button1},
                                   {0, 0, 2, 4, "参照", ProjPage1_Button2},
                                   {0, 0, 6, 1, " 表示色設定 ", ProjPage1_Button3},
                                   {0, 0, 6, 2, " 既定値に戻す ", ProjPage1_Button4},
                                   {1, 0, 1, 3, "参照", ProjPage2_Button}};

void AddPage(GtkWidget* notebook, gint number, const ProjectPage& page) {
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 10);
  gtk_widget_set_valign(box, GTK_ALIGN_START);
  gtk_container_set_border_width(GTK_CONTAINER(box), 10);
  for (gsize frame = 0; frame < page.Frames.size(); ++frame) {
    GtkWidget* table = NewControlGrid(15);
    const ControlTables& tables = page.Frames[frame].Tables;
    BuildControls(EditProj, table, tables);
    // Controls that gain nothing by it are not stretched over the page.
    if (tables.Edit == nullptr && tables.Combo == nullptr) {
      gtk_widget_set_halign(table, GTK_ALIGN_START);
    }
    for (const FrameButton& button : Buttons) {
      if (button.Page == number && button.Frame == static_cast<gint>(frame)) {
        AddButton(table, button.Label, button.Line, button.Culm, G_CALLBACK(button.Clicked));
      }
    }
    const gchar* title = page.Frames[frame].Title;
    NameControls(table, title != nullptr ? title : "");
    GtkWidget* shown = table;
    if (title != nullptr) {
      shown = gtk_frame_new(title);
      gtk_container_add(GTK_CONTAINER(shown), table);
      gtk_widget_show(shown);
    }
    // The controls in it would have it grow.
    gtk_widget_set_vexpand(shown, FALSE);
    gtk_box_pack_start(GTK_BOX(box), shown, FALSE, FALSE, 0);
  }
  gtk_widget_show(box);
  gtk_notebook_append_page(GTK_NOTEBOOK(notebook), box, NewLabel(page.Tab));
}

void AddPages(const DialogWindow& dialog) {
  GtkWidget* notebook = gtk_notebook_new();
  SetAccessibleName(notebook, "設定の種類");
  gint number = 0;
  for (const ProjectPage& page : ProjectPages()) AddPage(notebook, number++, page);
  gtk_container_set_border_width(GTK_CONTAINER(notebook), 10);
  gtk_box_pack_start(GTK_BOX(dialog.Content), notebook, TRUE, TRUE, 0);
  gtk_widget_show(notebook);
}

}  // namespace

gint EditProjData(GtkWidget* parent, const gchar* title) {
  // The main window stays usable meanwhile, and its menu could ask for a second one.
  if (EditProj != nullptr) {
    gtk_window_present(GTK_WINDOW(EditProj));
    return Cancelled;
  }
  EditLogoPath.clear();
  return RunTableDialog(
      parent, {.Frame = {.Title = title, .Build = AddPages, .Modal = false, .Window = &EditProj},
               .First = &ProjPage1_Edit[NameRow],
               .Ok = " 登録 ",
               .Check = CheckProjData,
               .Take = EditProjData_OK});
}
