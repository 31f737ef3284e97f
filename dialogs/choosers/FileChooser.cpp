// Choosing a file of one kind: folders at the left, the files of the selected one at the right.
#include <dirent.h>
#include <fnmatch.h>
#include <sys/stat.h>

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "dialogs/Choosers.h"
#include "dialogs/choosers/ChooserWindow.h"
#include "dialogs/choosers/FolderTree.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/kit/Cells.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Text.h"

// Full path of the file chosen, file-system bytes.
gchar FileName[PathSize];
// Kind of file listed: 0 projects, 1 layouts, 2 pictures.
gint FileType = 0;

namespace {

constexpr gint PictureType = 2;

constexpr const gchar* ProjectPatterns[] = {"*.prj"};
constexpr const gchar* LayoutPatterns[] = {"*.ptn"};
constexpr const gchar* PicturePatterns[] = {"*.bmp", "*.BMP", "*.jpg", "*.JPG", "*.png", "*.PNG"};
const std::span<const gchar* const> Patterns[] = {ProjectPatterns, LayoutPatterns, PicturePatterns};

// File selected in the list; becomes the result when it is confirmed.
gchar SelectedFile[PathSize];
GtkWidget* FileList = nullptr;
GtkWidget* FileSelect_Button = nullptr;

gint CheckFileType(const gchar* filename) {
  if (FileType < 0 || FileType > PictureType) return 0;
  for (const gchar* pattern : Patterns[FileType]) {
    if (fnmatch(pattern, filename, 0) == 0) return 1;
  }
  return 0;
}

// Why the result, or the field that takes the name without its extension, cannot hold a file; null
// when they can. Names of pictures go into fields of different sizes, which are minded there.
const gchar* ReasonNotToOffer(const std::string& path, const std::string& name) {
  constexpr gsize NameSize = 82;
  if (path.size() >= PathSize) return "パスが長すぎるため、選べません。";
  if (FileType != PictureType && name.size() >= NameSize) return "名称が長すぎるため、選べません。";
  return nullptr;
}

void AddFile(const std::string& path, const gchar* file) {
  const std::string_view whole = file;
  const std::string name(FileType == PictureType ? whole : whole.substr(0, whole.find('.')));
  if (const gchar* reason = ReasonNotToOffer(path, name)) {
    AddUnusableName(FileList, name, reason);
  } else {
    AddName(FileList, name, path);
  }
}

void ClearFiles() {
  ClearNames(FileList);
  SelectedFile[0] = '\0';
  gtk_widget_set_sensitive(FileSelect_Button, FALSE);
}

void CreateFileList(const std::string& path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.c_str()), closedir);
  if (folder == nullptr) return;
  while (const dirent* entry = readdir(folder.get())) {
    if (entry->d_name[0] == '.' || CheckFileType(entry->d_name) == 0) continue;
    const std::string full = JoinPath(path, entry->d_name, "");
    struct stat status;
    if (stat(full.c_str(), &status) == 0 && S_ISREG(status.st_mode)) AddFile(full, entry->d_name);
  }
}

// A folder was selected, or none is any more.
void FileSelect_Slct1(const std::string& path) {
  if (FileList == nullptr) return;
  ClearFiles();
  if (!path.empty()) CreateFileList(path);
}

// A file was selected, or none is any more.
void FileSelect_Slct3(GtkTreeSelection* selection, gpointer /*data*/) {
  CopyText(SelectedFile, SelectedName(GTK_WIDGET(gtk_tree_selection_get_tree_view(selection))));
  gtk_widget_set_sensitive(FileSelect_Button, SelectedFile[0] != '\0');
}

void FileSelect_OK(GtkWidget* inside) {
  if (SelectedFile[0] == '\0') return;
  CopyText(FileName, SelectedFile);
  CloseDialog(inside, 1);
}

void FileSelect_Activate(GtkTreeView* view, GtkTreePath* /*path*/, GtkTreeViewColumn* /*column*/,
                         gpointer /*data*/) {
  FileSelect_OK(GTK_WIDGET(view));
}

// Folders at the left, files at the right.
void AddHalves(const DialogWindow& dialog) {
  KeepWidget(&FileList, NewNameList("ファイル"));
  OnNameSelected(FileList, G_CALLBACK(FileSelect_Slct3), dialog.Window);
  g_signal_connect(FileList, "row-activated", G_CALLBACK(FileSelect_Activate), nullptr);
  GtkWidget* halves = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 10);
  gtk_box_set_homogeneous(GTK_BOX(halves), TRUE);
  gtk_container_set_border_width(GTK_CONTAINER(halves), 10);
  GtkWidget* tree = CreateFolderTree(HomeFolder(), FileSelect_Slct1);
  gtk_box_pack_start(GTK_BOX(halves), NewScrolled(tree, GTK_POLICY_AUTOMATIC), TRUE, TRUE, 0);
  gtk_box_pack_start(GTK_BOX(halves), NewScrolled(FileList, GTK_POLICY_NEVER), TRUE, TRUE, 0);
  gtk_box_pack_start(GTK_BOX(dialog.Content), halves, TRUE, TRUE, 0);
  gtk_widget_show(halves);
}

}  // namespace

gchar* Dlg_FileSelect(GtkWidget* parent, const gchar* title, gint type) {
  FileType = type;
  FileName[0] = '\0';
  SelectedFile[0] = '\0';
  RunChooser(parent, {.Title = title,
                      .Build = AddHalves,
                      .Choose = FileSelect_OK,
                      .ChooseButton = &FileSelect_Button});
  return FileName;
}
