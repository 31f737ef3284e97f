// The pop-up menus of the canvas: opened by key, left in every way.
#include <gtest/gtest.h>

#include "app/Menus.h"
#include "app/Window.h"
#include "tests/window/PointerGrab.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

enum { ViewMenu, ItemMenu, AreaMenu, NoMenu };

class PopUpMenus : public WindowTest {
 protected:
  void SetUp() override {
    OpenWindow();
    IntPtrnData();
    const PTRNDATA box = BoxItem(100, 100, 160, 140, 1);
    AddPtrnData(&box);
    ShowLayout(400, 300, 2);
  }
  // Around the item.
  static void SpanArea() {
    Drag(80, 80, 200, 180);
    ASSERT_TRUE(gtk_widget_get_visible(PopupMenu[AreaMenu]));
    ASSERT_EQ(PtrnMode, ModeArea);
  }
  static void HoldItem() {
    Drag(115, 100, 115, 100);
    ASSERT_EQ(PtrnMode, ModeSelected);
  }
};

gint OpenMenu() {
  gint open = NoMenu;
  for (gint no = ViewMenu; no < NoMenu; no++) {
    if (gtk_widget_get_visible(PopupMenu[no])) {
      EXPECT_EQ(open, NoMenu) << "two are open";
      open = no;
    }
  }
  return open;
}

void Leave(gint menu) {
  gtk_menu_shell_cancel(GTK_MENU_SHELL(PopupMenu[menu]));
}

void RightPress(gint x, gint y) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_SECONDARY, x, y);
}

void Choose(gint menu, const std::string& label) {
  GtkWidget* entry = MenuEntry(PopupMenu[menu], {label});
  ASSERT_NE(entry, nullptr) << label;
  gtk_menu_shell_activate_item(GTK_MENU_SHELL(PopupMenu[menu]), entry, TRUE);
}

TEST_F(PopUpMenus, LeavingTheAreaMenuGivesTheAreaUp) {
  SpanArea();
  Leave(AreaMenu);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnFlag, 1);
  SendMotion(300, 250);
  EXPECT_EQ(gint{AreaPoint2.x}, 200);
  SendButton(GDK_BUTTON_RELEASE, GDK_BUTTON_PRIMARY, 300, 250);
  EXPECT_EQ(OpenMenu(), NoMenu);
}

TEST_F(PopUpMenus, AnAreaMenuTakenAwayGivesTheAreaUp) {
  SpanArea();
  gtk_menu_popdown(GTK_MENU(PopupMenu[AreaMenu]));
  EXPECT_TRUE(WaitFor([] { return PtrnMode == ModeIdle; }));
  SpanArea();
  gtk_menu_shell_deactivate(GTK_MENU_SHELL(PopupMenu[AreaMenu]));
  EXPECT_TRUE(WaitFor([] { return PtrnMode == ModeIdle; }));
  EXPECT_EQ(GetPtrnCount(), 1);
}

TEST_F(PopUpMenus, AnAreaMenuThatCannotOpenGivesTheAreaUp) {
  const PointerGrab other;
  ASSERT_TRUE(other.Holds());
  Drag(80, 80, 200, 180);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(PopUpMenus, TheAreaStandsWhileItsCommandAsks) {
  for (const gchar* command : {" 移動 ", " 複写 "}) {
    SpanArea();
    gint during = -1;
    const DialogAnswer answer(command == std::string(" 移動 ") ? "描画情報移動" : "描画情報複写",
                              [&](GtkWidget* dialog) {
                                during = PtrnMode;
                                PressButton(" 取消 ")(dialog);
                              });
    Choose(AreaMenu, command);
    EXPECT_EQ(during, ModeArea) << command;
    EXPECT_EQ(PtrnMode, ModeIdle) << command;
  }
}

TEST_F(PopUpMenus, AChoiceIsNotFollowedByGivingUp) {
  SpanArea();
  Choose(AreaMenu, " 削除 ");
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
  // Whatever still waited for the menu to be left must not take the next area away.
  PtrnMode = ModeArea;
  FinishFrame(PtrnDraw);
  EXPECT_EQ(PtrnMode, ModeArea);
}

TEST_F(PopUpMenus, ClosingTheWindowGivesTheAreaUp) {
  SpanArea();
  PtrnFlag = 2;
  gint during = -1;
  const DialogAnswer answer("レイアウトデータ保存確認", [&](GtkWidget* question) {
    during = PtrnMode;
    gtk_window_close(GTK_WINDOW(question));
  });
  EXPECT_EQ(Delete_Event(PtrnWnd, nullptr, nullptr), TRUE);
  EXPECT_EQ(during, ModeIdle);
  EXPECT_EQ(OpenMenu(), NoMenu);
}

TEST_F(PopUpMenus, TheWindowGoesWithAnOpenMenu) {
  SpanArea();
  gtk_widget_destroy(PtrnWnd);
  EXPECT_TRUE(WaitFor([] { return PtrnMode == ModeIdle; }));
  EXPECT_EQ(PopupMenu[AreaMenu], nullptr);
}

TEST_F(PopUpMenus, AViewMenuOpenedOverAnAreaGivesItUp) {
  SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, 80, 80);
  SendMotion(200, 180);
  RightPress(200, 180);
  ASSERT_EQ(OpenMenu(), ViewMenu);
  Leave(ViewMenu);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(PopUpMenus, LeavingTheOthersChangesNothing) {
  HoldItem();
  RightPress(115, 100);
  ASSERT_EQ(OpenMenu(), ItemMenu);
  Leave(ItemMenu);
  FinishFrame(PtrnDraw);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_EQ(PtrnType, TypeRectangle);
  ToolBoxButn(nullptr, GINT_TO_POINTER(2));
  RightPress(20, 20);
  ASSERT_EQ(OpenMenu(), ViewMenu);
  Leave(ViewMenu);
  FinishFrame(PtrnDraw);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(PtrnType, TypeRectangle);
}

TEST_F(PopUpMenus, TheKeysShownInThemWork) {
  SpanArea();
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(GetPtrnCount(), 1);
  for (const guint key : {GDK_KEY_Delete, GDK_KEY_KP_Delete}) {
    SpanArea();
    SendKey(key);
    EXPECT_EQ(OpenMenu(), NoMenu);
    EXPECT_EQ(PtrnMode, ModeIdle);
    EXPECT_EQ(GetPtrnCount(), 0);
    const PTRNDATA box = BoxItem(100, 100, 160, 140, 1);
    AddPtrnData(&box);
  }
  HoldItem();
  RightPress(115, 100);
  SendKey(GDK_KEY_Delete);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(GetPtrnCount(), 0);
  RightPress(20, 20);
  SendKey(GDK_KEY_g, GDK_CONTROL_MASK);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::GridShown]}, 1);
  RightPress(20, 20);
  SendKey(GDK_KEY_2, GDK_CONTROL_MASK);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::Zoom]}, 1);
}

// The next Escape does what the entry beside it says.
TEST_F(PopUpMenus, EscapeLeavesTheItemMenuAndTheItemInHand) {
  HoldItem();
  RightPress(115, 100);
  ASSERT_EQ(OpenMenu(), ItemMenu);
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(PtrnMode, ModeSelected);
  SendKey(GDK_KEY_Escape);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(PopUpMenus, TheKeysShownInASubmenuWorkThere) {
  RightPress(20, 20);
  GtkWidget* zoom =
      gtk_menu_item_get_submenu(GTK_MENU_ITEM(MenuEntry(PopupMenu[ViewMenu], {"ズーム"})));
  SendKey(GDK_KEY_Down);
  SendKey(GDK_KEY_Down);
  // By itself: GTK leaks what it notes for opening one that is gone into before it has opened.
  ASSERT_TRUE(WaitFor([zoom] { return gtk_widget_get_visible(zoom) != FALSE; }));
  SendKey(GDK_KEY_Right);
  SendKey(GDK_KEY_5, GDK_CONTROL_MASK);
  EXPECT_FALSE(gtk_widget_get_visible(zoom));
  EXPECT_EQ(OpenMenu(), NoMenu);
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::Zoom]}, 0);
}

TEST_F(PopUpMenus, AKeyOfAnEntryThatCannotBeUsedDoesNothing) {
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  Drag(200, 200, 260, 250);
  RightPress(220, 200);
  ASSERT_EQ(OpenMenu(), ItemMenu);
  SendKey(GDK_KEY_Delete);
  EXPECT_EQ(OpenMenu(), ItemMenu);
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_EQ(GetPtrnCount(), 1);
  Leave(ItemMenu);
}

constexpr struct {
  guint Key;
  GdkModifierType Held;
} MenuKeys[] = {{GDK_KEY_Menu, {}}, {GDK_KEY_F10, GDK_SHIFT_MASK}};

TEST_F(PopUpMenus, AKeyOpensTheOneOfTheState) {
  for (const auto& [key, held] : MenuKeys) {
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), ViewMenu);
    Leave(ViewMenu);
    // A type chosen, nothing begun.
    PtrnType = TypeLine;
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), ViewMenu);
    Leave(ViewMenu);
    PtrnType = 0;
    HoldItem();
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), ItemMenu);
    Leave(ItemMenu);
    EXPECT_EQ(PtrnMode, ModeSelected);
    ClearToolBox();
    PtrnMode = ModeArea;
    AreaPoint1 = {200, 180};
    AreaPoint2 = {80, 80};
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), AreaMenu);
    Leave(AreaMenu);
    EXPECT_EQ(PtrnMode, ModeIdle);
  }
}

TEST_F(PopUpMenus, OpenedByKeyTheyBeginAtTheirFirstEntry) {
  SendKey(GDK_KEY_Menu);
  ASSERT_EQ(OpenMenu(), ViewMenu);
  EXPECT_EQ(gtk_menu_shell_get_selected_item(GTK_MENU_SHELL(PopupMenu[ViewMenu])),
            MenuEntry(PopupMenu[ViewMenu], {"再表示"}));
  Leave(ViewMenu);
}

TEST_F(PopUpMenus, AKeyOpensNoneWhereNoneBelongs) {
  for (const auto& [key, held] : MenuKeys) {
    PtrnType = TypeLine;
    for (const gint mode : {ModeCreating, ModePicked, ModeDragging}) {
      PtrnMode = mode;
      SendKey(key, held);
      EXPECT_EQ(OpenMenu(), NoMenu) << mode;
    }
    PtrnType = 0;
    PtrnMode = ModeArea;
    AreaPoint1 = AreaPoint2 = {100, 100};
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), NoMenu);
    EXPECT_EQ(PtrnMode, ModeArea);
    PtrnMode = ModeIdle;
    PtrnFlag = 0;
    SendKey(key, held);
    EXPECT_EQ(OpenMenu(), NoMenu);
    PtrnFlag = 1;
  }
}

}  // namespace
