// The tool box as a window: opening, closing, buttons, read-outs and the place it remembers.
#include <gtest/gtest.h>

#include <string>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "dialogs/ToolBox.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/ServerGrab.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr gint LastType = 15;

bool Opens(gint type) {
  Dlg_ToolBox(PtrnWnd, type);
  return WaitFor([] { return ToolBox != nullptr && gtk_widget_get_mapped(ToolBox); });
}

gint ToplevelCount() {
  GList* windows = gtk_window_list_toplevels();
  const auto count = static_cast<gint>(g_list_length(windows));
  g_list_free(windows);
  return count;
}

POINT PositionOf(GtkWidget* window) {
  POINT place;
  gtk_window_get_position(GTK_WINDOW(window), &place.x, &place.y);
  return place;
}

// Whether the panel comes to stand there, which the window manager tells it later.
bool StandsAt(const POINT& place) {
  return WaitFor([&] {
    SaveToolBox();
    const POINT kept = ToolBox_PointData[ToolBox_Type - 1];
    const POINT now = PositionOf(ToolBox);
    return kept.x == place.x && kept.y == place.y && now.x == place.x && now.y == place.y;
  });
}

bool MovesTo(const POINT& place) {
  // A move before the window manager has placed the panel would be lost.
  const bool placed = WaitFor([] {
    SaveToolBox();
    return ToolBox_PointData[ToolBox_Type - 1].x != 0;
  });
  gtk_window_move(GTK_WINDOW(ToolBox), place.x, place.y);
  return placed && StandsAt(place);
}

// Whether the window manager's frame comes to stand in the screen's corner, the panel in it.
bool FrameStandsInCorner() {
  return WaitFor([] {
    GdkRectangle frame;
    POINT origin;
    GdkWindow* window = gtk_widget_get_window(ToolBox);
    gdk_window_get_frame_extents(window, &frame);
    gdk_window_get_origin(window, &origin.x, &origin.y);
    return frame.x == 0 && frame.y == 0 && origin.y > 0;
  });
}

// Tells the panel that it stands where it does.
void TellOrigin() {
  POINT origin;
  gdk_window_get_origin(gtk_widget_get_window(ToolBox), &origin.x, &origin.y);
  GdkEvent* told = gdk_event_new(GDK_CONFIGURE);
  told->configure.x = origin.x;
  told->configure.y = origin.y;
  gboolean handled = FALSE;
  g_signal_emit_by_name(ToolBox, "configure-event", told, &handled);
  gdk_event_free(told);
}

void GiveKeyboard(GtkWidget* control) {
  gtk_window_present(GTK_WINDOW(ToolBox));
  ASSERT_TRUE(WaitFor([] { return gtk_window_is_active(GTK_WINDOW(ToolBox)) != FALSE; }));
  gtk_widget_grab_focus(control);
}

}  // namespace

class ToolBoxWindow : public WindowTest {
 protected:
  ToolBoxWindow() {
    WriteProfile("");
    OpenWindow();
    // The first panel forgets every place.
    ToolBox_PointFlag = 0;
  }
  // A new item with its panel, ready to be registered.
  static void TakeInHand(const PTRNDATA& item) {
    PtrnData = item;
    PtrnNo = -1;
    PtrnType = item.Type;
    PtrnMode = ModeSelected;
    ASSERT_TRUE(Opens(item.Type));
    SetMenuActive2(1 | 4 | 16);
  }
};

TEST_F(ToolBoxWindow, TypeZeroClosesThePanel) {
  ASSERT_TRUE(Opens(2));
  Dlg_ToolBox(PtrnWnd, 0);
  EXPECT_EQ(ToolBox, nullptr);
  EXPECT_EQ(ToolBox_Type, 0);
}

TEST_F(ToolBoxWindow, UnknownTypesShowNothing) {
  for (const gint type : {-1, 16, 2147483647}) {
    Dlg_ToolBox(PtrnWnd, type);
    EXPECT_EQ(ToolBox, nullptr);
  }
}

TEST_F(ToolBoxWindow, StandsAboveTheMainWindowAndLeavesItUsable) {
  ASSERT_TRUE(Opens(2));
  EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(ToolBox)), GTK_WINDOW(PtrnWnd));
  EXPECT_FALSE(gtk_window_get_modal(GTK_WINDOW(ToolBox)));
  EXPECT_FALSE(gtk_window_get_resizable(GTK_WINDOW(ToolBox)));
  EXPECT_EQ(gtk_grab_get_current(), nullptr);
}

TEST_F(ToolBoxWindow, OnlyRedisplayIsSensitiveAtFirst) {
  ASSERT_TRUE(Opens(3));
  for (gint code = 0; code < 5; code++) {
    EXPECT_EQ(gtk_widget_get_sensitive(ToolBoxButton[code]), code == 4) << code;
  }
}

TEST_F(ToolBoxWindow, ButtonsStandInTheirOrder) {
  ASSERT_TRUE(Opens(3));
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_allocated_width(ToolBoxButton[4]) > 1; }));
  const struct {
    gint Code;
    const gchar* Label;
  } expected[] = {{0, " 登録 "}, {1, " 削除 "}, {2, " 取消 "}, {3, " 複写 "}, {4, " 再表示 "}};
  gint left = -1;
  for (const auto& button : expected) {
    GtkAllocation place;
    gtk_widget_get_allocation(ToolBoxButton[button.Code], &place);
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(ToolBoxButton[button.Code])), button.Label);
    EXPECT_GT(place.x, left) << button.Label;
    left = place.x;
  }
}

TEST_F(ToolBoxWindow, BitsMakeButtonsSensitive) {
  ASSERT_TRUE(Opens(3));
  for (gint mode = 0; mode < 32; mode++) {
    SetToolBoxButton(mode);
    for (gint code = 0; code < 5; code++) {
      EXPECT_EQ(gtk_widget_get_sensitive(ToolBoxButton[code]), (mode & 1 << code) != 0)
          << "mode " << mode << ", code " << code;
    }
  }
}

TEST_F(ToolBoxWindow, WithoutAPanelNothingHappens) {
  SetToolBoxButton(0x1f);
  SetToolBoxPoint();
  SaveToolBox();
  EXPECT_EQ(ToolBox, nullptr);
}

TEST_F(ToolBoxWindow, ReadOutsFollowThePoints) {
  PtrnData.Point1 = {12, 345};
  PtrnData.Point2 = {6789, -1};
  ASSERT_TRUE(Opens(2));
  EXPECT_EQ(LabelText(ToolBox_Label1), "   12 /   345");
  EXPECT_EQ(LabelText(ToolBox_Label2), " 6789 /    -1");
  PtrnData.Point1 = {1, 2};
  SetToolBoxPoint();
  EXPECT_EQ(LabelText(ToolBox_Label1), "    1 /     2");
}

TEST_F(ToolBoxWindow, MovingFiguresLeaveTheRestOfThePanelAsItIs) {
  PtrnData.Point1 = {12, 345};
  ASSERT_TRUE(Opens(2));
  FinishFrame(ToolBox);
  gint layouts = 0;
  g_signal_connect(
      gtk_widget_get_ancestor(ToolBox_Label1, GTK_TYPE_GRID), "size-allocate",
      G_CALLBACK(+[](GtkWidget*, GdkRectangle*, gpointer count) { ++*static_cast<gint*>(count); }),
      &layouts);
  PtrnData.Point1 = {9999, -999};
  SetToolBoxPoint();
  FinishFrame(ToolBox);
  EXPECT_EQ(layouts, 0);
  EXPECT_EQ(LabelText(ToolBox_Label1), " 9999 /  -999");
  // More figures than ever need other room.
  PtrnData.Point1 = {-1234567, 7654321};
  SetToolBoxPoint();
  EXPECT_TRUE(WaitFor([&] { return layouts > 0; }));
}

// Points snap to the half of a grid of 40 dots.
TEST_F(ToolBoxWindow, ReadOutsShowWhatWasRegistered) {
  ShowLayout(320, 240, 2);
  PtrnHedr.Parm2[2] = PtrnHedr.Parm2[3] = 11;
  TakeInHand(BoxItem(13, 27, 155, 118, 8));
  EXPECT_EQ(LabelText(ToolBox_Label1), "   13 /    27");
  gtk_button_clicked(GTK_BUTTON(ToolBoxButton[0]));
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(LabelText(ToolBox_Label1), "   20 /    20");
  EXPECT_EQ(LabelText(ToolBox_Label2), "  160 /   120");
}

TEST_F(ToolBoxWindow, TicksShowWhatIsHeldOnceRegistered) {
  const TempFolder project;
  CopyText(ProjPath, project.Path());
  ShowLayout(320, 240, 2);
  PTRNDATA item{};
  item.Type = TypeFixedString;
  CopyText(item.Text1, "abc");
  TakeInHand(item);
  const auto tick = [](const gchar* label) { return GTK_TOGGLE_BUTTON(FindLabel(ToolBox, label)); };
  for (const gchar* label : {"文字列一覧へ登録", "次回からの初期値として保存", "後で設定"}) {
    gtk_button_clicked(GTK_BUTTON(tick(label)));
  }
  EXPECT_EQ(gint{PtrnData.RegstFlag}, 1);
  // Refused, it keeps what it holds.
  CopyText(PtrnData.Text1, "");
  {
    const DialogAnswer refusal("入力エラー", CloseByManager);
    ToolBoxButn(nullptr, GINT_TO_POINTER(0));
  }
  EXPECT_TRUE(gtk_toggle_button_get_active(tick("文字列一覧へ登録")));
  CopyText(PtrnData.Text1, "abc");
  ToolBoxButn(nullptr, GINT_TO_POINTER(0));
  EXPECT_FALSE(gtk_toggle_button_get_active(tick("文字列一覧へ登録")));
  EXPECT_FALSE(gtk_toggle_button_get_active(tick("次回からの初期値として保存")));
  EXPECT_TRUE(gtk_toggle_button_get_active(tick("後で設定")));
  EXPECT_EQ(gint{PtrnData.UndfFlag}, 1);
  // Shown once more, the switch works as before.
  gtk_button_clicked(GTK_BUTTON(tick("文字列一覧へ登録")));
  EXPECT_EQ(gint{PtrnData.RegstFlag}, 1);
  ProjPath[0] = '\0';
}

// A flag of another number shows as not set and is kept.
TEST_F(ToolBoxWindow, ShowingTheTicksChangesNothing) {
  ShowLayout(320, 240, 2);
  TakeInHand(BoxItem(13, 27, 155, 118, 8));
  PtrnData.UndfFlag = 2;
  SetToolBoxButton(16);
  EXPECT_EQ(gint{PtrnData.UndfFlag}, 2);
  PtrnData.UndfFlag = 1;
  SetToolBoxButton(16);
  PtrnData.UndfFlag = 2;
  SetToolBoxButton(16);
  EXPECT_FALSE(gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(FindLabel(ToolBox, "後で設定"))));
  EXPECT_EQ(gint{PtrnData.UndfFlag}, 2);
}

TEST_F(ToolBoxWindow, ReturnInAnEntryRegisters) {
  ShowLayout(320, 240, 2);
  TakeInHand(BoxItem(20, 20, 160, 120, 8));
  GtkWidget* code = ControlAt(FindGrid(ToolBox), 10, 1, GTK_TYPE_ENTRY);
  GiveKeyboard(code);
  Type(code, "abc");
  PressKey(ToolBox, GDK_KEY_Return);
  // A button that a key presses is seen to go down first.
  ASSERT_TRUE(WaitFor([] { return GetPtrnCount() == 1; }));
  PTRNDATA stored;
  GetPtrnData(0, &stored);
  EXPECT_STREQ(stored.ID_Code, "abc");
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_FALSE(gtk_widget_get_sensitive(ToolBoxButton[0]));
}

TEST_F(ToolBoxWindow, ReturnInANumberRegistersWhatWasTyped) {
  ShowLayout(320, 240, 2);
  TakeInHand(BoxItem(20, 20, 160, 120, 8));
  GtkWidget* width = ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_SPIN_BUTTON);
  GiveKeyboard(width);
  gtk_editable_delete_text(GTK_EDITABLE(width), 0, -1);
  Type(width, "7");
  PressKey(ToolBox, GDK_KEY_Return);
  // A button that a key presses is seen to go down first.
  ASSERT_TRUE(WaitFor([] { return GetPtrnCount() == 1; }));
  PTRNDATA stored;
  GetPtrnData(0, &stored);
  EXPECT_EQ(+stored.Parm[ShapeSlot::Width], 7);
}

TEST_F(ToolBoxWindow, OnlyTypesWithTwoPointsShowTheirEnd) {
  const std::string onePoint = ".....678.ab....";  // fixed, variable, numeric, radio, check
  for (gint type = 1; type <= LastType; type++) {
    ASSERT_TRUE(Opens(type));
    const bool two = onePoint[static_cast<gsize>(type - 1)] == '.';
    EXPECT_EQ(ToolBox_Label2 != nullptr, two) << "type " << type;
    EXPECT_EQ(FindLabel(ToolBox, "始点") != nullptr, two) << "type " << type;
    EXPECT_EQ(FindLabel(ToolBox, "終点") != nullptr, two) << "type " << type;
    EXPECT_EQ(FindLabel(ToolBox, "位置") != nullptr, !two) << "type " << type;
  }
}

TEST_F(ToolBoxWindow, TheWindowManagersCloseGivesTheEditUp) {
  PtrnType = 2;
  PtrnMode = ModeCreating;
  ASSERT_TRUE(Opens(2));
  ASSERT_TRUE(MovesTo({211, 133}));
  CloseByManager(ToolBox);
  EXPECT_EQ(ToolBox, nullptr);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_EQ(ToolBox_PointData[1].x, 211);
  EXPECT_EQ(ToolBox_PointData[1].y, 133);
}

TEST_F(ToolBoxWindow, EscapeClosesAsTheWindowManagerDoes) {
  PtrnType = 2;
  PtrnMode = ModeCreating;
  ASSERT_TRUE(Opens(2));
  PressKey(ToolBox, GDK_KEY_Escape);
  EXPECT_EQ(ToolBox, nullptr);
  EXPECT_EQ(PtrnMode, ModeIdle);
}

TEST_F(ToolBoxWindow, AMovedPanelOpensAgainWhereItStood) {
  ASSERT_TRUE(Opens(4));
  ASSERT_TRUE(MovesTo({321, 234}));
  // Often enough for the frame around the window to show, were it taken for the window.
  for (gint round = 0; round < 10; round++) {
    // Panels that are replaced before they have been placed change nothing.
    Dlg_ToolBox(PtrnWnd, 4);
    ASSERT_TRUE(Opens(4));
    EXPECT_TRUE(StandsAt({321, 234}))
        << "round " << round << ": " << PositionOf(ToolBox).x << ", " << PositionOf(ToolBox).y;
  }
}

TEST_F(ToolBoxWindow, APanelThatIsNotYetOnTheScreenChangesNoPlace) {
  constexpr gint Type = 4;
  constexpr POINT Before{777, 77};
  const auto kept = [] { return ToolBox_PointData[Type - 1]; };
  {
    const ServerGrab unframed;
    Dlg_ToolBox(PtrnWnd, Type);
    TellOrigin();
    ToolBox_PointData[Type - 1] = Before;
    SaveToolBox();
  }
  EXPECT_EQ(kept().x, Before.x);
  EXPECT_EQ(kept().y, Before.y);
  EXPECT_TRUE(WaitFor([&] {
    SaveToolBox();
    return kept().x != Before.x && kept().y != Before.y;
  }));
}

TEST_F(ToolBoxWindow, APanelParkedInTheCornerOpensAgainThere) {
  ASSERT_TRUE(Opens(4));
  ASSERT_TRUE(MovesTo({0, 0}));
  ASSERT_TRUE(FrameStandsInCorner());
  for (gint round = 0; round < 3; round++) {
    Dlg_ToolBox(PtrnWnd, 4);
    ASSERT_TRUE(Opens(4));
    EXPECT_TRUE(FrameStandsInCorner()) << round;
  }
  // Elsewhere and forgotten, it opens in the middle again.
  gtk_window_move(GTK_WINDOW(ToolBox), 100, 150);
  ASSERT_TRUE(StandsAt({100, 150}));
  Dlg_ToolBox(PtrnWnd, 0);
  ToolBox_PointData[3] = {0, 0};
  ASSERT_TRUE(Opens(4));
  EXPECT_TRUE(WaitFor([] { return PositionOf(ToolBox).x > 400; }));
}

TEST_F(ToolBoxWindow, APanelParkedInTheCornerIsForgottenWithAllPlaces) {
  ASSERT_TRUE(Opens(4));
  ASSERT_TRUE(MovesTo({0, 0}));
  ASSERT_TRUE(FrameStandsInCorner());
  Dlg_ToolBox(PtrnWnd, 0);
  ToolBox_PointFlag = 0;
  ASSERT_TRUE(Opens(4));
  EXPECT_TRUE(WaitFor([] { return PositionOf(ToolBox).x > 400; }));
}

TEST_F(ToolBoxWindow, APanelThatIsNotYetOnTheScreenIsNotParkedInTheCorner) {
  {
    const ServerGrab unframed;
    Dlg_ToolBox(PtrnWnd, 4);
    gdk_window_move(gtk_widget_get_window(ToolBox), 0, 0);
    TellOrigin();
    Dlg_ToolBox(PtrnWnd, 0);
  }
  ASSERT_TRUE(Opens(4));
  EXPECT_TRUE(WaitFor([] { return PositionOf(ToolBox).x > 400; }));
}

TEST_F(ToolBoxWindow, EachTypeHasAPlaceOfItsOwn) {
  ASSERT_TRUE(Opens(4));
  ASSERT_TRUE(MovesTo({100, 150}));
  ASSERT_TRUE(Opens(15));
  EXPECT_TRUE(WaitFor([] { return PositionOf(ToolBox).x > 400; }));
  ASSERT_TRUE(MovesTo({700, 90}));
  ASSERT_TRUE(Opens(4));
  EXPECT_TRUE(StandsAt({100, 150}));
  ASSERT_TRUE(Opens(15));
  EXPECT_TRUE(StandsAt({700, 90}));
}

TEST_F(ToolBoxWindow, HundredsOfPanelsLeaveNothingBehind) {
  ASSERT_TRUE(Opens(1));
  const gint windows = ToplevelCount();
  const gint depth = g_main_depth();
  static gint alive;
  alive = 0;
  for (gint round = 0; round < 300; round++) {
    Dlg_ToolBox(PtrnWnd, round % LastType + 1);
    ASSERT_NE(ToolBox, nullptr);
    alive++;
    g_object_weak_ref(
        G_OBJECT(ToolBox), [](gpointer, GObject*) { alive--; }, nullptr);
    if (round % 100 == 0) {
      while (gtk_events_pending()) gtk_main_iteration();
    }
  }
  EXPECT_TRUE(WaitFor([] { return alive == 1; })) << alive << " panels are left";
  EXPECT_EQ(ToplevelCount(), windows);
  EXPECT_EQ(g_main_depth(), depth);
}

TEST_F(ToolBoxWindow, CursorKeysAreBitsOfTheItem) {
  for (const gint type : {7, 8}) {
    PtrnData = {};
    PtrnData.Parm[27] = 0b1001;
    ASSERT_TRUE(Opens(type));
    EXPECT_EQ(CusrUp, 1);
    EXPECT_EQ(CusrDown, 0);
    EXPECT_EQ(CusrLeft, 0);
    EXPECT_EQ(CusrRight, 1);
    GtkWidget* left = FindLabel(ToolBox, "←");
    ASSERT_NE(left, nullptr);
    EXPECT_FALSE(gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(left)));
    gtk_button_clicked(GTK_BUTTON(left));
    gtk_button_clicked(GTK_BUTTON(FindLabel(ToolBox, "↑")));
    SetToolBoxCursor();
    EXPECT_EQ(PtrnData.Parm[27], 0b1100);
  }
}
