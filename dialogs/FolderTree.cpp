#include "dialogs/FolderTree.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "support/FileTools.h"
#include "support/Text.h"

namespace {

enum Column { LabelColumn, PathColumn, FilledColumn, ColumnCount };

using FolderId = std::pair<dev_t, ino_t>;

// What a tree keeps beside its rows.
struct TreeState {
  FolderSelected Selected;
  std::set<FolderId> Unfolded;
};

// Path and name of the folders in `path`, in the folder's own order.
std::vector<std::pair<std::string, std::string>> SubFolders(const std::string& path) {
  std::vector<std::pair<std::string, std::string>> found;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.c_str()), closedir);
  if (folder == nullptr) return found;
  while (const dirent* entry = readdir(folder.get())) {
    if (entry->d_name[0] == '.') continue;
    std::string full = JoinPath(path, entry->d_name, "");
    struct stat status;
    if (stat(full.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
      found.emplace_back(std::move(full), entry->d_name);
  }
  return found;
}

std::string RowPath(GtkTreeModel* model, GtkTreeIter* row) {
  gchar* path = nullptr;
  gtk_tree_model_get(model, row, PathColumn, &path, -1);
  std::string result = path != nullptr ? path : "";
  g_free(path);
  return result;
}

// Adds a folder; one that has folders itself gets an empty row, so that it can be unfolded.
void AddFolder(GtkTreeStore* store, GtkTreeIter* parent, const std::string& label,
               const std::string& path, GtkTreeIter* row) {
  gtk_tree_store_append(store, row, parent);
  gtk_tree_store_set(store, row, LabelColumn, DisplayText(label).c_str(), PathColumn, path.c_str(),
                     FilledColumn, FALSE, -1);
  if (SubFolders(path).empty()) return;
  GtkTreeIter placeholder;
  gtk_tree_store_append(store, &placeholder, row);
}

bool FirstVisit(TreeState* state, const std::string& path) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) return false;
  return state->Unfolded.insert({status.st_dev, status.st_ino}).second;
}

gboolean FillBeforeUnfolding(GtkTreeView* view, GtkTreeIter* row, GtkTreePath* /*path*/,
                             TreeState* state) {
  GtkTreeModel* model = gtk_tree_view_get_model(view);
  GtkTreeStore* store = GTK_TREE_STORE(model);
  gboolean filled = FALSE;
  gtk_tree_model_get(model, row, FilledColumn, &filled, -1);
  if (filled) return FALSE;
  gtk_tree_store_set(store, row, FilledColumn, TRUE, -1);
  const std::string path = RowPath(model, row);
  if (FirstVisit(state, path))
    for (const auto& [full, name] : SubFolders(path)) {
      GtkTreeIter child;
      AddFolder(store, row, name, full, &child);
    }
  GtkTreeIter placeholder;
  if (gtk_tree_model_iter_children(model, &placeholder, row))
    gtk_tree_store_remove(store, &placeholder);
  return FALSE;
}

void ReportSelection(GtkTreeSelection* selection, TreeState* state) {
  GtkTreeModel* model = nullptr;
  GtkTreeIter row;
  state->Selected(gtk_tree_selection_get_selected(selection, &model, &row) ? RowPath(model, &row)
                                                                           : std::string());
}

// A tree that goes away unselects its row; nobody is to hear of that.
void StopReporting(GtkWidget* view, TreeState* state) {
  g_signal_handlers_disconnect_by_data(gtk_tree_view_get_selection(GTK_TREE_VIEW(view)), state);
}

gboolean BelowRoot(GtkTreeSelection* /*selection*/, GtkTreeModel* /*model*/, GtkTreePath* path,
                   gboolean selected, gpointer /*data*/) {
  return selected || gtk_tree_path_get_depth(path) > 1;
}

}  // namespace

GtkWidget* NewFolderTree(const std::string& root, FolderSelected selected) {
  auto* state = new TreeState{std::move(selected), {}};
  GtkTreeStore* store =
      gtk_tree_store_new(ColumnCount, G_TYPE_STRING, G_TYPE_STRING, G_TYPE_BOOLEAN);
  GtkTreeIter top;
  AddFolder(store, nullptr, root, root, &top);
  GtkWidget* view = gtk_tree_view_new_with_model(GTK_TREE_MODEL(store));
  g_object_unref(store);
  g_object_set_data_full(G_OBJECT(view), "varnix-folder-tree", state,
                         [](gpointer data) { delete static_cast<TreeState*>(data); });
  gtk_tree_view_set_headers_visible(GTK_TREE_VIEW(view), FALSE);
  gtk_tree_view_insert_column_with_attributes(
      GTK_TREE_VIEW(view), -1, nullptr, gtk_cell_renderer_text_new(), "text", LabelColumn, nullptr);
  GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(view));
  gtk_tree_selection_set_select_function(selection, BelowRoot, nullptr, nullptr);
  g_signal_connect(view, "test-expand-row", G_CALLBACK(FillBeforeUnfolding), state);
  g_signal_connect(selection, "changed", G_CALLBACK(ReportSelection), state);
  g_signal_connect(view, "destroy", G_CALLBACK(StopReporting), state);
  GtkTreePath* first = gtk_tree_path_new_first();
  gtk_tree_view_expand_row(GTK_TREE_VIEW(view), first, FALSE);
  gtk_tree_path_free(first);
  gtk_widget_show(view);
  return view;
}
