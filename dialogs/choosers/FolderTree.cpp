#include "dialogs/choosers/FolderTree.h"

#include <dirent.h>
#include <sys/stat.h>

#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "dialogs/frame/Accessible.h"
#include "support/FileTools.h"
#include "support/Text.h"

namespace {

enum Column { LabelColumn, PathColumn, FilledColumn, LookedIntoColumn, ColumnCount };

using FolderId = std::pair<dev_t, ino_t>;

// What a tree keeps beside its rows.
struct TreeState {
  explicit TreeState(FolderSelected selected) : Selected(std::move(selected)) {}
  ~TreeState() {
    if (Source != 0) g_source_remove(Source);
  }
  TreeState(const TreeState&) = delete;
  TreeState& operator=(const TreeState&) = delete;

  FolderSelected Selected;
  std::set<FolderId> Unfolded;
  GtkTreeStore* Store = nullptr;
  GtkTreeView* View = nullptr;
  guint Source = 0;  // that looks into the rows in view
};

bool IsFolder(const dirent& entry, const std::string& path) {
  if (entry.d_name[0] == '.') return false;
  if (entry.d_type == DT_DIR) return true;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Calls `visit` with path and name of the folders in `path`, in the folder's own order, for as long
// as it returns true.
template <class Visit>
void VisitFolders(const std::string& path, Visit visit) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.c_str()), closedir);
  if (folder == nullptr) return;
  while (const dirent* entry = readdir(folder.get())) {
    std::string full = JoinPath(path, entry->d_name, "");
    if (IsFolder(*entry, full) && !visit(std::move(full), entry->d_name)) return;
  }
}

std::vector<std::pair<std::string, std::string>> SubFolders(const std::string& path) {
  std::vector<std::pair<std::string, std::string>> found;
  VisitFolders(path, [&found](std::string full, const gchar* name) {
    found.emplace_back(std::move(full), name);
    return true;
  });
  return found;
}

bool HasFolders(const std::string& path) {
  bool found = false;
  VisitFolders(path, [&found](const std::string&, const gchar*) {
    found = true;
    return false;
  });
  return found;
}

std::string RowPath(GtkTreeModel* model, GtkTreeIter* row) {
  gchar* path = nullptr;
  gtk_tree_model_get(model, row, PathColumn, &path, -1);
  std::string result = path != nullptr ? path : "";
  g_free(path);
  return result;
}

// An empty row below makes a folder unfoldable; unfolding it brings the folders themselves.
void LookInto(GtkTreeStore* store, GtkTreeIter* row) {
  gboolean done = FALSE;
  gtk_tree_model_get(GTK_TREE_MODEL(store), row, LookedIntoColumn, &done, -1);
  if (done) return;
  gtk_tree_store_set(store, row, LookedIntoColumn, TRUE, -1);
  if (!HasFolders(RowPath(GTK_TREE_MODEL(store), row))) return;
  GtkTreeIter placeholder;
  gtk_tree_store_append(store, &placeholder, row);
}

void AddFolder(const TreeState* state, GtkTreeIter* parent, const std::string& label,
               const std::string& path) {
  GtkTreeIter row;
  // First, not last: the store counts its way to a last row.
  gtk_tree_store_insert_with_values(state->Store, &row, parent, 0, LabelColumn,
                                    DisplayText(label).c_str(), PathColumn, path.c_str(), -1);
}

// Looks into the first rows below one. The others wait until they come into view: there may be very
// many, and each is a folder to open.
void LookIntoFirstRows(const TreeState* state, GtkTreeIter* parent) {
  constexpr gint FirstRows = 100;
  GtkTreeModel* model = GTK_TREE_MODEL(state->Store);
  GtkTreeIter row;
  gboolean more = gtk_tree_model_iter_children(model, &row, parent);
  for (gint count = 0; more && count < FirstRows; ++count) {
    LookInto(state->Store, &row);
    more = gtk_tree_model_iter_next(model, &row);
  }
}

// Goes on to the row shown below; false after the last one.
bool NextShownRow(GtkTreeView* view, GtkTreeIter* row) {
  GtkTreeModel* model = gtk_tree_view_get_model(view);
  GtkTreePath* path = gtk_tree_model_get_path(model, row);
  const bool unfolded = gtk_tree_view_row_expanded(view, path) != FALSE;
  gtk_tree_path_free(path);
  GtkTreeIter from = *row;
  if (unfolded && gtk_tree_model_iter_children(model, row, &from)) return true;
  for (;;) {
    *row = from;
    if (gtk_tree_model_iter_next(model, row)) return true;
    GtkTreeIter parent;
    if (!gtk_tree_model_iter_parent(model, &parent, &from)) return false;
    from = parent;
  }
}

gboolean LookIntoRowsInView(gpointer data) {
  auto* state = static_cast<TreeState*>(data);
  state->Source = 0;
  GtkTreePath* first = nullptr;
  GtkTreePath* last = nullptr;
  if (!gtk_tree_view_get_visible_range(state->View, &first, &last)) return G_SOURCE_REMOVE;
  GtkTreeModel* model = GTK_TREE_MODEL(state->Store);
  GtkTreeIter row;
  GtkTreeIter end;
  if (gtk_tree_model_get_iter(model, &row, first) && gtk_tree_model_get_iter(model, &end, last)) {
    LookInto(state->Store, &row);
    while (row.user_data != end.user_data && NextShownRow(state->View, &row)) {
      LookInto(state->Store, &row);
    }
  }
  gtk_tree_path_free(first);
  gtk_tree_path_free(last);
  return G_SOURCE_REMOVE;
}

// The rows must not change while they are painted.
gboolean LookAfterPainting(GtkWidget* /*view*/, cairo_t* /*cairo*/, TreeState* state) {
  if (state->Source == 0) state->Source = g_idle_add(LookIntoRowsInView, state);
  return FALSE;
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
  GtkTreeIter placeholder;
  const bool unfoldable = gtk_tree_model_iter_children(model, &placeholder, row) != FALSE;
  const std::string path = RowPath(model, row);
  if (FirstVisit(state, path)) {
    const auto folders = SubFolders(path);
    for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder) {
      AddFolder(state, row, folder->second, folder->first);
    }
  }
  if (unfoldable) gtk_tree_store_remove(store, &placeholder);
  LookIntoFirstRows(state, row);
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
  if (state->Source != 0) g_source_remove(state->Source);
  state->Source = 0;
}

// Goes into an open folder, opens a closed one.
void GoIn(const TreeState* state, GtkTreePath* path) {
  GtkTreeIter row;
  gtk_tree_model_get_iter(GTK_TREE_MODEL(state->Store), &row, path);
  LookInto(state->Store, &row);
  if (!gtk_tree_view_row_expanded(state->View, path)) {
    gtk_tree_view_expand_row(state->View, path, FALSE);
  } else {
    gtk_tree_path_down(path);
    gtk_tree_view_set_cursor(state->View, path, nullptr, FALSE);
  }
}

// Closes an open folder, goes out of a closed one. On the root, which is no choice, no folder stays
// selected: it would be beside the keyboard, and out of sight once the root is closed.
void GoOut(const TreeState* state, GtkTreePath* path) {
  if (!gtk_tree_view_collapse_row(state->View, path) && gtk_tree_path_get_depth(path) > 1) {
    gtk_tree_path_up(path);
    gtk_tree_view_set_cursor(state->View, path, nullptr, FALSE);
  }
  if (gtk_tree_path_get_depth(path) == 1) {
    gtk_tree_selection_unselect_all(gtk_tree_view_get_selection(state->View));
  }
}

// Left and right alone; with other keys held they scroll.
gboolean MoveByArrows(GtkWidget* /*view*/, const GdkEventKey* event, const TreeState* state) {
  const bool in = event->keyval == GDK_KEY_Right || event->keyval == GDK_KEY_KP_Right;
  const bool out = event->keyval == GDK_KEY_Left || event->keyval == GDK_KEY_KP_Left;
  if ((!in && !out) || (event->state & gtk_accelerator_get_default_mod_mask()) != 0) return FALSE;
  GtkTreePath* path = nullptr;
  gtk_tree_view_get_cursor(state->View, &path, nullptr);
  if (path == nullptr) return FALSE;
  (in ? GoIn : GoOut)(state, path);
  gtk_tree_path_free(path);
  return TRUE;
}

gboolean BelowRoot(GtkTreeSelection* /*selection*/, GtkTreeModel* /*model*/, GtkTreePath* path,
                   gboolean selected, gpointer /*data*/) {
  return selected || gtk_tree_path_get_depth(path) > 1;
}

}  // namespace

GtkWidget* CreateFolderTree(const std::string& root, FolderSelected selected) {
  auto owner = std::make_unique<TreeState>(std::move(selected));
  GtkTreeStore* store =
      gtk_tree_store_new(ColumnCount, G_TYPE_STRING, G_TYPE_STRING, G_TYPE_BOOLEAN, G_TYPE_BOOLEAN);
  TreeState* state = owner.release();
  state->Store = store;
  AddFolder(state, nullptr, root, root);
  LookIntoFirstRows(state, nullptr);
  GtkWidget* view = gtk_tree_view_new_with_model(GTK_TREE_MODEL(store));
  g_object_unref(store);
  g_object_set_data_full(G_OBJECT(view), "varnix-folder-tree", state,
                         [](gpointer data) { delete static_cast<TreeState*>(data); });
  constexpr const gchar* Name = "フォルダー";
  SetAccessibleName(view, Name);
  gtk_tree_view_set_headers_visible(GTK_TREE_VIEW(view), FALSE);
  gtk_tree_view_insert_column_with_attributes(
      GTK_TREE_VIEW(view), -1, Name, gtk_cell_renderer_text_new(), "text", LabelColumn, nullptr);
  GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(view));
  gtk_tree_selection_set_select_function(selection, BelowRoot, nullptr, nullptr);
  state->View = GTK_TREE_VIEW(view);
  g_signal_connect(view, "draw", G_CALLBACK(LookAfterPainting), state);
  g_signal_connect(view, "key-press-event", G_CALLBACK(MoveByArrows), state);
  g_signal_connect(view, "test-expand-row", G_CALLBACK(FillBeforeUnfolding), state);
  g_signal_connect(selection, "changed", G_CALLBACK(ReportSelection), state);
  g_signal_connect(view, "destroy", G_CALLBACK(StopReporting), state);
  GtkTreePath* first = gtk_tree_path_new_first();
  gtk_tree_view_expand_row(GTK_TREE_VIEW(view), first, FALSE);
  gtk_tree_path_free(first);
  gtk_widget_show(view);
  return view;
}
