// Building a page of the tool box from its tables.
#include "dialogs/toolbox/ToolBoxPage.h"
#include "dialogs/kit/LatePress.h"

#include "dialogs/frame/Accessible.h"
#include "dialogs/kit/Cells.h"
#include "project/ProjectRecord.h"

namespace {

constexpr const gchar* ContentKey = "varnix-content";

// The third and fourth colour show only in projects of four colour systems. Swatches of a colour
// table take one cell, so the second column still tells the place of a hidden one.
void ShowSystemColours(DLG_COLRDATA* rows) {
  const bool four = ProjData.Parm1[2] != 0;
  for (DLG_COLRDATA* row = rows; row->line >= 0; ++row)
    if (row->culm2 >= 3) row->culm1 = four ? row->culm2 : -1;
}

// A wider gap after the first column, the labels, than between the others, which are all as wide.
void AlignColumns(GtkWidget* table) {
  GtkSizeGroup* columns = gtk_size_group_new(GTK_SIZE_GROUP_HORIZONTAL);
  GList* cells = gtk_container_get_children(GTK_CONTAINER(table));
  for (GList* cell = cells; cell != nullptr; cell = cell->next) {
    auto* widget = static_cast<GtkWidget*>(cell->data);
    gint left = 0;
    gint width = 0;
    gtk_container_child_get(GTK_CONTAINER(table), widget, "left-attach", &left, "width", &width,
                            nullptr);
    if (width != 1) continue;
    if (left == 0)
      gtk_widget_set_margin_end(widget, 10);
    else
      gtk_size_group_add_widget(columns, widget);
  }
  g_list_free(cells);
  g_object_unref(columns);
}

// Of a group of radio buttons, Tab stops at the chosen one.
bool IsStop(GtkWidget* widget) {
  return gtk_widget_get_can_focus(widget) &&
         (!GTK_IS_RADIO_BUTTON(widget) || gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(widget)));
}

void FindStop(GtkWidget* widget, gpointer data) {
  auto** found = static_cast<GtkWidget**>(data);
  if (*found != nullptr) return;
  if (IsStop(widget))
    *found = widget;
  else if (GTK_IS_CONTAINER(widget))
    gtk_container_forall(GTK_CONTAINER(widget), FindStop, data);
}

// The panel's keyboard begins below the first row, which has TOP beside what is only read.
void BeginBelowTop(GtkWidget* table, gint lines, gint culms) {
  GtkWidget* first = nullptr;
  for (gint cell = 0; cell < lines * culms && first == nullptr; ++cell)
    if (GtkWidget* child = gtk_grid_get_child_at(GTK_GRID(table), cell % culms, 1 + cell / culms))
      FindStop(child, &first);
  if (first != nullptr) gtk_widget_grab_focus(first);
}

}  // namespace

GtkWidget* ToolBoxContent(GtkWidget* window) {
  return static_cast<GtkWidget*>(g_object_get_data(G_OBJECT(window), ContentKey));
}

void SetToolBoxContent(GtkWidget* window, GtkWidget* content) {
  g_object_set_data(G_OBJECT(window), ContentKey, content);
}

// A grid grows with what is placed in it, so the size asked for needs no reservation.
GtkWidget* ToolBox_Title(GtkWidget* window, const gchar* title, gint /*line*/, gint /*culm*/) {
  gtk_window_set_title(GTK_WINDOW(window), title);
  GtkWidget* table = NewControlGrid(10);
  gtk_box_pack_start(GTK_BOX(ToolBoxContent(window)), table, FALSE, FALSE, 0);
  return table;
}

void AddBrowseButton(GtkWidget* table, const BrowseButton& browse) {
  GtkWidget* button = NewButton("参照");
  gtk_widget_set_halign(button, GTK_ALIGN_FILL);
  gtk_widget_set_valign(button, GTK_ALIGN_FILL);
  g_signal_connect(button, "clicked", G_CALLBACK(browse.Open), browse.Edit);
  gtk_grid_attach(GTK_GRID(table), button, browse.Culm, browse.Line, 1, 1);
  gtk_widget_show(button);
}

void BuildToolBoxPage(GtkWidget* window, const ToolBoxPage& page) {
  GtkWidget* table = ToolBox_Title(window, page.Title, page.Lines, page.Culms);
  if (page.SystemColours) ShowSystemColours(page.Tables.Colr);
  BuildControls(window, table, page.Tables);
  Dlg_ColrData(window, table, page.MoreColours);
  if (page.Browse.Open != nullptr) {
    // Pickers are given the first row of the one-language table whatever table is shown; it then
    // stands for the entry that the user sees.
    if (page.Browse.Edit != page.Tables.Edit)
      KeepWidget(&page.Browse.Edit->entry, page.Tables.Edit->entry);
    AddBrowseButton(table, page.Browse);
  }
  ToolBox_Comn(table, page.CommonLine, page.OnePoint, page.Registers);
  NameControls(table);
  AlignColumns(table);
  BeginBelowTop(table, page.Lines, page.Culms);
}
