#include "tests/dialogs/Controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "render/Surface.h"
#include "tests/window/Widgets.h"

namespace {

struct EventFree {
  void operator()(GdkEvent* event) const { gdk_event_free(event); }
};
using EventPtr = std::unique_ptr<GdkEvent, EventFree>;

EventPtr NewEvent(GdkEventType type, GtkWidget* widget) {
  EventPtr event(gdk_event_new(type));
  event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(widget)));
  event->any.send_event = TRUE;
  return event;
}

// The window below `root` that gets the widget's events, null = none; many widgets stand in their
// parent's window with one for events of their own.
GdkWindow* EventWindow(GdkWindow* root, GtkWidget* widget) {
  gpointer owner = nullptr;
  gdk_window_get_user_data(root, &owner);
  if (owner == widget) return root;
  for (GList* link = gdk_window_peek_children(root); link != nullptr; link = link->next) {
    if (GdkWindow* found = EventWindow(GDK_WINDOW(link->data), widget)) return found;
  }
  return nullptr;
}

GdkSeat* SeatOf(GtkWidget* widget) {
  return gdk_display_get_default_seat(gtk_widget_get_display(widget));
}

void SendMouse(GtkWidget* area, GdkEventType type, guint button, guint held, gint x, gint y) {
  const EventPtr event = NewEvent(type, area);
  gdk_event_set_device(event.get(), gdk_seat_get_pointer(SeatOf(area)));
  event->button.button = button;
  event->button.state = held;
  event->button.x = x;
  event->button.y = y;
  gtk_main_do_event(event.get());
}

std::vector<GtkWidget*> ChildrenOf(GtkWidget* grid) {
  std::vector<GtkWidget*> children;
  GList* list = gtk_container_get_children(GTK_CONTAINER(grid));
  for (GList* link = list; link != nullptr; link = link->next) {
    children.push_back(GTK_WIDGET(link->data));
  }
  g_list_free(list);
  // A grid tells its children newest first.
  std::reverse(children.begin(), children.end());
  return children;
}

gboolean IsKind(GtkWidget* widget, GType kind) {
  return G_TYPE_CHECK_INSTANCE_TYPE(widget, kind);
}

// The row that shows this text, null when there is none.
GtkTreePath* RowOf(GtkWidget* list, const std::string& text) {
  const auto texts = RowTexts(list);
  const auto found = std::find(texts.begin(), texts.end(), text);
  EXPECT_NE(found, texts.end()) << "no row " << text;
  if (found == texts.end()) return nullptr;
  return gtk_tree_path_new_from_indices(static_cast<gint>(found - texts.begin()), -1);
}

bool IsRowSensitive(GtkTreeView* list, GtkTreeIter* row) {
  GtkTreeViewColumn* column = gtk_tree_view_get_column(list, 0);
  gtk_tree_view_column_cell_set_cell_data(column, gtk_tree_view_get_model(list), row, FALSE, FALSE);
  GList* cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(column));
  const bool sensitive = gtk_cell_renderer_get_sensitive(GTK_CELL_RENDERER(cells->data)) != FALSE;
  g_list_free(cells);
  return sensitive;
}

std::string RowTooltip(GtkTreeView* list, GtkTreeIter* row) {
  const gint column = gtk_tree_view_get_tooltip_column(list);
  if (column < 0) return "";
  gchar* text = nullptr;
  gtk_tree_model_get(gtk_tree_view_get_model(list), row, column, &text, -1);
  std::string tooltip = text != nullptr ? text : "";
  g_free(text);
  return tooltip;
}

GtkTreeView* FirstList(GtkWidget* root) {
  GtkWidget* list = FindKind(root, GTK_TYPE_TREE_VIEW);
  return list != nullptr ? GTK_TREE_VIEW(list) : nullptr;
}

}  // namespace

GtkWidget* FindGrid(GtkWidget* root) {
  return FindKind(root, GTK_TYPE_GRID);
}

CellPlace PlaceOf(GtkWidget* grid, GtkWidget* child) {
  gint left = 0;
  gint top = 0;
  gint width = 0;
  gtk_container_child_get(GTK_CONTAINER(grid), child, "left-attach", &left, "top-attach", &top,
                          "width", &width, nullptr);
  return {top, left, left + width - 1};
}

std::vector<GtkWidget*> ControlsAt(GtkWidget* grid, gint line, gint culm) {
  std::vector<GtkWidget*> found;
  for (GtkWidget* child : ChildrenOf(grid)) {
    const CellPlace place = PlaceOf(grid, child);
    if (place.Line == line && place.Culm1 == culm) found.push_back(child);
  }
  return found;
}

GtkWidget* ControlAt(GtkWidget* grid, gint line, gint culm, GType kind) {
  for (GtkWidget* child : ControlsAt(grid, line, culm)) {
    if (GtkWidget* found = FindWidget(
            child, [kind](GtkWidget* widget) { return IsKind(widget, kind) != FALSE; })) {
      return found;
    }
  }
  return nullptr;
}

gint CountOf(GtkWidget* root, GType kind) {
  gint count = 0;
  FindWidget(root, [&](GtkWidget* widget) {
    if (IsKind(widget, kind)) count++;
    return false;
  });
  return count;
}

std::string LabelText(GtkWidget* label) {
  return GTK_IS_LABEL(label) ? gtk_label_get_text(GTK_LABEL(label)) : "";
}

std::string EntryText(GtkWidget* entry) {
  return GTK_IS_ENTRY(entry) ? gtk_entry_get_text(GTK_ENTRY(entry)) : "";
}

std::string ComboText(GtkWidget* combo) {
  gchar* text = gtk_combo_box_text_get_active_text(GTK_COMBO_BOX_TEXT(combo));
  std::string result = text != nullptr ? text : "";
  g_free(text);
  return result;
}

void Type(GtkWidget* entry, const std::string& text) {
  g_signal_emit_by_name(entry, "insert-at-cursor", text.c_str());
}

void Press(GtkWidget* area, guint button, gint x, gint y) {
  SendMouse(area, GDK_BUTTON_PRESS, button, 0, x, y);
}

void Release(GtkWidget* area, guint button, guint held, gint x, gint y) {
  SendMouse(area, GDK_BUTTON_RELEASE, button, held, x, y);
}

void Move(GtkWidget* area, gint x, gint y, guint state) {
  const EventPtr event = NewEvent(GDK_MOTION_NOTIFY, area);
  gdk_event_set_device(event.get(), gdk_seat_get_pointer(SeatOf(area)));
  event->motion.state = static_cast<GdkModifierType>(state);
  event->motion.x = x;
  event->motion.y = y;
  gtk_main_do_event(event.get());
}

void TurnWheel(GtkWidget* over, GdkScrollDirection direction) {
  ASSERT_NE(over, nullptr);
  GdkWindow* window = EventWindow(gtk_widget_get_window(over), over);
  ASSERT_NE(window, nullptr) << "gets no events";
  const EventPtr event(gdk_event_new(GDK_SCROLL));
  event->any.window = GDK_WINDOW(g_object_ref(window));
  event->any.send_event = TRUE;
  gdk_event_set_device(event.get(), gdk_seat_get_pointer(SeatOf(over)));
  event->scroll.direction = direction;
  gtk_main_do_event(event.get());
}

void PressKey(GtkWidget* window, guint key, GdkModifierType held) {
  const EventPtr event = NewEvent(GDK_KEY_PRESS, window);
  gdk_event_set_device(event.get(), gdk_seat_get_keyboard(SeatOf(window)));
  event->key.keyval = key;
  event->key.state = held;
  GdkKeymapKey* keys = nullptr;
  gint count = 0;
  GdkKeymap* keymap = gdk_keymap_get_for_display(gtk_widget_get_display(window));
  if (gdk_keymap_get_entries_for_keyval(keymap, key, &keys, &count)) {
    event->key.hardware_keycode = static_cast<guint16>(keys[0].keycode);
    g_free(keys);
  }
  gtk_main_do_event(event.get());
}

void CloseByManager(GtkWidget* window) {
  const EventPtr event = NewEvent(GDK_DELETE, window);
  gtk_main_do_event(event.get());
}

void SelectRow(GtkWidget* root, const std::string& path) {
  GtkTreeView* list = FirstList(root);
  ASSERT_NE(list, nullptr) << "no list";
  GtkTreePath* row = gtk_tree_path_new_from_string(path.c_str());
  gtk_tree_view_expand_to_path(list, row);
  gtk_tree_selection_select_path(gtk_tree_view_get_selection(list), row);
  gtk_tree_path_free(row);
}

void SelectText(GtkWidget* list, const std::string& text) {
  GtkTreePath* row = RowOf(list, text);
  if (row == nullptr) return;
  gtk_tree_selection_select_path(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)), row);
  gtk_tree_path_free(row);
}

void ActivateText(GtkWidget* list, const std::string& text) {
  GtkTreePath* row = RowOf(list, text);
  if (row == nullptr) return;
  gtk_tree_view_row_activated(GTK_TREE_VIEW(list), row,
                              gtk_tree_view_get_column(GTK_TREE_VIEW(list), 0));
  gtk_tree_path_free(row);
}

void ExpectUnusable(GtkWidget* list, const std::string& text, const std::string& reason) {
  GtkTreeView* view = GTK_TREE_VIEW(list);
  GtkTreePath* path = RowOf(list, text);
  if (path == nullptr) return;
  GtkTreeIter row;
  gtk_tree_model_get_iter(gtk_tree_view_get_model(view), &row, path);
  EXPECT_FALSE(IsRowSensitive(view, &row)) << text;
  EXPECT_EQ(RowTooltip(view, &row), reason) << text;
  GtkWidget* window = gtk_widget_get_toplevel(list);
  const std::string title = gtk_window_get_title(GTK_WINDOW(window));
  gtk_tree_selection_select_path(gtk_tree_view_get_selection(view), path);
  EXPECT_FALSE(gtk_tree_selection_path_is_selected(gtk_tree_view_get_selection(view), path));
  gtk_tree_path_free(path);
  ActivateText(list, text);
  EXPECT_EQ(FindWindow(title), window) << text;
}

std::vector<std::string> RowTexts(GtkWidget* list) {
  std::vector<std::string> texts;
  GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(list));
  GtkTreeIter row;
  for (gboolean more = gtk_tree_model_get_iter_first(model, &row); more;
       more = gtk_tree_model_iter_next(model, &row)) {
    texts.push_back(RowText(model, &row));
  }
  return texts;
}

void ChooseFirstFile(GtkWidget* chooser) {
  SelectRow(chooser, "0:0");
  SelectRow(FindWidget(chooser,
                       [skip = 1](GtkWidget* widget) mutable {
                         return GTK_IS_TREE_VIEW(widget) && skip-- == 0;
                       }),
            "0");
  PressButton(" 選択 ")(chooser);
}

guint32 PixelOf(GtkWidget* area, gint x, gint y) {
  FinishFrame(area);
  const PixbufPtr shot(gdk_pixbuf_get_from_window(gtk_widget_get_window(area), x, y, 1, 1));
  const guint8* pixel = gdk_pixbuf_read_pixels(shot.get());
  return static_cast<guint32>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}
