// Choosing a folder; one that does not exist is made on request.
#include <string>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/ChooserWindow.h"
#include "dialogs/choosers/FolderTree.h"
#include "dialogs/choosers/TypedFolder.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/EntryLook.h"
#include "layout/Screen.h"
#include "support/Files.h"
#include "support/Text.h"

// The folder chosen or being browsed, file-system bytes; shared with the file chooser.
gchar FolderName[PathSize];

namespace {

constexpr const gchar* Title = "フォルダー選択";
// Of the entry in characters, of the records in bytes.
constexpr gint EntryLimit = 256;

GtkWidget* FolderSelect_Entry = nullptr;
GtkWidget* FolderSelect_Button = nullptr;
// The folder that the tree gave last, and what the entry shows for it: the path as far as it goes
// in.
std::string GivenFolder;
std::string GivenText;

void FolderSelect_Input(GtkEditable* entry, gpointer /*data*/) {
  const gchar* text = gtk_entry_get_text(GTK_ENTRY(entry));
  CopyText(FolderName, text);
  gtk_widget_set_sensitive(FolderSelect_Button, *text != '\0');
}

// The entry itself takes no more characters than its limit.
void FolderSelect_Insert(GtkEditable* entry, const gchar* text, gint length, const gint* /*at*/,
                         gpointer /*data*/) {
  const glong held = gtk_entry_get_text_length(GTK_ENTRY(entry));
  if (held + g_utf8_strlen(text, length) <= EntryLimit) {
    UnmarkEntry(GTK_WIDGET(entry));
  } else {
    MarkEntry(GTK_WIDGET(entry), held < EntryLimit ? EntryTookAPart : EntryTakesNoMore);
  }
}

void FolderSelect_Erase(GtkEditable* entry, gint /*start*/, gint /*end*/, gpointer /*data*/) {
  UnmarkEntry(GTK_WIDGET(entry));
}

void Give(const std::string& path) {
  gtk_entry_set_text(GTK_ENTRY(FolderSelect_Entry), DisplayText(path).c_str());
  UnmarkEntry(FolderSelect_Entry);
  GivenFolder = path;
  GivenText = gtk_entry_get_text(GTK_ENTRY(FolderSelect_Entry));
}

void FolderSelect_Slct(const std::string& path) {
  if (path.empty()) return;
  Give(path);
  CopyText(FolderName, path);
  gtk_widget_set_sensitive(FolderSelect_Button, TRUE);
}

void Tell(GtkWidget* button, const gchar* text) {
  Dlg_MessageBox(button, Title, text, "", 1);
}

void FolderSelect_OK(GtkWidget* button) {
  const std::string text = gtk_entry_get_text(GTK_ENTRY(FolderSelect_Entry));
  const std::string folder = text == GivenText ? GivenFolder : TypedFolder(text, GivenFolder);
  if (folder.size() > EntryLimit) {
    Tell(button, "フォルダーへのパスが長すぎます。");
    return;
  }
  CopyText(FolderName, folder);
  if (FolderName[0] == '\0') {
    Tell(button, "フォルダーが設定されていません。");
    return;
  }
  if (!g_file_test(FolderName, G_FILE_TEST_IS_DIR)) {
    if (Dlg_MessageBox(button, Title, "フォルダーが存在しません。", "フォルダーを作成しますか ？。",
                       2) != 1) {
      return;
    }
    if (CreateFolder(FolderName) == 0 || !g_file_test(FolderName, G_FILE_TEST_IS_DIR)) {
      Tell(button, "フォルダーの作成に失敗しました。");
      return;
    }
  }
  CloseDialog(button, 1);
}

void AddEntry(const DialogWindow& dialog) {
  GtkWidget* entry = gtk_entry_new();
  SetAccessibleName(entry, Title);
  gtk_entry_set_max_length(GTK_ENTRY(entry), EntryLimit);
  gtk_entry_set_activates_default(GTK_ENTRY(entry), TRUE);
  KeepWidget(&FolderSelect_Entry, entry);
  Give(HomeFolder());
  g_signal_connect(entry, "insert-text", G_CALLBACK(FolderSelect_Insert), nullptr);
  g_signal_connect(entry, "delete-text", G_CALLBACK(FolderSelect_Erase), nullptr);
  g_signal_connect(entry, "changed", G_CALLBACK(FolderSelect_Input), nullptr);
  gtk_box_pack_start(GTK_BOX(dialog.Content), entry, FALSE, FALSE, 5);
  gtk_widget_show(entry);
}

void AddEntryAndTree(const DialogWindow& dialog) {
  gtk_container_set_border_width(GTK_CONTAINER(dialog.Content), 10);
  AddEntry(dialog);
  GtkWidget* tree = CreateFolderTree(HomeFolder(), FolderSelect_Slct);
  gtk_box_pack_start(GTK_BOX(dialog.Content), NewScrolled(tree, GTK_POLICY_AUTOMATIC), TRUE, TRUE,
                     5);
}

}  // namespace

gchar* Dlg_FolderSelect(GtkWidget* parent, const gchar* title) {
  CopyText(FolderName, HomeFolder());
  if (RunChooser(parent, {.Title = title,
                          .Build = AddEntryAndTree,
                          .Choose = FolderSelect_OK,
                          .ChooseButton = &FolderSelect_Button}) != 1) {
    FolderName[0] = '\0';
  }
  return FolderName;
}
