// Text that an input method composes: it shows in the entry before it is text.
#include <gtest/gtest.h>

#include <string>

#include "dialogs/Kit.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/kit/Cells.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

constexpr gint Limit = 4;  // bytes
constexpr auto Held = static_cast<GdkModifierType>(GDK_CONTROL_MASK | GDK_SHIFT_MASK);
// "あ" in EUC-JP.
constexpr gchar A[] = "\xA4\xA2";

}  // namespace

class Composing : public testing::Test {
 protected:
  Composing() {
    GtkWidget* grid = gtk_grid_new();
    gtk_container_add(GTK_CONTAINER(Dialog.Content), grid);
    gtk_widget_show(grid);
    Dlg_EditBox(Dialog.Window, grid, Rows);
    KeepWidget(&Window, Dialog.Window);
    g_signal_connect(Rows[0].entry, "preedit-changed",
                     G_CALLBACK(+[](GtkEntry*, const gchar* text, gpointer shown) {
                       *static_cast<std::string*>(shown) = text;
                     }),
                     &Composed);
    gtk_window_present(GTK_WINDOW(Window));
    gtk_widget_grab_focus(Rows[0].entry);
  }
  ~Composing() override {
    if (Window != nullptr) gtk_widget_destroy(Window);
  }
  void SetUp() override {
    ASSERT_TRUE(WaitFor([this] { return gtk_widget_has_focus(Rows[0].entry) != FALSE; }));
  }
  // Begins "あ" by its number, as the toolkit's own method takes it while both keys are held.
  void ComposeA() {
    for (const guint key : {GDK_KEY_U, GDK_KEY_3, GDK_KEY_0, GDK_KEY_4, GDK_KEY_2}) {
      PressKey(Window, key, Held);
    }
  }

  gchar Field[Limit + 2] = {};
  DLG_EDITBOX Rows[2] = {{0, 0, 0, Limit, 0, Field, nullptr}, {-1, 0, 0, 0, 0, nullptr, nullptr}};
  const DialogWindow Dialog = NewDialogWindow("入力");
  GtkWidget* Window = nullptr;
  std::string Composed;
};

TEST_F(Composing, ShowsInTheEntryAndIsNoTextYet) {
  ComposeA();
  EXPECT_EQ(Composed, "u3042");
  EXPECT_EQ(EntryText(Rows[0].entry), "");
  EXPECT_STREQ(Field, "");
  PressKey(Window, GDK_KEY_space, Held);
  EXPECT_EQ(Composed, "");
  EXPECT_EQ(EntryText(Rows[0].entry), "あ");
  EXPECT_STREQ(Field, A);
}

TEST_F(Composing, EscapeGivesItUpAndLeavesTheDialogOpen) {
  ComposeA();
  PressKey(Window, GDK_KEY_Escape);
  ASSERT_NE(Window, nullptr);
  EXPECT_EQ(Composed, "");
  EXPECT_EQ(EntryText(Rows[0].entry), "");
  PressKey(Window, GDK_KEY_Escape);
  EXPECT_EQ(Window, nullptr);
}

TEST_F(Composing, GoesOnAfterATextThatDidNotFit) {
  Type(Rows[0].entry, "abc");
  ComposeA();
  EXPECT_EQ(Composed, "u3042");
  PressKey(Window, GDK_KEY_space, Held);
  EXPECT_EQ(EntryText(Rows[0].entry), "abc");
  EXPECT_STREQ(Field, "abc");
  PressKey(Window, GDK_KEY_BackSpace);
  ComposeA();
  PressKey(Window, GDK_KEY_space, Held);
  EXPECT_EQ(EntryText(Rows[0].entry), "abあ");
}
