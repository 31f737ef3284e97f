#include "dialogs/choosers/NameList.h"

#include "dialogs/frame/Accessible.h"
#include "support/Text.h"

namespace {

enum Column { LabelColumn, BytesColumn, UsableColumn, ReasonColumn, ColumnCount };

GtkListStore* Rows(GtkWidget* list) {
  return GTK_LIST_STORE(gtk_tree_view_get_model(GTK_TREE_VIEW(list)));
}

std::string BytesOf(GtkTreeModel* model, GtkTreeIter* row) {
  gchar* bytes = nullptr;
  gtk_tree_model_get(model, row, BytesColumn, &bytes, -1);
  std::string result = bytes != nullptr ? bytes : "";
  g_free(bytes);
  return result;
}

bool IsUsable(GtkTreeModel* model, GtkTreePath* path) {
  GtkTreeIter row;
  gboolean usable = FALSE;
  if (gtk_tree_model_get_iter(model, &row, path)) {
    gtk_tree_model_get(model, &row, UsableColumn, &usable, -1);
  }
  return usable != FALSE;
}

gboolean MaySelect(GtkTreeSelection* /*selection*/, GtkTreeModel* model, GtkTreePath* path,
                   gboolean selected, gpointer /*data*/) {
  return selected || IsUsable(model, path);
}

// Pressed twice, an unusable row would be taken for the one that stays selected beside it.
void KeepUnusableBack(GtkTreeView* list, GtkTreePath* path, GtkTreeViewColumn* /*column*/,
                      gpointer /*data*/) {
  if (!IsUsable(gtk_tree_view_get_model(list), path)) {
    g_signal_stop_emission_by_name(list, "row-activated");
  }
}

void AddRow(GtkWidget* list, const std::string& label, const gchar* bytes, const gchar* reason) {
  gtk_list_store_insert_with_values(Rows(list), nullptr, -1, LabelColumn,
                                    DisplayText(label).c_str(), BytesColumn, bytes, UsableColumn,
                                    reason == nullptr, ReasonColumn, reason, -1);
}

// A list that goes away unselects its row; nobody is to hear of that.
void StopReporting(GtkWidget* list, gpointer data) {
  g_signal_handlers_disconnect_by_data(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)), data);
}

}  // namespace

GtkWidget* NewNameList(const gchar* name) {
  GtkListStore* store =
      gtk_list_store_new(ColumnCount, G_TYPE_STRING, G_TYPE_STRING, G_TYPE_BOOLEAN, G_TYPE_STRING);
  GtkWidget* list = gtk_tree_view_new_with_model(GTK_TREE_MODEL(store));
  g_object_unref(store);
  gtk_tree_view_set_headers_visible(GTK_TREE_VIEW(list), FALSE);
  gtk_tree_view_insert_column_with_attributes(GTK_TREE_VIEW(list), -1, name,
                                              gtk_cell_renderer_text_new(), "text", LabelColumn,
                                              "sensitive", UsableColumn, nullptr);
  gtk_tree_view_set_tooltip_column(GTK_TREE_VIEW(list), ReasonColumn);
  gtk_tree_selection_set_select_function(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)),
                                         MaySelect, nullptr, nullptr);
  g_signal_connect(list, "row-activated", G_CALLBACK(KeepUnusableBack), nullptr);
  SetAccessibleName(list, name);
  gtk_widget_show(list);
  return list;
}

void AddName(GtkWidget* list, const std::string& label, const std::string& bytes) {
  AddRow(list, label, bytes.c_str(), nullptr);
}

void AddUnusableName(GtkWidget* list, const std::string& label, const gchar* reason) {
  AddRow(list, label, "", reason);
}

void ClearNames(GtkWidget* list) {
  gtk_list_store_clear(Rows(list));
}

// The list would select the row that the keyboard comes to, unless it has come to one before.
void BeginOnNames(GtkWidget* list) {
  GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(list));
  GtkTreePath* first = gtk_tree_path_new_first();
  gtk_tree_selection_set_mode(selection, GTK_SELECTION_NONE);
  gtk_tree_view_set_cursor(GTK_TREE_VIEW(list), first, nullptr, FALSE);
  gtk_tree_selection_set_mode(selection, GTK_SELECTION_SINGLE);
  gtk_tree_path_free(first);
  gtk_widget_grab_focus(list);
}

std::string SelectedName(GtkWidget* list) {
  GtkTreeModel* model = nullptr;
  GtkTreeIter row;
  GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(list));
  if (!gtk_tree_selection_get_selected(selection, &model, &row)) return "";
  return BytesOf(model, &row);
}

std::string NameAt(GtkWidget* list, GtkTreePath* path) {
  GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(list));
  GtkTreeIter row;
  return gtk_tree_model_get_iter(model, &row, path) ? BytesOf(model, &row) : "";
}

void OnNameSelected(GtkWidget* list, GCallback changed, gpointer data) {
  g_signal_connect(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)), "changed", changed, data);
  g_signal_connect(list, "destroy", G_CALLBACK(StopReporting), data);
}
