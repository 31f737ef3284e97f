// The dialog that chooses a project: one of the known ones, or one found in a folder.
#include <string>
#include <vector>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/NameDialog.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/EntryLook.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "project/model/KnownProjects.h"
#include "support/Files.h"
#include "support/Text.h"

namespace {

constexpr const gchar* Title = "プロジェクトを開く";

struct PROJTABLE {
  gchar path[258];
  gchar name[82];
  bool whole;  // false: the profile gave the texts cut, and they lead to another project
};

constexpr gint Opened = 1;

GtkWidget* ProjFileOpen_Entry = nullptr;
GtkWidget* ProjFileOpen_Buttn = nullptr;
std::vector<PROJTABLE> ProjTable;

void FillTable() {
  ProjTable.clear();
  for (const KnownProject& project : ReadKnownProjects()) {
    PROJTABLE row = {};
    row.whole = project.Whole;
    CopyText(row.path, project.Folder);
    CopyText(row.name, project.Name);
    ProjTable.push_back(row);
  }
}

// Rows carry their number in the table.
void ProjFileOpen_Slct(const std::string& number) {
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

void ProjFileOpen_Open(GtkWidget* inside) {
  if (EditPath[0] != '\0' && EditName[0] != '\0') CloseDialog(inside, Opened);
}

void ProjFileOpen_Search(GtkWidget* button) {
  const gchar* chosen = Dlg_FileSelect(button, Title, 0);
  if (*chosen == '\0') return;
  gchar path[PathSize];
  gchar name[PathSize];
  SplitPath(chosen, path, name, nullptr);
  CopyText(EditPath, path);
  CopyText(EditName, name);
  CloseDialog(button, Opened);
}

void FillList(GtkWidget* list) {
  for (gsize row = 0; row < ProjTable.size(); ++row) {
    if (ProjTable[row].whole) {
      AddName(list, ProjTable[row].name, std::to_string(row));
    } else {
      AddUnusableName(
          list, ProjTable[row].name,
          "パスが長すぎるため、一覧からは開けません。「フォルダーより探す」で開きます。");
    }
  }
}

void AddFolderEntry(const DialogWindow& dialog) {
  constexpr const gchar* Label = "フォルダー";
  AddDialogLabel(dialog, Label);
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
  FillTable();
  const gint answer = RunNameDialog(
      parent,
      {.Frame = {.Title = Title,
                 .Buttons = {{.Label = " フォルダーより探す ", .Pressed = ProjFileOpen_Search},
                             {.Label = " 開く ",
                              .Pressed = ProjFileOpen_Open,
                              .Sensitive = false,
                              .Shown = &ProjFileOpen_Buttn},
                             CancelButton()},
                 .Resizable = true},
       .Names = "プロジェクト",
       .Fill = FillList,
       .Below = AddFolderEntry,
       .BeginOnList = true,
       .Selected = ProjFileOpen_Slct,
       .Taken = [](GtkWidget* list, const std::string&) { ProjFileOpen_Open(list); }});
  ProjTable.clear();
  return answer;
}
