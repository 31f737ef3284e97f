// The dialog that chooses a project: one of the known ones, or one found in a folder.
#include <string>
#include <vector>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/ChooserWindow.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/EntryLook.h"
#include "layout/Screen.h"
#include "project/ProjectFiles.h"
#include "project/ProjectRecord.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/Text.h"

namespace {

constexpr const gchar* Title = "プロジェクトを開く";
constexpr gint KnownProjects = 100;
constexpr const gchar* Section = "PROJNAME";

struct PROJTABLE {
  gchar path[258];
  gchar name[82];
  bool whole;  // false: the profile gave the texts cut, and they lead to another project
};

gint ProjFileOpen_Result = 0;
GtkWidget* ProjFileOpen_Entry = nullptr;
GtkWidget* ProjFileOpen_Buttn = nullptr;
std::vector<PROJTABLE> ProjTable;

// The known projects that still exist; the profile forgets the others.
void ReadKnownProjects() {
  ProjTable.clear();
  for (gint no = 0; no < KnownProjects; ++no) {
    gchar name[100];
    gchar path[100];
    ProfileRead2("", Section, Section, no, "ss", name, path);
    if (name[0] == '\0' || path[0] == '\0') continue;
    if (IsMissing(JoinPath(path, name, "prj"))) {
      ProfileDelete2("", Section, Section, no);
      continue;
    }
    PROJTABLE row = {};
    row.whole = IsKnownProjectWhole(Section, NumberedKey(Section, no).c_str());
    CopyText(row.path, path);
    CopyText(row.name, name);
    ProjTable.push_back(row);
  }
}

// Rows carry their number in the table.
void ProjFileOpen_Slct(GtkTreeSelection* selection, gpointer /*data*/) {
  const std::string number = SelectedName(GTK_WIDGET(gtk_tree_selection_get_tree_view(selection)));
  if (number.empty()) {
    EditPath[0] = '\0';
    EditName[0] = '\0';
  } else {
    const PROJTABLE& row = ProjTable[static_cast<gsize>(std::stoi(number))];
    CopyText(EditPath, FieldText(row.path));
    CopyText(EditName, FieldText(row.name));
  }
  gtk_entry_set_text(GTK_ENTRY(ProjFileOpen_Entry), DisplayText(EditPath).c_str());
  gtk_widget_set_sensitive(ProjFileOpen_Buttn, !number.empty());
}

void ProjFileOpen_Open(GtkWidget* /*button*/, GtkWidget* dialog) {
  if (EditPath[0] == '\0' || EditName[0] == '\0') return;
  ProjFileOpen_Result = 1;
  gtk_widget_destroy(dialog);
}

void ProjFileOpen_Activate(GtkTreeView* list, GtkTreePath* /*path*/, GtkTreeViewColumn* /*column*/,
                           gpointer /*data*/) {
  ProjFileOpen_Open(nullptr, gtk_widget_get_toplevel(GTK_WIDGET(list)));
}

void ProjFileOpen_Search(GtkWidget* /*button*/, GtkWidget* dialog) {
  const gchar* chosen = Dlg_FileSelect(dialog, Title, 0);
  if (*chosen == '\0') return;
  gchar path[PathSize];
  gchar name[PathSize];
  SplitPath(chosen, path, name, nullptr);
  CopyText(EditPath, path);
  CopyText(EditName, name);
  ProjFileOpen_Result = 1;
  gtk_widget_destroy(dialog);
}

void ProjFileOpen_CAN(GtkWidget* /*button*/, GtkWidget* dialog) {
  ProjFileOpen_Result = 0;
  gtk_widget_destroy(dialog);
}

GtkWidget* AddList(const DialogWindow& dialog) {
  GtkWidget* list = NewNameList("プロジェクト");
  for (gsize row = 0; row < ProjTable.size(); ++row)
    if (ProjTable[row].whole)
      AddName(list, ProjTable[row].name, std::to_string(row));
    else
      AddUnusableName(
          list, ProjTable[row].name,
          "パスが長すぎるため、一覧からは開けません。「フォルダーより探す」で開きます。");
  OnNameSelected(list, G_CALLBACK(ProjFileOpen_Slct), dialog.Window);
  g_signal_connect(list, "row-activated", G_CALLBACK(ProjFileOpen_Activate), nullptr);
  GtkWidget* scrolled = NewScrolled(list, GTK_POLICY_AUTOMATIC);
  gtk_widget_set_size_request(scrolled, 480, 260);
  gtk_box_pack_start(GTK_BOX(dialog.Content), scrolled, TRUE, TRUE, 0);
  return list;
}

void AddFolderEntry(const DialogWindow& dialog) {
  constexpr const gchar* Label = "フォルダー";
  gtk_box_pack_start(GTK_BOX(dialog.Content), NewLabel(Label), FALSE, FALSE, 0);
  GtkWidget* entry = gtk_entry_new();
  SetAccessibleName(entry, Label);
  MakeReadOnly(entry);
  gtk_widget_set_can_focus(entry, FALSE);
  gtk_box_pack_start(GTK_BOX(dialog.Content), entry, FALSE, FALSE, 0);
  gtk_widget_show(entry);
  KeepWidget(&ProjFileOpen_Entry, entry);
}

}  // namespace

gint ProjFileOpen(GtkWidget* parent) {
  ProjFileOpen_Result = 0;
  ReadKnownProjects();
  const DialogWindow dialog = NewDialogWindow(Title);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), GTK_WIN_POS_CENTER);
  gtk_container_set_border_width(GTK_CONTAINER(dialog.Content), 10);
  gtk_box_set_spacing(GTK_BOX(dialog.Content), 5);
  GtkWidget* list = AddList(dialog);
  AddFolderEntry(dialog);
  AddDialogButton(dialog, " フォルダーより探す ", G_CALLBACK(ProjFileOpen_Search), dialog.Window);
  GtkWidget* open = AddDialogButton(dialog, " 開く ", G_CALLBACK(ProjFileOpen_Open), dialog.Window);
  gtk_widget_set_sensitive(open, FALSE);
  KeepWidget(&ProjFileOpen_Buttn, open);
  AddDialogButton(dialog, " 取消 ", G_CALLBACK(ProjFileOpen_CAN), dialog.Window);
  BeginOnNames(list);
  RunModal(dialog.Window, parent);
  ProjTable.clear();
  return ProjFileOpen_Result;
}
