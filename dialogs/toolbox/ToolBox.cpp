// The tool box window: opening, closing, its buttons and the place it remembers.
#include "dialogs/ToolBox.h"

#include <optional>

#include "dialogs/ToolBoxWindow.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/frame/ScreenRoom.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/LatePress.h"
#include "dialogs/toolbox/ToolBoxPage.h"
#include "layout/Commit.h"
#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"

gint ToolBox_Type = 0;
gint ToolBox_PointFlag = 0;
POINT ToolBox_PointData[ItemTypeCount];
GtkWidget* ToolBoxButton[5];

namespace {

// In the order they are made. Those packed from the right come outermost first.
constexpr struct {
  const gchar* Label;
  gint Code;
  gint Start;
} Buttons[] = {{" 登録 ", ButtonCode::Register, 1},
               {" 削除 ", ButtonCode::Delete, 1},
               {" 取消 ", ButtonCode::Cancel, 1},
               {" 再表示 ", ButtonCode::Redraw, 0},
               {" 複写 ", ButtonCode::Copy, 0}};

// Whether (0, 0) is where the panel of each type stood, not that it stood nowhere yet.
bool IsParkedInCorner[ItemTypeCount];

// Origin that the window manager told the panel last; nothing until it has told one.
std::optional<POINT> ToldOrigin;
// Whether the panel is on the screen: a window manager shows a window once it has framed it.
bool IsOnScreen = false;

gboolean ToolBox_Configure(GtkWidget* /*widget*/, const GdkEventConfigure* event,
                           gpointer /*data*/) {
  ToldOrigin = POINT{event->x, event->y};
  return FALSE;
}

gboolean ToolBox_Map(GtkWidget* /*widget*/, GdkEvent* /*event*/, gpointer /*data*/) {
  IsOnScreen = true;
  return FALSE;
}

// While the window manager puts its frame around a new panel, the panel is anywhere, and may be
// told so: at the screen's corner first, which would read as a place to be chosen anew.
bool IsPlaced(GtkWidget* window) {
  POINT origin;
  gdk_window_get_origin(gtk_widget_get_window(window), &origin.x, &origin.y);
  return IsOnScreen && ToldOrigin && ToldOrigin->x == origin.x && ToldOrigin->y == origin.y;
}

// The window manager's close gives the edit up; the items stay as stored.
gboolean ToolBox_Delete(GtkWidget* /*widget*/, GdkEvent* /*event*/, gpointer /*data*/) {
  PtrnType = 0;
  PtrnMode = ModeIdle;
  SaveToolBox();
  SetMenuActive1();
  SetCursor(0);
  DrawRequest(0);
  return FALSE;
}

void ToolBox_Destroy(GtkWidget* window, gpointer /*data*/) {
  if (ToolBox == window) ToolBox = nullptr;
}

bool IsCorner(const POINT& place) {
  return place.x == 0 && place.y == 0;
}

void PlaceToolBox(GtkWidget* window, gint type) {
  const POINT& remembered = ToolBox_PointData[type - 1];
  FitToScreen(window);
  if (IsCorner(remembered) && !IsParkedInCorner[type - 1]) {
    gtk_window_set_position(GTK_WINDOW(window), GTK_WIN_POS_CENTER);
    return;
  }
  const POINT place = PlaceOnScreen(window, remembered);
  gtk_window_move(GTK_WINDOW(window), place.x, place.y);
}

bool IsUndo(const GdkEventKey* event) {
  return gdk_keyval_to_lower(event->keyval) == GDK_KEY_z &&
         (event->state & gtk_accelerator_get_default_mod_mask()) == GDK_CONTROL_MASK;
}

// What is typed into an entry is for its text and its input method, and only what they leave is for
// the menu. Undo they leave, too, but whoever types it there does not mean the layout.
gboolean ToolBox_Key(GtkWidget* panel, GdkEventKey* event, gpointer /*data*/) {
  GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(panel));
  if (!GTK_IS_EDITABLE(focus)) return FALSE;
  if (gtk_window_propagate_key_event(GTK_WINDOW(panel), event)) return TRUE;
  if (!IsUndo(event)) return FALSE;
  gtk_widget_error_bell(focus);
  return TRUE;
}

// The menu's keys work in the panel as in the window that it belongs to. Opening leaves the
// keyboard with the canvas, where Delete and Escape act on the item just picked.
void ShareKeyboard(GtkWindow* panel, GtkWidget* parent) {
  gtk_window_set_focus_on_map(panel, FALSE);
  g_signal_connect(panel, "key-press-event", G_CALLBACK(ToolBox_Key), nullptr);
  if (parent == nullptr) return;
  for (GSList* keys = gtk_accel_groups_from_object(G_OBJECT(parent)); keys != nullptr;
       keys = keys->next) {
    gtk_window_add_accel_group(panel, GTK_ACCEL_GROUP(keys->data));
  }
}

}  // namespace

GtkWidget* ToolBox_Button(GtkWidget* box, const gchar* label, gint no, gint start) {
  GtkWidget* button = NewButton(label);
  g_signal_connect(button, "clicked", G_CALLBACK(ToolBoxButn), GINT_TO_POINTER(no));
  if (start != 0) {
    gtk_box_pack_start(GTK_BOX(box), button, FALSE, FALSE, 0);
  } else {
    gtk_box_pack_end(GTK_BOX(box), button, FALSE, FALSE, 0);
  }
  gtk_widget_set_sensitive(button, no == ButtonCode::Redraw);
  gtk_widget_show(button);
  KeepWidget(&ToolBoxButton[no], button);
  return button;
}

void Dlg_ToolBox(GtkWidget* parent, gint type) {
  if (ToolBox_PointFlag == 0) {
    for (POINT& place : ToolBox_PointData) place = {0, 0};
    for (bool& parked : IsParkedInCorner) parked = false;
    ToolBox_PointFlag = 1;
  }
  if (ToolBox != nullptr) {
    SaveToolBox();
    gtk_widget_destroy(ToolBox);
    ToolBox = nullptr;
  }
  ToolBox_Type = type;
  // Outline and handles belong to the panel's item: they change with it.
  DrawRequest(0);
  if (!IsItemType(type)) return;
  if (ItemTypeOf(type).HasCursorKeys) GetToolBoxCursor();

  const DialogWindow dialog = NewDialogWindow("");
  ToolBox = dialog.Window;
  SetToolBoxContent(dialog.Window, dialog.Content);
  gtk_window_set_resizable(GTK_WINDOW(dialog.Window), FALSE);
  ToldOrigin.reset();
  IsOnScreen = false;
  g_signal_connect(dialog.Window, "map-event", G_CALLBACK(ToolBox_Map), nullptr);
  g_signal_connect(dialog.Window, "configure-event", G_CALLBACK(ToolBox_Configure), nullptr);
  g_signal_connect(dialog.Window, "delete-event", G_CALLBACK(ToolBox_Delete), nullptr);
  g_signal_connect(dialog.Window, "destroy", G_CALLBACK(ToolBox_Destroy), nullptr);
  BuildToolBoxPage(dialog.Window, type);
  for (const auto& button : Buttons) {
    ToolBox_Button(dialog.Actions, button.Label, button.Code, button.Start);
  }
  SetDefaultButton(ToolBoxButton[ButtonCode::Register]);
  SetDialogParent(dialog.Window, parent);
  ShareKeyboard(GTK_WINDOW(dialog.Window), parent);
  PlaceToolBox(dialog.Window, type);
  gtk_widget_show(dialog.Window);
}

void SaveToolBox() {
  if (ToolBox == nullptr || gtk_widget_get_window(ToolBox) == nullptr) return;
  if (!IsItemType(ToolBox_Type) || !IsPlaced(ToolBox)) return;
  POINT& place = ToolBox_PointData[ToolBox_Type - 1];
  gtk_window_get_position(GTK_WINDOW(ToolBox), &place.x, &place.y);
  IsParkedInCorner[ToolBox_Type - 1] = IsCorner(place);
}

void SetToolBoxButton(gint mode) {
  if (ToolBox == nullptr) return;
  for (gint code = 0; code < 5; ++code) {
    if (ToolBoxButton[code] != nullptr) {
      gtk_widget_set_sensitive(ToolBoxButton[code], (mode >> code & 1) != 0);
    }
  }
  // The buttons change with the state of the item in hand. What registering moved onto the grid or
  // took as done is shown as it is held now.
  SetToolBoxPoint();
  ShowChecks(ToolBox);
}
