#include "dialogs/frame/Accessible.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "dialogs/kit/SwatchArea.h"

namespace {

// A child of the grid and what it consists of.
struct Cell {
  GtkWidget* Child = nullptr;
  GtkWidget* Control = nullptr;  // null for a label
  gint Line = 0;
  gint Culm = 0;
  std::string Caption;  // of a control that has one
};

bool IsControl(GtkWidget* widget) {
  return GTK_IS_ENTRY(widget) || GTK_IS_BUTTON(widget) || GTK_IS_COMBO_BOX(widget) ||
         IsSwatchArea(widget);
}

// Without the blanks that even captions out.
std::string TextOf(GtkWidget* label) {
  std::string text = gtk_label_get_text(GTK_LABEL(label));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

void FindControl(GtkWidget* widget, gpointer data) {
  auto* cell = static_cast<Cell*>(data);
  if (IsControl(widget)) {
    cell->Control = widget;
  } else if (GTK_IS_LABEL(widget)) {
    cell->Caption = TextOf(widget);
  } else if (GTK_IS_CONTAINER(widget)) {
    gtk_container_foreach(GTK_CONTAINER(widget), FindControl, data);
  }
}

// From left to right in each row.
std::vector<Cell> CellsOf(GtkWidget* grid) {
  std::vector<Cell> cells;
  GList* children = gtk_container_get_children(GTK_CONTAINER(grid));
  for (GList* link = children; link != nullptr; link = link->next) {
    Cell cell;
    cell.Child = GTK_WIDGET(link->data);
    gtk_container_child_get(GTK_CONTAINER(grid), cell.Child, "left-attach", &cell.Culm,
                            "top-attach", &cell.Line, nullptr);
    FindControl(cell.Child, &cell);
    cells.push_back(std::move(cell));
  }
  g_list_free(children);
  std::stable_sort(cells.begin(), cells.end(), [](const Cell& one, const Cell& other) {
    return std::pair(one.Line, one.Culm) < std::pair(other.Line, other.Culm);
  });
  return cells;
}

std::string Joined(const std::string& one, const std::string& other) {
  return one.empty() || other.empty() ? one + other : one + " " + other;
}

// The controls of a row that have this name and are of this kind, from left to right.
using Named = std::map<std::pair<std::string, GType>, std::vector<GtkWidget*>>;

// A choice has a text of its own; its row says what it chooses.
void DescribeChoice(GtkWidget* choice, const std::string& row) {
  if (!row.empty()) SetAccessibleDescription(choice, row);
}

std::string NameOf(const Cell& cell, const std::string& row) {
  if (GTK_IS_BUTTON(cell.Control)) {
    return Joined(row, gtk_button_get_label(GTK_BUTTON(cell.Control)));
  }
  return Joined(row, cell.Caption);
}

void NameRow(const std::vector<Cell>& row, const std::string& heading) {
  std::string label;
  std::string check;  // stands for the label of a row without one
  Named named;
  for (const Cell& cell : row) {
    if (cell.Control == nullptr) {
      if (!cell.Caption.empty()) label = cell.Caption;
    } else if (GTK_IS_TOGGLE_BUTTON(cell.Control)) {
      DescribeChoice(cell.Control, Joined(heading, label));
      check = gtk_button_get_label(GTK_BUTTON(cell.Control));
    } else {
      const std::string name = NameOf(cell, Joined(heading, label.empty() ? check : label));
      if (!name.empty()) named[{name, G_OBJECT_TYPE(cell.Control)}].push_back(cell.Control);
    }
  }
  for (const auto& [kind, controls] : named) {
    for (gsize i = 0; i < controls.size(); ++i) {
      SetAccessibleName(controls[i], controls.size() == 1
                                         ? kind.first
                                         : kind.first + " " + std::to_string(i + 1));
    }
  }
}

}  // namespace

void SetAccessibleName(GtkWidget* control, const std::string& name) {
  if (IsSwatchArea(control)) {
    SetSwatchLabel(control, name);
  } else {
    atk_object_set_name(gtk_widget_get_accessible(control), name.c_str());
  }
}

void SetAccessibleDescription(GtkWidget* control, const std::string& text) {
  atk_object_set_description(gtk_widget_get_accessible(control), text.c_str());
}

void NameScrollBars(GtkWidget* scrolled) {
  auto* window = GTK_SCROLLED_WINDOW(scrolled);
  SetAccessibleName(gtk_scrolled_window_get_hscrollbar(window), "横スクロール");
  SetAccessibleName(gtk_scrolled_window_get_vscrollbar(window), "縦スクロール");
}

void NameControls(GtkWidget* grid, const std::string& heading) {
  std::vector<Cell> row;
  for (Cell& cell : CellsOf(grid)) {
    if (!row.empty() && row.front().Line != cell.Line) {
      NameRow(row, heading);
      row.clear();
    }
    row.push_back(std::move(cell));
  }
  NameRow(row, heading);
}
