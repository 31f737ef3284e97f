#include <cstdlib>
#include <iterator>

#include "PtrnData.h"
#include "app/ui/AreaMenu.h"
#include "app/ui/Holders.h"
#include "app/ui/MenuRows.h"
#include "app/ui/PopupKeys.h"

namespace {
constexpr MenuRow ZoomRows[] = {
    Check("500%", PtrnZoom, 0, &PtrnZoom2[0], "<Control>5"),
    Check("200%", PtrnZoom, 1, &PtrnZoom2[1], "<Control>2"),
    Check("100%", PtrnZoom, 2, &PtrnZoom2[2], "<Control>1"),
    Check(" 75%", PtrnZoom, 3, &PtrnZoom2[3], "<Control>7"),
    Check(" 50%", PtrnZoom, 4, &PtrnZoom2[4], "<Control>0"),
};

constexpr MenuRow ViewRows[] = {
    Item("再表示", PtrnRedraw, 0, nullptr, "F5"),
    Separator,
    SubMenu("ズーム", ZoomRows),
    Check("方眼表示", PtrnGrid, 0, &DispMenu[3], "<Control>g"),
    Separator,
    Types(RowKind::GroupedTypes, PtrnSelct, PtrnSlct[1]),
};

constexpr MenuRow ItemRows[] = {
    Item(" 登録   ", ToolBoxButn, 0, &ToolBoxMenu[0], nullptr),
    Item(" 削除   ", ToolBoxButn, 1, &ToolBoxMenu[1], "Delete"),
    Item(" 取消   ", ToolBoxButn, 2, &ToolBoxMenu[2], "Escape"),
    Separator,
    Item(" 複写   ", ToolBoxButn, 3, &ToolBoxMenu[3], nullptr),
    Item(" 再表示 ", ToolBoxButn, 4, &ToolBoxMenu[4], nullptr),
};

constexpr MenuRow AreaRows[] = {
    Item(" 取消 ", ChooseAreaCommand, 0, nullptr, "Escape"),
    Separator,
    Item(" 削除 ", ChooseAreaCommand, 1, nullptr, "Delete"),
    Item(" 移動 ", ChooseAreaCommand, 2, nullptr),
    Item(" 複写 ", ChooseAreaCommand, 3, nullptr),
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
  for (GtkWidget* menu : PopupMenu)
    if (menu != nullptr && gtk_widget_get_visible(menu))
      gtk_menu_shell_cancel(GTK_MENU_SHELL(menu));
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
