// The pickers behind the tool box's browse buttons.
#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "dialogs/Choosers.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "dialogs/choosers/NameDialog.h"
#include "dialogs/kit/Cells.h"
#include "layout/ProjectRecord.h"
#include "layout/Registry.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Text.h"

gchar SelectList[256];

namespace {

enum ListKind { LayoutNames = 0, Codes = 1, FirstStrings = 2 };

// Names of the project's layouts, in the folder's own order.
std::vector<std::string> ToolBoxList1() {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(ProjPath), closedir);
  if (folder == nullptr) return names;
  while (const dirent* entry = readdir(folder.get())) {
    if (entry->d_name[0] == '.' || fnmatch("*.ptn", entry->d_name, 0) != 0) continue;
    struct stat status;
    if (stat(JoinPath(ProjPath, entry->d_name, "").c_str(), &status) != 0) continue;
    gchar name[PathSize];
    SplitPath(entry->d_name, nullptr, name, nullptr);
    names.emplace_back(name);
  }
  return names;
}

std::vector<std::string> ToolBoxList2() {
  std::vector<std::string> codes;
  for (const PTRNCODE& code : ReadPtrnCode()) codes.emplace_back(FieldText(code.ID_Code));
  return codes;
}

// The texts of a string list; kinds 2, 3, 4 are languages 1, 2, 3.
std::vector<std::string> ToolBoxList3(gint kind) {
  std::vector<std::string> texts;
  for (const PTRNTEXT& text : ReadPtrnText(kind)) texts.emplace_back(FieldText(text.text));
  return texts;
}

std::vector<std::string> ListOfKind(gint kind) {
  if (kind == LayoutNames) return ToolBoxList1();
  return kind == Codes ? ToolBoxList2() : ToolBoxList3(kind);
}

// An empty row is no choice: the picker stays.
void ToolBoxList_Select(GtkWidget* list, const std::string& chosen) {
  if (chosen.empty()) {
    gtk_tree_selection_unselect_all(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)));
    return;
  }
  CopyText(SelectList, chosen);
  CloseDialog(list, 1);
}

// Texts of more than `limit` bytes are unusable.
void FillList(GtkWidget* list, const std::vector<std::string>& texts, gsize limit) {
  for (const std::string& text : texts) {
    if (text.size() <= limit) {
      AddName(list, text, text);
    } else {
      AddUnusableName(list, text, "長すぎるため、この欄には入りません。");
    }
  }
  gtk_tree_view_column_set_min_width(gtk_tree_view_get_column(GTK_TREE_VIEW(list), 0), 280);
  // One click chooses. The selection alone would not do: a list that gets the keyboard focus
  // selects its first row by itself.
  gtk_tree_view_set_activate_on_single_click(GTK_TREE_VIEW(list), TRUE);
}

gchar* ToolBox_List(GtkWidget* parent, const gchar* title, gint kind, gsize limit) {
  SelectList[0] = '\0';
  RunNameDialog(parent, {.Frame = {.Title = title},
                         .Names = title,
                         .Room = {580, 280},
                         .Fill = [=](GtkWidget* list) { FillList(list, ListOfKind(kind), limit); },
                         .Taken = ToolBoxList_Select});
  return SelectList;
}

void PickFromList(DLG_EDITBOX* edit, const gchar* title, gint kind) {
  ShowChoice(edit, ToolBox_List(ToolBox, title, kind, static_cast<gsize>(edit->size)));
}

}  // namespace

void ToolBox_Page(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  PickFromList(edit, "画面名称選択", LayoutNames);
}

void ToolBox_Code(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  PickFromList(edit, "識別コード選択", Codes);
}

void ToolBox_Text1(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  PickFromList(edit, "固定文字列 (言語１) 選択", FirstStrings);
}

void ToolBox_Text2(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  PickFromList(edit, "固定文字列 (言語２) 選択", FirstStrings + 1);
}

void ToolBox_Text3(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  PickFromList(edit, "固定文字列 (言語３) 選択", FirstStrings + 2);
}

void ToolBox_Name(GtkWidget* /*widget*/, DLG_EDITBOX* edit) {
  const gchar* chosen = Dlg_FileSelect(ToolBox, "画像ファイル選択", 2);
  if (*chosen != '\0') TakePicture(chosen, edit);
}
