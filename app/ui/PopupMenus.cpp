#include <cstdlib>
#include <iterator>

#include "PtrnData.h"
#include "app/ui/AreaMenu.h"
#include "app/ui/Holders.h"
#include "app/ui/MenuRows.h"
#include "app/ui/PopupKeys.h"

namespace {

constexpr auto ZoomRows = ZoomRowsOf(PtrnZoom, PtrnZoom2);

constexpr MenuRow ViewRows[] = {
    Item("再表示", PtrnRedraw, 0, nullptr, "F5"),
    Separator,
    SubMenu("ズーム", ZoomRows),
    Check("方眼表示", PtrnGrid, 0, &DispMenu[3], "<Control>g"),
    Separator,
    Types(RowKind::GroupedTypes, PtrnSelct, PtrnSlct[1]),
};

constexpr MenuRow ItemRows[] = {
    Item(" 登録   ", ToolBoxButn, ButtonCode::Register, &ToolBoxMenu[ButtonCode::Register],
         nullptr),
    Item(" 削除   ", ToolBoxButn, ButtonCode::Delete, &ToolBoxMenu[ButtonCode::Delete], "Delete"),
    Item(" 取消   ", ToolBoxButn, ButtonCode::Cancel, &ToolBoxMenu[ButtonCode::Cancel], "Escape"),
    Separator,
    Item(" 複写   ", ToolBoxButn, ButtonCode::Copy, &ToolBoxMenu[ButtonCode::Copy], nullptr),
    Item(" 再表示 ", ToolBoxButn, ButtonCode::Redraw, &ToolBoxMenu[ButtonCode::Redraw], nullptr),
};

constexpr MenuRow AreaRows[] = {
    Item(" 取消 ", ChooseAreaCommand, AreaCode::Cancel, nullptr, "Escape"),
    Separator,
    Item(" 削除 ", ChooseAreaCommand, AreaCode::Delete, nullptr, "Delete"),
    Item(" 移動 ", ChooseAreaCommand, AreaCode::Move, nullptr),
    Item(" 複写 ", ChooseAreaCommand, AreaCode::Copy, nullptr),
};

constexpr std::span<const MenuRow> Menus[] = {ViewRows, ItemRows, AreaRows};

bool IsPress(const GdkEvent* event, guint button) {
  return event->type == GDK_BUTTON_PRESS && event->button.button == button;
}

gboolean Open(GtkWidget* menu, const GdkEvent* event) {
  gtk_menu_popup_at_pointer(GTK_MENU(menu), event);
  return TRUE;
}

bool ViewMenuBelongs() {
  return PtrnFlag != 0 && (PtrnType == 0 || PtrnMode == ModeIdle);
}

bool ItemMenuBelongs() {
  return PtrnFlag != 0 && PtrnType != 0 && PtrnMode == ModeSelected;
}

bool AreaExceedsGrid() {
  return std::llabs(gint64{AreaPoint1.x} - AreaPoint2.x) >
             GridDots(PtrnHedr.Parm2[ViewSlot::GridX]) &&
         std::llabs(gint64{AreaPoint1.y} - AreaPoint2.y) >
             GridDots(PtrnHedr.Parm2[ViewSlot::GridY]);
}

}  // namespace

void CreatePopupMenu(GtkWidget* canvas) {
  for (gsize i = 0; i < std::size(Menus); i++) {
    GtkWidget* menu = gtk_menu_new();
    KeepWidget(&PopupMenu[i], menu);
    GtkAccelGroup* keys = NewKeys(menu);
    BuildMenu(menu, Menus[i], keys);
    // Elsewhere the main menu and the window's own key handler act on them.
    UseKeysIn(menu, keys);
    GiveUpAreaWith(menu);
    gtk_menu_attach_to_widget(GTK_MENU(menu), canvas, nullptr);
  }
}

void LeavePopupMenus() {
  for (GtkWidget* menu : PopupMenu) {
    if (menu != nullptr && gtk_widget_get_visible(menu)) {
      gtk_menu_shell_cancel(GTK_MENU_SHELL(menu));
    }
  }
}

gboolean EventPopupMenu1(GtkWidget* menu, GdkEvent* event) {
  if (!IsPress(event, GDK_BUTTON_SECONDARY)) return FALSE;
  return ViewMenuBelongs() ? Open(menu, event) : FALSE;
}

gboolean EventPopupMenu2(GtkWidget* menu, GdkEvent* event) {
  if (!IsPress(event, GDK_BUTTON_SECONDARY)) return FALSE;
  return ItemMenuBelongs() ? Open(menu, event) : FALSE;
}

gboolean EventPopupMenu3(GtkWidget* menu, GdkEvent* event) {
  if (event->type != GDK_BUTTON_RELEASE || event->button.button != GDK_BUTTON_PRIMARY) return FALSE;
  if (PtrnFlag == 0 || PtrnMode != ModeArea) return FALSE;
  if (AreaExceedsGrid()) {
    Open(menu, event);
    if (gtk_widget_get_visible(menu)) return TRUE;
    // Another program holds the pointer.
    GiveUpArea();
    return FALSE;
  }
  PtrnMode = ModeIdle;
  DrawRequest(0);
  return FALSE;
}

GtkWidget* PopupMenuOfState() {
  if (PtrnFlag != 0 && PtrnMode == ModeArea) return AreaExceedsGrid() ? PopupMenu[2] : nullptr;
  if (ItemMenuBelongs()) return PopupMenu[1];
  return ViewMenuBelongs() ? PopupMenu[0] : nullptr;
}
