// Building a page of the tool box into its window.
#include "dialogs/toolbox/ToolBoxPage.h"

#include <map>

#include "dialogs/frame/Accessible.h"
#include "dialogs/toolbox/ToolBoxRows.h"
#include "layout/Guards.h"
#include "layout/ItemTypes.h"
#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "support/Resource.h"

namespace {

constexpr const gchar* ContentKey = "varnix-content";

// The tables of a page stay for as long as the program runs: a picker may still be open over a
// panel that another one has replaced.
PageTables& TablesOfType(gint type) {
  static std::map<PageVariant, PageTables> known;
  const PageVariant variant = {type, TextIndex(Language),
                               ProjData.Parm1[ProjectSlot::ColourSystems] != 0};
  const auto [found, isNew] = known.try_emplace(variant);
  PageTables& tables = found->second;
  if (isNew) {
    // The points take the first line, or the first two.
    PageRows page(tables, variant, HasTwoPoints(type) ? 2 : 1);
    DescribePage(page, type);
  }
  return tables;
}

// Kept: a frame has its sixth column by the number of languages, not of colours.
gint ColumnsOf(gint type) {
  return type == TypeFrame && ProjData.Parm1[ProjectSlot::Languages] != 0 ? 6 : 5;
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
    if (left == 0) {
      gtk_widget_set_margin_end(widget, 10);
    } else {
      gtk_size_group_add_widget(columns, widget);
    }
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
  if (IsStop(widget)) {
    *found = widget;
  } else if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(GTK_CONTAINER(widget), FindStop, data);
  }
}

// The panel's keyboard begins below the first row, which has TOP beside what is only read.
void BeginBelowTop(GtkWidget* table, gint lines, gint culms) {
  GtkWidget* first = nullptr;
  for (gint cell = 0; cell < lines * culms && first == nullptr; ++cell) {
    if (GtkWidget* child = gtk_grid_get_child_at(GTK_GRID(table), cell % culms, 1 + cell / culms)) {
      FindStop(child, &first);
    }
  }
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

void BuildToolBoxPage(GtkWidget* window, gint type) {
  PageTables& tables = TablesOfType(type);
  const gint columns = ColumnsOf(type);
  GtkWidget* table = ToolBox_Title(window, ItemTypeOf(type).Label, tables.NextLine, columns);
  BuildTables(window, table, tables);
  ToolBox_Comn(table, tables.NextLine, HasTwoPoints(type) ? 0 : 1, tables.Registers ? 1 : 0);
  NameControls(table);
  AlignColumns(table);
  BeginBelowTop(table, tables.NextLine, columns);
}
