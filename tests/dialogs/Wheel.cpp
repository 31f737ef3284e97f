// The wheel over numbers and lists: theirs while they have the keyboard, else their window's.
#include <gtest/gtest.h>

#include <functional>

#include "PtrnData.h"
#include "dialogs/Editors.h"
#include "dialogs/Kit.h"
#include "dialogs/ToolBox.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/LowScreen.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr gint Numeric = 8;

GtkAdjustment* ScrollPlace(GtkWidget* control) {
  GtkWidget* port = gtk_widget_get_ancestor(control, GTK_TYPE_VIEWPORT);
  return port != nullptr ? gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(port)) : nullptr;
}

void GiveKeyboard(GtkWidget* control) {
  ASSERT_NE(control, nullptr);
  GtkWindow* window = GTK_WINDOW(gtk_widget_get_toplevel(control));
  gtk_window_present(window);
  ASSERT_TRUE(WaitFor([window] { return gtk_window_is_active(window) != FALSE; }));
  gtk_widget_grab_focus(control);
}

}  // namespace

class Wheel : public WindowTest {
 protected:
  Wheel() {
    WriteProfile("");
    OpenWindow();
  }
  // A panel that the screen is too low for.
  void OpenPanel() {
    Dlg_ToolBox(PtrnWnd, Numeric);
    ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
    Digits = ControlAt(FindGrid(ToolBox), 1, 1, GTK_TYPE_SPIN_BUTTON);
    Process = ControlAt(FindGrid(ToolBox), 12, 1, GTK_TYPE_COMBO_BOX);
    ASSERT_NE(Digits, nullptr);
    ASSERT_NE(Process, nullptr);
    Place = ScrollPlace(Digits);
    ASSERT_NE(Place, nullptr);
    // A panel begins at its first field.
    gtk_window_set_focus(GTK_WINDOW(ToolBox), nullptr);
  }
  // How far the panel scrolls for one step down over a control.
  double Scrolled(GtkWidget* over) const {
    gtk_adjustment_set_value(Place, 0);
    TurnWheel(over, GDK_SCROLL_DOWN);
    return gtk_adjustment_get_value(Place);
  }

  const LowScreen Low{600};
  GtkWidget* Digits = nullptr;
  GtkWidget* Process = nullptr;
  GtkAdjustment* Place = nullptr;
};

TEST_F(Wheel, LeavesControlsWithoutTheKeyboardAloneAndScrolls) {
  PtrnData.Parm[TextSlot::Length] = 5;
  PtrnData.ID_Type = 2;
  OpenPanel();
  EXPECT_GT(Scrolled(Digits), 0);
  EXPECT_EQ(+PtrnData.Parm[TextSlot::Length], 5);
  EXPECT_FALSE(gtk_widget_is_focus(Digits));
  EXPECT_GT(Scrolled(FindKind(Process, GTK_TYPE_TOGGLE_BUTTON)), 0);
  EXPECT_EQ(gint{PtrnData.ID_Type}, 2);
}

TEST_F(Wheel, IsTheControlsThatHasTheKeyboard) {
  PtrnData.Parm[TextSlot::Length] = 5;
  PtrnData.ID_Type = 2;
  OpenPanel();
  GiveKeyboard(Digits);
  EXPECT_EQ(Scrolled(Digits), 0);
  EXPECT_EQ(+PtrnData.Parm[TextSlot::Length], 4);
  GiveKeyboard(Process);
  EXPECT_EQ(Scrolled(FindKind(Process, GTK_TYPE_TOGGLE_BUTTON)), 0);
  EXPECT_EQ(gint{PtrnData.ID_Type}, 3);
  // The number has lost it.
  EXPECT_GT(Scrolled(Digits), 0);
  EXPECT_EQ(+PtrnData.Parm[TextSlot::Length], 4);
}

// The keyboard in another window is not the control's, whichever comes first when it is back.
TEST_F(Wheel, IsNotTheControlsThatHadTheKeyboardBeforeTheWindowLostIt) {
  PtrnData.Parm[TextSlot::Length] = 5;
  OpenPanel();
  GiveKeyboard(Digits);
  gtk_window_present(GTK_WINDOW(PtrnWnd));
  ASSERT_TRUE(WaitFor([this] { return gtk_widget_has_focus(Digits) == FALSE; }));
  EXPECT_GT(Scrolled(Digits), 0);
  EXPECT_EQ(+PtrnData.Parm[TextSlot::Length], 5);
}

// The toolkit's own colour dialog has a slider, which has nothing around it to scroll.
TEST_F(Wheel, LeavesTheSliderOfColoursAlone) {
  COLRBOX box = {nullptr, {40000, 20000, 10000}};
  const DialogAnswer answer("表示色作成", [](GtkWidget* dialog) {
    const auto shown = [dialog](GType kind) {
      return FindWidget(dialog, [kind](GtkWidget* widget) {
        return G_TYPE_CHECK_INSTANCE_TYPE(widget, kind) && gtk_widget_get_mapped(widget);
      });
    };
    GtkWidget* slider = shown(GTK_TYPE_SCALE);
    ASSERT_NE(slider, nullptr);
    const auto value = [slider] { return gtk_range_get_value(GTK_RANGE(slider)); };
    GiveKeyboard(shown(GTK_TYPE_ENTRY));
    const double before = value();
    TurnWheel(slider, GDK_SCROLL_DOWN);
    EXPECT_EQ(value(), before);
    GiveKeyboard(slider);
    TurnWheel(slider, GDK_SCROLL_DOWN);
    EXPECT_NE(value(), before);
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
  });
  EXPECT_EQ(MakeColrData(PtrnWnd, 0, &box), 0);
}
