#include "tests/road/Panel.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/road/User.h"
#include "tests/window/Widgets.h"

namespace {

// The marks and colours of a picker stand in columns or rows of ten.
constexpr gint Tens = 10;

gint Place(GtkWidget* grid, GtkWidget* child, const gchar* property) {
  gint place = 0;
  gtk_container_child_get(GTK_CONTAINER(grid), child, property, &place, nullptr);
  return place;
}

std::vector<GtkWidget*> Children(GtkWidget* grid) {
  std::vector<GtkWidget*> children;
  GList* list = gtk_container_get_children(GTK_CONTAINER(grid));
  for (GList* link = list; link != nullptr; link = link->next) {
    children.push_back(GTK_WIDGET(link->data));
  }
  g_list_free(list);
  return children;
}

// The rows with this label in the first column, from the top; -1 = fewer than asked for.
gint RowOf(GtkWidget* grid, const Cell& cell) {
  std::map<gint, bool> rows;
  for (GtkWidget* child : Children(grid)) {
    if (GTK_IS_LABEL(child) && Place(grid, child, "left-attach") == 0 &&
        cell.Label == gtk_label_get_text(GTK_LABEL(child))) {
      rows[Place(grid, child, "top-attach")] = true;
    }
  }
  gint which = cell.Which;
  for (const auto& [row, found] : rows) {
    if (which-- == 0) return row + cell.Below;
  }
  return -1;
}

GtkWidget* FindCaptioned(GtkWidget* grid, const std::string& caption, GType kind) {
  for (GtkWidget* child : Children(grid)) {
    if (GTK_IS_BOX(child) && FindLabel(child, caption) != nullptr) return FindKind(child, kind);
  }
  return nullptr;
}

GtkWidget* FindControl(GtkWidget* window, const Cell& cell, GType kind) {
  GtkWidget* grid = FindKind(window, GTK_TYPE_GRID);
  if (grid == nullptr) return nullptr;
  const gint row = RowOf(grid, cell);
  if (row < 0) return FindCaptioned(grid, cell.Label, kind);
  for (GtkWidget* child : Children(grid)) {
    if (Place(grid, child, "top-attach") == row &&
        Place(grid, child, "left-attach") == cell.Column) {
      if (GtkWidget* found = FindKind(child, kind)) return found;
    }
  }
  return nullptr;
}

GtkWidget* FindAt(GtkWidget* window, gint row, gint column) {
  GtkWidget* grid = FindKind(window, GTK_TYPE_GRID);
  return grid != nullptr ? gtk_grid_get_child_at(GTK_GRID(grid), column, row) : nullptr;
}

// Puts the cursor into an entry and marks all that it holds.
void ClickInto(GtkWidget* entry) {
  ASSERT_NE(entry, nullptr) << "no entry";
  constexpr gint InText = 12;
  PointAt(entry, InText, InText);
  ClickHere(LeftButton);
  EXPECT_TRUE(See([&] { return gtk_widget_has_focus(entry) != FALSE; }));
  PressKey(GDK_KEY_a, {GDK_KEY_Control_L});
}

GtkWidget* ComboMenu(GtkWidget* combo) {
  AtkObject* popup = gtk_combo_box_get_popup_accessible(GTK_COMBO_BOX(combo));
  return gtk_accessible_get_widget(GTK_ACCESSIBLE(popup));
}

// A row of a list or tree, and where it is in the widget.
struct Row {
  GtkWidget* View = nullptr;
  GdkRectangle Area = {};
};

Row FindRow(GtkWidget* window, const std::string& text) {
  Row row;
  FindWidget(window, [&](GtkWidget* view) {
    if (!GTK_IS_TREE_VIEW(view)) return false;
    const auto look = [&](GtkTreeModel* model, GtkTreePath* path, GtkTreeIter* iter) {
      if (RowText(model, iter) != text) return false;
      row.View = view;
      gtk_tree_view_scroll_to_cell(GTK_TREE_VIEW(view), path, nullptr, FALSE, 0, 0);
      gtk_tree_view_get_cell_area(GTK_TREE_VIEW(view), path,
                                  gtk_tree_view_get_column(GTK_TREE_VIEW(view), 0), &row.Area);
      return true;
    };
    using Look = decltype(look);
    gtk_tree_model_foreach(
        gtk_tree_view_get_model(GTK_TREE_VIEW(view)),
        [](GtkTreeModel* model, GtkTreePath* path, GtkTreeIter* iter, gpointer function)
            -> gboolean { return (*static_cast<Look*>(function))(model, path, iter); },
        const_cast<std::remove_const_t<Look>*>(&look));
    return row.View != nullptr;
  });
  return row;
}

}  // namespace

Panel::Panel(const std::string& title) : window_(SeeWindow(title)) {
  EXPECT_NE(window_, nullptr) << "no window \"" << title << "\"";
}

Panel Panel::Page(const std::string& tab) const {
  GtkWidget* notebook = Look([&] { return FindKind(window_, GTK_TYPE_NOTEBOOK); });
  GtkWidget* label = Look([&] { return FindLabel(notebook, tab); });
  Click(label);
  const auto page = [&] {
    const gint number = gtk_notebook_get_current_page(GTK_NOTEBOOK(notebook));
    return gtk_notebook_get_nth_page(GTK_NOTEBOOK(notebook), number);
  };
  EXPECT_TRUE(See([&] {
    return gtk_notebook_get_tab_label(GTK_NOTEBOOK(notebook), page()) == label;
  })) << tab;
  Settle();
  return Panel(Look(page));
}

Panel Panel::Frame(const std::string& title) const {
  GtkWidget* frame = Look([&] {
    return FindWidget(window_, [&](GtkWidget* widget) {
      return GTK_IS_FRAME(widget) &&
             title == (std::string(gtk_frame_get_label(GTK_FRAME(widget)) != nullptr
                                       ? gtk_frame_get_label(GTK_FRAME(widget))
                                       : ""));
    });
  });
  EXPECT_NE(frame, nullptr) << title;
  return Panel(frame);
}

GtkWidget* Panel::Control(const Cell& cell, GType kind) const {
  GtkWidget* control = Look([&] { return FindControl(window_, cell, kind); });
  EXPECT_NE(control, nullptr) << "no " << g_type_name(kind) << " at " << cell.Label;
  return control;
}

void Panel::Enter(const Cell& cell, gint number) const {
  GtkWidget* spin = Control(cell, GTK_TYPE_SPIN_BUTTON);
  ClickInto(spin);
  TypeText(std::to_string(number));
  PressKey(GDK_KEY_Tab);
}

void Panel::Enter(const Cell& cell, const std::string& text) const {
  EnterText(Control(cell, GTK_TYPE_ENTRY), text);
}

void Panel::Choose(const Cell& cell, gint index) const {
  GtkWidget* combo = Control(cell, GTK_TYPE_COMBO_BOX);
  ASSERT_NE(combo, nullptr);
  Click(combo);
  ASSERT_TRUE(See([&] { return gtk_widget_get_mapped(ComboMenu(combo)) != FALSE; }));
  Click(Look([&] { return Children(ComboMenu(combo)).at(static_cast<gsize>(index)); }));
  EXPECT_TRUE(See([&] { return gtk_combo_box_get_active(GTK_COMBO_BOX(combo)) == index; }));
}

void Panel::Tick(const std::string& label) const {
  Click(Look([&] { return FindLabel(window_, label); }));
}

void Panel::Tick(const Cell& cell) const {
  Click(Control(cell, GTK_TYPE_TOGGLE_BUTTON));
}

void Panel::PickColour(const Cell& cell, gint number) const {
  Click(Control(cell, GTK_TYPE_DRAWING_AREA));
  const Panel picker("表示色選択");
  Click(Look([&] { return FindAt(picker.Window(), number % Tens, number / Tens); }));
  EXPECT_TRUE(SeeGone("表示色選択"));
}

void Panel::PickMark(const Cell& cell, gint number) const {
  Click(Control(cell, GTK_TYPE_DRAWING_AREA));
  const Panel picker("マーク選択");
  Click(Look([&] { return FindAt(picker.Window(), number / Tens, number % Tens); }));
  EXPECT_TRUE(SeeGone("マーク選択"));
}

void Panel::Press(const std::string& label) const {
  Click(Look([&] {
    return FindWidget(window_, [&](GtkWidget* widget) {
      return GTK_IS_BUTTON(widget) && !GTK_IS_TOGGLE_BUTTON(widget) &&
             g_strcmp0(gtk_button_get_label(GTK_BUTTON(widget)), label.c_str()) == 0;
    });
  }));
}

void Panel::Press(const Cell& cell) const {
  Click(Control(cell, GTK_TYPE_BUTTON));
}

void EnterText(GtkWidget* entry, const std::string& text) {
  ClickInto(entry);
  Look([&] {
    gtk_clipboard_set_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), text.c_str(), -1);
  });
  PressKey(GDK_KEY_v, {GDK_KEY_Control_L});
  EXPECT_TRUE(See([&] { return text == gtk_entry_get_text(GTK_ENTRY(entry)); })) << text;
}

void ClickRow(GtkWidget* window, const std::string& text) {
  EXPECT_TRUE(See([&] { return FindRow(window, text).View != nullptr; })) << "no row " << text;
  Settle();  // the list may have scrolled
  const Row row = Look([&] { return FindRow(window, text); });
  PointAt(row.View, row.Area.x + 10, row.Area.y + row.Area.height / 2);
  ClickHere(LeftButton);
}

void ChooseMenu(GtkWidget* menu, const Path& path) {
  for (const std::string& label : path) {
    GtkWidget* entry = Look([&] { return MenuEntry(menu, {label}); });
    ASSERT_NE(entry, nullptr) << "no entry \"" << label << "\"";
    ASSERT_TRUE(See([&] { return gtk_widget_get_mapped(entry) != FALSE; })) << label;
    ASSERT_TRUE(Look([&] { return gtk_widget_is_sensitive(entry) != FALSE; })) << label;
    menu = Look([&] { return gtk_menu_item_get_submenu(GTK_MENU_ITEM(entry)); });
    const bool inMenu = Look([&] { return GTK_IS_MENU(gtk_widget_get_parent(entry)); });
    if (menu == nullptr || !inMenu) {
      Click(entry);
    } else {
      // It opens by itself; GTK leaks what it notes for that when a click comes first.
      PointAt(entry);
      ASSERT_TRUE(See([&] { return gtk_widget_get_mapped(menu) != FALSE; })) << label;
    }
  }
}
