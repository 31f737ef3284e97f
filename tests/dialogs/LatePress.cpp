// Presses that assistive technology asks for: answered at once, done afterwards.
#include "dialogs/kit/LatePress.h"

#include <gtest/gtest.h>

#include "app/Menus.h"
#include "dialogs/frame/DialogWindow.h"
#include "layout/Screen.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

class LatePress : public WindowTest {
 protected:
  LatePress() {
    WriteProfile("");
    OpenWindow();
  }
  // Whether the press is taken.
  static bool Ask(GtkWidget* widget) {
    return atk_action_do_action(ATK_ACTION(gtk_widget_get_accessible(widget)), 0) != FALSE;
  }
  static void Count(GtkWidget* /*widget*/, gint* count) { ++*count; }
};

TEST_F(LatePress, OfAButtonFollowsTheAnswer) {
  const DialogWindow dialog = NewDialogWindow("題名");
  gint count = 0;
  GtkWidget* button = AddDialogButton(dialog, "押す", G_CALLBACK(Count), &count);
  gtk_widget_show(dialog.Window);
  EXPECT_TRUE(Ask(button));
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(WaitFor([&count] { return count == 1; }));
  gtk_widget_set_sensitive(button, FALSE);
  EXPECT_FALSE(Ask(button));
  gtk_widget_destroy(dialog.Window);
}

TEST_F(LatePress, ComesToNothingWhenTheButtonIsGone) {
  const DialogWindow dialog = NewDialogWindow("題名");
  gint count = 0;
  GtkWidget* button = AddDialogButton(dialog, "押す", G_CALLBACK(Count), &count);
  gtk_widget_show(dialog.Window);
  EXPECT_TRUE(Ask(button));
  gtk_widget_destroy(dialog.Window);
  EXPECT_TRUE(WaitFor([] { return !gtk_events_pending(); }));
  EXPECT_EQ(count, 0);
}

TEST_F(LatePress, IsKeptFromWindowsBelowAModalOne) {
  const DialogWindow below = NewDialogWindow("下");
  gint count = 0;
  GtkWidget* button = AddDialogButton(below, "押す", G_CALLBACK(Count), &count);
  gtk_widget_show(below.Window);
  const DialogAnswer answer("上", [button](GtkWidget* message) {
    EXPECT_FALSE(Ask(button));
    EXPECT_FALSE(Ask(DispMenu[2]));
    EXPECT_TRUE(Ask(FindLabel(message, " 確認 ")));
    EXPECT_TRUE(WaitFor([] { return FindWindow("上") == nullptr; }));
  });
  EXPECT_EQ(Dlg_MessageBox(below.Window, "上", "本文", "", 1), 1);
  EXPECT_EQ(count, 0);
  gtk_widget_destroy(below.Window);
}
