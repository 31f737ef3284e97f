#include "tests/road/FocusWalk.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "tests/road/User.h"
#include "tests/window/Widgets.h"

namespace {

using Widgets = std::vector<GtkWidget*>;

constexpr gsize TooMany = 200;

GtkWidget* FocusIn(GtkWidget* window) {
  if (!GTK_IS_WINDOW(window)) return nullptr;
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(window));
  return focus != nullptr && gtk_widget_has_focus(focus) ? focus : nullptr;
}

bool SeeKeyboardIn(GtkWidget* window) {
  const bool has = See([window] {
    return GTK_IS_WINDOW(window) && gtk_widget_get_mapped(window) &&
           gtk_window_is_active(GTK_WINDOW(window));
  });
  EXPECT_TRUE(has) << "the window has not got the keyboard";
  return has;
}

GtkWidget* FocusAfter(GtkWidget* window, guint key, std::initializer_list<guint> held = {}) {
  KeyTo(window, key, held);
  return Look([window] { return FocusIn(window); });
}

// What takes the keyboard of a drop-down list is a button in it without a name.
std::string NameOf(GtkWidget* widget) {
  if (widget == nullptr) return "nothing";
  GtkWidget* combo = gtk_widget_get_ancestor(widget, GTK_TYPE_COMBO_BOX);
  GtkWidget* named = combo != nullptr ? combo : widget;
  const gchar* name = atk_object_get_name(gtk_widget_get_accessible(named));
  return name != nullptr && *name != '\0' ? name : G_OBJECT_TYPE_NAME(widget);
}

std::vector<std::string> NamesOf(const Widgets& widgets) {
  return Look([&] {
    std::vector<std::string> names;
    for (GtkWidget* widget : widgets) names.push_back(NameOf(widget));
    return names;
  });
}

// By mouse or keyboard.
bool IsUsable(GtkWidget* widget) {
  if (!gtk_widget_get_mapped(widget) || !gtk_widget_is_sensitive(widget)) return false;
  const bool edited = GTK_IS_EDITABLE(widget) && gtk_editable_get_editable(GTK_EDITABLE(widget));
  return gtk_widget_get_can_focus(widget) || GTK_IS_BUTTON(widget) || edited;
}

Widgets UsableIn(GtkWidget* root) {
  Widgets usable;
  FindWidget(root, [&](GtkWidget* widget) {
    if (IsUsable(widget)) usable.push_back(widget);
    return false;
  });
  return usable;
}

// The control's place in its window; that of the shown page's tab for a notebook.
GdkRectangle PlaceOf(GtkWidget* widget) {
  GtkWidget* shown = widget;
  if (GTK_IS_NOTEBOOK(widget)) {
    auto* notebook = GTK_NOTEBOOK(widget);
    shown = gtk_notebook_get_tab_label(
        notebook, gtk_notebook_get_nth_page(notebook, gtk_notebook_get_current_page(notebook)));
  }
  GdkRectangle place{0, 0, gtk_widget_get_allocated_width(shown),
                     gtk_widget_get_allocated_height(shown)};
  gtk_widget_translate_coordinates(shown, gtk_widget_get_toplevel(shown), 0, 0, &place.x, &place.y);
  return place;
}

// Row by row; two controls stand in one row when half of the lower one is beside the other.
bool IsReadBefore(const GdkRectangle& one, const GdkRectangle& other) {
  const gint beside =
      std::min(one.y + one.height, other.y + other.height) - std::max(one.y, other.y);
  const bool sameRow = beside * 2 >= std::min(one.height, other.height);
  return sameRow ? one.x < other.x : one.y < other.y;
}

void ExpectReadingOrder(const Widgets& stops) {
  std::vector<GdkRectangle> places(stops.size());
  Look([&] { std::transform(stops.begin(), stops.end(), places.begin(), PlaceOf); });
  const std::vector<std::string> names = NamesOf(stops);
  const auto first = static_cast<gsize>(
      std::min_element(places.begin(), places.end(), IsReadBefore) - places.begin());
  for (gsize i = 1; i < places.size(); i++) {
    const gsize one = (first + i - 1) % places.size();
    const gsize next = (first + i) % places.size();
    EXPECT_TRUE(IsReadBefore(places[one], places[next]))
        << "\"" << names[next] << "\" is reached after \"" << names[one] << "\"";
  }
}

// One page of a window.
class PageWalk {
 public:
  explicit PageWalk(GtkWidget* window) : window_(window) {}
  void Walk();

 private:
  Widgets Around() const;
  // Where the keyboard comes from a stop with the arrow keys.
  void WalkWithin(GtkWidget* stop);
  void WalkChoices(GtkWidget* chosen);
  void WalkGrid(GtkWidget* grid);
  void WalkRows(GtkTreeView* list) const;
  void WalkDropDown(GtkComboBox* combo) const;
  Widgets Unreached(GtkWidget* root) const;

  GtkWidget* window_;
  std::set<GtkWidget*> reached_;
};

// Where Tab stops until it comes to the first stop again.
Widgets PageWalk::Around() const {
  Widgets stops;
  GtkWidget* stop = FocusAfter(window_, GDK_KEY_Tab);
  while (stop != nullptr && (stops.empty() || stop != stops.front()) && stops.size() < TooMany) {
    stops.push_back(stop);
    stop = FocusAfter(window_, GDK_KEY_Tab);
  }
  EXPECT_TRUE(stop != nullptr && stop == stops.front()) << "Tab does not come around";
  return stops;
}

// They exclude each other; Tab stops at the chosen one alone, and the arrows choose another.
void PageWalk::WalkChoices(GtkWidget* chosen) {
  const auto choose = [this](guint key) {
    GtkWidget* choice = FocusAfter(window_, key);
    EXPECT_TRUE(Look([&] {
      return GTK_IS_RADIO_BUTTON(choice) && gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(choice));
    }));
    reached_.insert(choice);
    return choice;
  };
  const auto goOn = [&](guint key, GtkWidget* from, const GtkWidget* until) {
    GtkWidget* before = nullptr;
    for (gsize i = 0; i < TooMany && from != before && from != until; i++) {
      before = from;
      from = choose(key);
    }
    return from;
  };
  GtkWidget* last = goOn(GDK_KEY_Right, goOn(GDK_KEY_Left, chosen, nullptr), nullptr);
  EXPECT_EQ(goOn(GDK_KEY_Left, last, chosen), chosen);
}

// Swatches in rows and columns: each arrow key leads to the neighbour.
void PageWalk::WalkGrid(GtkWidget* grid) {
  std::map<std::pair<gint, gint>, GtkWidget*> swatches;
  std::pair<gint, gint> at;
  Look([&] {
    for (GtkWidget* swatch : UsableIn(grid)) {
      if (gtk_widget_get_parent(swatch) != grid) continue;
      gint left = 0;
      gint top = 0;
      gtk_container_child_get(GTK_CONTAINER(grid), swatch, "left-attach", &left, "top-attach", &top,
                              nullptr);
      swatches[{top, left}] = swatch;
      if (swatch == FocusIn(window_)) at = {top, left};
    }
  });
  bool astray = false;
  const auto step = [&](guint key, gint down, gint right) {
    at.first += down;
    at.second += right;
    GtkWidget* swatch = FocusAfter(window_, key);
    astray = !swatches.contains(at) || swatch != swatches.at(at);
    reached_.insert(swatch);
    EXPECT_FALSE(astray) << "no way to " << at.first << ", " << at.second;
  };
  while (at.first > 0 && !astray) step(GDK_KEY_Up, -1, 0);
  while (at.second > 0 && !astray) step(GDK_KEY_Left, 0, -1);
  for (gint way = 1; !astray; way = -way) {
    while (swatches.contains({at.first, at.second + way}) && !astray) {
      step(way > 0 ? GDK_KEY_Right : GDK_KEY_Left, 0, way);
    }
    if (astray || !swatches.contains({at.first + 1, at.second})) break;
    step(GDK_KEY_Down, 1, 0);
  }
}

// Rows of a tree are further rows' parents.
bool IsList(GtkWidget* widget) {
  return GTK_IS_TREE_VIEW(widget) &&
         GTK_IS_LIST_STORE(gtk_tree_view_get_model(GTK_TREE_VIEW(widget)));
}

gint SelectedRow(GtkTreeView* list) {
  GList* rows = gtk_tree_selection_get_selected_rows(gtk_tree_view_get_selection(list), nullptr);
  const gint row =
      rows != nullptr ? gtk_tree_path_get_indices(static_cast<GtkTreePath*>(rows->data))[0] : -1;
  g_list_free_full(rows,
                   [](gpointer path) { gtk_tree_path_free(static_cast<GtkTreePath*>(path)); });
  return row;
}

// A list that nothing is selected in yet selects the row it begins at with the first arrow.
void GoToFirstRow(GtkWidget* window, GtkTreeView* list) {
  KeyTo(window, GDK_KEY_Home);
  if (Look([list] { return SelectedRow(list); }) < 0) KeyTo(window, GDK_KEY_Down);
}

// The row that shows this text; -1 = none.
gint RowOf(GtkTreeView* list, const std::string& text) {
  GtkTreeModel* model = gtk_tree_view_get_model(list);
  const gint count = gtk_tree_model_iter_n_children(model, nullptr);
  for (gint row = 0; row < count; row++) {
    GtkTreeIter iter;
    gtk_tree_model_iter_nth_child(model, &iter, nullptr, row);
    if (RowText(model, &iter) == text) return row;
  }
  return -1;
}

void PageWalk::WalkRows(GtkTreeView* list) const {
  const gint count = Look(
      [list] { return gtk_tree_model_iter_n_children(gtk_tree_view_get_model(list), nullptr); });
  GoToFirstRow(window_, list);
  for (gint row = 0; row < count; row++) {
    if (row > 0) KeyTo(window_, GDK_KEY_Down);
    EXPECT_EQ(Look([list] { return SelectedRow(list); }), row);
  }
}

// One entry on and back.
void PageWalk::WalkDropDown(GtkComboBox* combo) const {
  const auto active = [combo] { return gtk_combo_box_get_active(combo); };
  const gint before = Look(active);
  KeyTo(window_, before > 0 ? GDK_KEY_Up : GDK_KEY_Down);
  EXPECT_EQ(Look(active), before > 0 ? before - 1 : 1);
  KeyTo(window_, before > 0 ? GDK_KEY_Down : GDK_KEY_Up);
  EXPECT_EQ(Look(active), before);
}

void PageWalk::WalkWithin(GtkWidget* stop) {
  GtkWidget* combo = Look([stop] { return gtk_widget_get_ancestor(stop, GTK_TYPE_COMBO_BOX); });
  GtkWidget* parent = Look([stop] { return gtk_widget_get_parent(stop); });
  if (GTK_IS_RADIO_BUTTON(stop)) {
    WalkChoices(stop);
  } else if (Look([stop] { return IsList(stop); })) {
    WalkRows(GTK_TREE_VIEW(stop));
  } else if (combo != nullptr) {
    WalkDropDown(GTK_COMBO_BOX(combo));
  } else if (GTK_IS_DRAWING_AREA(stop) && GTK_IS_GRID(parent) && !Unreached(parent).empty()) {
    WalkGrid(parent);
  }
}

Widgets PageWalk::Unreached(GtkWidget* root) const {
  Widgets unreached = Look([root] { return UsableIn(root); });
  unreached.erase(std::remove_if(unreached.begin(), unreached.end(),
                                 [this](GtkWidget* widget) { return reached_.contains(widget); }),
                  unreached.end());
  return unreached;
}

void PageWalk::Walk() {
  const Widgets stops = Around();
  ExpectReadingOrder(stops);
  const std::vector<std::string> names = NamesOf(stops);
  reached_.insert(stops.begin(), stops.end());
  for (gsize left = stops.size(); left > 0; left--) {
    GtkWidget* stop = FocusAfter(window_, GDK_KEY_Tab, {GDK_KEY_Shift_L});
    EXPECT_EQ(stop, stops[left - 1]) << names[left - 1];
    WalkWithin(stops[left - 1]);
  }
  EXPECT_THAT(NamesOf(Unreached(window_)), testing::IsEmpty()) << "not reached";
}

}  // namespace

void KeyTo(GtkWidget* window, guint key, std::initializer_list<guint> held) {
  if (SeeKeyboardIn(window)) PressKey(key, held);
}

GtkWidget* TabTo(GtkWidget* window, const std::string& name) {
  if (!SeeKeyboardIn(window)) return nullptr;
  GtkWidget* stop = Look([window] { return FocusIn(window); });
  for (gsize i = 0; i < TooMany && !testing::Test::HasFailure(); i++) {
    if (Look([stop] { return NameOf(stop); }) == name) return stop;
    stop = FocusAfter(window, GDK_KEY_Tab);
  }
  ADD_FAILURE() << "Tab does not come to \"" << name << "\"";
  return nullptr;
}

void GoToRow(GtkWidget* window, const std::string& text) {
  if (!SeeKeyboardIn(window)) return;
  GtkWidget* list = Look([window] { return FocusIn(window); });
  ASSERT_TRUE(Look([list] { return IsList(list); })) << "no list has the keyboard";
  const gint wanted = Look([&] { return RowOf(GTK_TREE_VIEW(list), text); });
  ASSERT_GE(wanted, 0) << "no row " << text;
  GoToFirstRow(window, GTK_TREE_VIEW(list));
  for (gint row = 0; row < wanted; row++) KeyTo(window, GDK_KEY_Down);
  EXPECT_EQ(Look([list] { return SelectedRow(GTK_TREE_VIEW(list)); }), wanted);
}

GtkWidget* OpenMenu(GtkWidget* window, guint letter, const std::string& label) {
  KeyTo(window, letter, {GDK_KEY_Alt_L});
  GtkWidget* menu =
      Look([&] { return gtk_menu_item_get_submenu(GTK_MENU_ITEM(MenuEntry(MenuBar(), {label}))); });
  EXPECT_TRUE(See([menu] { return gtk_widget_get_mapped(menu) != FALSE; })) << label;
  LetSubmenuOpen(menu);
  return menu;
}

void LetSubmenuOpen(GtkWidget* menu) {
  EXPECT_TRUE(See([menu] {
    GtkWidget* chosen = gtk_menu_shell_get_selected_item(GTK_MENU_SHELL(menu));
    GtkWidget* deeper =
        chosen != nullptr ? gtk_menu_item_get_submenu(GTK_MENU_ITEM(chosen)) : nullptr;
    return deeper == nullptr || gtk_widget_get_mapped(deeper) != FALSE;
  })) << "a submenu does not open";
}

void ChooseByKeys(GtkWidget* menu, const Path& path) {
  for (const std::string& label : path) {
    GtkWidget* entry = Look([&] { return MenuEntry(menu, {label}); });
    const auto selected = [&] {
      return gtk_menu_shell_get_selected_item(GTK_MENU_SHELL(menu)) == entry;
    };
    for (gsize i = 0; i < TooMany && !Look(selected); i++) {
      PressKey(GDK_KEY_Down);
      LetSubmenuOpen(menu);
    }
    EXPECT_TRUE(Look(selected)) << "no way to \"" << label << "\"";
    GtkWidget* deeper = Look([&] { return gtk_menu_item_get_submenu(GTK_MENU_ITEM(entry)); });
    PressKey(deeper != nullptr ? GDK_KEY_Right : GDK_KEY_Return);
    if (deeper == nullptr) return;
    menu = deeper;
  }
}

void WalkWindow(GtkWidget* window) {
  GtkWidget* found = Look([window] { return FindKind(window, GTK_TYPE_NOTEBOOK); });
  if (found == nullptr) return PageWalk(window).Walk();
  GtkNotebook* notebook = GTK_NOTEBOOK(found);
  const gint pages = Look([notebook] { return gtk_notebook_get_n_pages(notebook); });
  for (gint page = 0; page < pages; page++) {
    if (page > 0) {
      TabTo(window, Look([found] { return NameOf(found); }));
      KeyTo(window, GDK_KEY_Right);
    }
    EXPECT_EQ(Look([notebook] { return gtk_notebook_get_current_page(notebook); }), page);
    PageWalk(window).Walk();
  }
}
