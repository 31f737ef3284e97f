#include <gtest/gtest.h>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "dialogs/ToolBox.h"
#include "tests/road/RoadTest.h"
#include "tests/window/LowScreen.h"

namespace {

// The tool box as the user meets it: a window to be pushed aside that tells of the item in hand.
class ToolBoxPanel : public RoadTest {};

void Open(const std::string& type) {
  ChooseMenu(MenuBar(), {"編集", type});
  EXPECT_NE(SeeWindow(type), nullptr) << type;
}

POINT Origin() {
  POINT at{0, 0};
  gdk_window_get_origin(gtk_widget_get_window(ToolBox), &at.x, &at.y);
  return at;
}

testing::AssertionResult StandsAt(const POINT& place) {
  const bool there =
      See([&] { return ToolBox != nullptr && Origin().x == place.x && Origin().y == place.y; });
  if (there) return testing::AssertionSuccess();
  const POINT at = Look([] { return ToolBox != nullptr ? Origin() : POINT{-1, -1}; });
  return testing::AssertionFailure()
         << "at " << at.x << ", " << at.y << ", not " << place.x << ", " << place.y;
}

bool Shows(GtkWidget** label, const std::string& text) {
  return See([&] { return *label != nullptr && text == gtk_label_get_text(GTK_LABEL(*label)); });
}

// Which buttons of the panel can be used, for register, delete, cancel, copy, redraw.
std::string Usable() {
  return Look([] {
    std::string states;
    for (GtkWidget* button : ToolBoxButton) {
      states += button != nullptr && gtk_widget_get_sensitive(button) ? '1' : '0';
    }
    return states;
  });
}

TEST_F(ToolBoxPanel, APanelDraggedAwayOpensAgainThere) {
  Play([this] {
    NewLayout(640, 480);
    Open("矩形");
    DragByTitle(Look([] { return ToolBox; }), -140, 60);
    const POINT rectangle = Look(Origin);
    Open("ボタン");
    DragByTitle(Look([] { return ToolBox; }), -230, -70);
    const POINT button = Look(Origin);
    for (gint round = 0; round < 3; round++) {
      Open("矩形");
      EXPECT_TRUE(StandsAt(rectangle)) << round;
      Open("ボタン");
      EXPECT_TRUE(StandsAt(button)) << round;
    }
    // Picking an item of the type opens the panel there, too, and so does closing it in between.
    Open("矩形");
    DragOnCanvas(40, 40, 120, 80);
    Panel("矩形").Press(" 登録 ");
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    PressKey(GDK_KEY_F5);
    EXPECT_TRUE(See([] { return ToolBox == nullptr; }));
    ClickCanvas(60, 40);
    EXPECT_TRUE(StandsAt(rectangle));
  });
}

TEST_F(ToolBoxPanel, ReadOutsFollowThePointer) {
  Play([this] {
    NewLayout(640, 480);
    Open("矩形");
    PointAt(PtrnDraw, 123, 45);
    EXPECT_TRUE(Shows(&ToolBox_Label1, "  123 /    45"));
    EXPECT_TRUE(Shows(&ToolBox_Label2, "  123 /    45"));
    ButtonDown(LeftButton);
    DragTo(PtrnDraw, 301, 200);
    EXPECT_TRUE(Shows(&ToolBox_Label1, "  123 /    45"));
    EXPECT_TRUE(Shows(&ToolBox_Label2, "  301 /   200"));
    ButtonUp(LeftButton);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    // A handle, then the body.
    DragOnCanvas(301, 200, 331, 190);
    EXPECT_TRUE(Shows(&ToolBox_Label2, "  331 /   190"));
    DragOnCanvas(150, 45, 160, 75);
    EXPECT_TRUE(Shows(&ToolBox_Label1, "  133 /    75"));
    EXPECT_TRUE(Shows(&ToolBox_Label2, "  341 /   220"));
    PressKey(GDK_KEY_F5);
    ChooseMenu(MenuBar(), {"表示", "ズーム", "200%"});
    Open("固定文字列");
    PointAt(PtrnDraw, 301, 200);
    EXPECT_TRUE(Shows(&ToolBox_Label1, "  150 /   100"));
    EXPECT_EQ(Look([] { return ToolBox_Label2; }), nullptr);
  });
}

TEST_F(ToolBoxPanel, ArrowKeysMoveTheItemInHand) {
  Play([this] {
    NewLayout(640, 480);
    PressKey(GDK_KEY_Right);  // there is nothing to be moved
    Look([] {
      const PTRNDATA box = BoxItem(40, 40, 120, 80, 8);
      AddPtrnData(&box);
      DrawRequest(1);
    });
    ClickCanvas(60, 40);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    // Half of the grid's 8 dots at a time.
    for (gint times = 0; times < 3; times++) PressKey(GDK_KEY_Right);
    PressKey(GDK_KEY_Down);
    EXPECT_TRUE(Shows(&ToolBox_Label1, "   52 /    44"));
    EXPECT_TRUE(Shows(&ToolBox_Label2, "  132 /    84"));
    Panel("矩形").Press(" 登録 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    PressKey(GDK_KEY_Left);
    SaveByKey();
    const nlohmann::json parm = Saved(LayoutName)["Items"][0]["Parm"];
    EXPECT_EQ(nlohmann::json(std::vector<gint>(parm.begin(), parm.begin() + 4)),
              nlohmann::json::parse("[52,44,132,84]"));
  });
}

// Nothing is marked any more then: 登録 would take the item to where the pointer left the canvas,
// and 削除 would delete what nobody sees chosen.
TEST_F(ToolBoxPanel, APressBesideTheItemLeavesNothingToRegisterOrDelete) {
  Play([this] {
    NewLayout(640, 480);
    Open("矩形");
    DragOnCanvas(40, 40, 120, 80);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "10101");
    ClickCanvas(300, 300);
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    EXPECT_EQ(Usable(), "00001");
    Look([] {
      const PTRNDATA box = BoxItem(200, 40, 280, 80, 8);
      AddPtrnData(&box);
      DrawRequest(1);
    });
    ClickCanvas(220, 40);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "11111");
    ClickCanvas(300, 300);
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    EXPECT_EQ(Usable(), "00001");
    EXPECT_NE(SeeWindow("矩形"), nullptr) << "the panel stays";
  });
}

TEST_F(ToolBoxPanel, KeysTypedIntoAnEntryLeaveTheLayoutAlone) {
  Play([this] {
    NewLayout(640, 480);
    Open("矩形");
    DragOnCanvas(40, 40, 120, 80);
    Panel("矩形").Press(" 登録 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    ClickCanvas(60, 40);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    const Panel panel("矩形");
    const auto holds = [](GtkWidget* entry, const std::string& text) {
      return See([&] { return text == gtk_entry_get_text(GTK_ENTRY(entry)); });
    };
    GtkWidget* code = panel.Control({"識別コード"}, GTK_TYPE_ENTRY);
    Click(code);
    TypeText("abc");
    EXPECT_TRUE(holds(code, "abc"));
    PressKey(GDK_KEY_Left);
    PressKey(GDK_KEY_Delete);
    EXPECT_TRUE(holds(code, "ab"));
    PressKey(GDK_KEY_a, {GDK_KEY_Control_L});
    PressKey(GDK_KEY_x, {GDK_KEY_Control_L});
    EXPECT_TRUE(holds(code, ""));
    PressKey(GDK_KEY_v, {GDK_KEY_Control_L});
    PressKey(GDK_KEY_v, {GDK_KEY_Control_L});
    EXPECT_TRUE(holds(code, "abab"));
    PressKey(GDK_KEY_z, {GDK_KEY_Control_L});
    GtkWidget* width = panel.Control({"線幅"}, GTK_TYPE_ENTRY);
    Click(width);
    PressKey(GDK_KEY_a, {GDK_KEY_Control_L});
    TypeText("3");
    PressKey(GDK_KEY_Up);
    EXPECT_TRUE(holds(width, "4"));
    PressKey(GDK_KEY_z, {GDK_KEY_Control_L});
    Settle();
    EXPECT_EQ(Look(GetPtrnCount), 1);
    EXPECT_EQ(Look([] { return PtrnMode; }), ModeSelected);
    EXPECT_TRUE(holds(code, "abab"));
    EXPECT_TRUE(Shows(&ToolBox_Label1, "   40 /    40"));
    // Elsewhere in the panel the menu's keys are the menu's.
    panel.Press(" 取消 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    PressKey(GDK_KEY_z, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return GetPtrnCount() == 0; }));
  });
}

TEST_F(ToolBoxPanel, ButtonsFollowTheState) {
  Play([this] {
    NewLayout(640, 480);
    Open("矩形");
    EXPECT_EQ(Usable(), "00001");
    DragOnCanvas(40, 40, 120, 80);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "10101");
    Panel("矩形").Press(" 登録 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    EXPECT_EQ(Usable(), "00001");
    ClickCanvas(60, 40);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
    EXPECT_EQ(Usable(), "11111");
    // Cancelling lets the item go; the panel stays.
    Panel("矩形").Press(" 取消 ");
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    EXPECT_EQ(Usable(), "00001");
    Panel("矩形").Press(" 再表示 ");
    EXPECT_TRUE(See([] { return ToolBox == nullptr && PtrnType == 0; }));
  });
}

// A step down over the control scrolls the panel.
testing::AssertionResult Scrolls(GtkWidget* control) {
  GtkAdjustment* place = Look([&] {
    GtkWidget* port = gtk_widget_get_ancestor(control, GTK_TYPE_VIEWPORT);
    GtkAdjustment* vertical = gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(port));
    gtk_adjustment_set_value(vertical, 0);
    return vertical;
  });
  Settle(Look([] { return ToolBox; }));
  PointAt(control);
  TurnWheelHere();
  if (See([&] { return gtk_adjustment_get_value(place) > 0; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the panel does not scroll";
}

TEST_F(ToolBoxPanel, TheWheelScrollsALowScreensPanelOverEveryControl) {
  const LowScreen low(600);
  Play([this] {
    NewLayout(640, 480);
    Open("数値データ");
    const Panel panel("数値データ");
    const gint digits = Look([] { return PtrnData.Parm[TextSlot::Length]; });
    const gint font = Look([] { return PtrnData.Parm[TextSlot::Font]; });
    EXPECT_TRUE(Scrolls(panel.Control({"表示桁数"}, GTK_TYPE_SPIN_BUTTON)));
    EXPECT_TRUE(Scrolls(panel.Control({"フォント"}, GTK_TYPE_COMBO_BOX)));
    EXPECT_TRUE(Scrolls(panel.Control({"前景色"}, GTK_TYPE_DRAWING_AREA)));
    EXPECT_TRUE(Scrolls(Look([&] { return FindLabel(panel.Window(), "ゼロサプレスしない"); })));
    EXPECT_TRUE(Scrolls(Look([&] { return FindLabel(panel.Window(), "前景色"); })));
    EXPECT_EQ(Look([] { return PtrnData.Parm[TextSlot::Length]; }), digits);
    EXPECT_EQ(Look([] { return PtrnData.Parm[TextSlot::Font]; }), font);
  });
}

}  // namespace
