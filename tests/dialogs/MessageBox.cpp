// The message box: its lines, its sets of buttons and their answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "layout/Screen.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Answers the box titled "題名" with `act` and tells the result.
gint Ask(gint set, std::function<void(GtkWidget*)> act, const gchar* second = "二行目") {
  const DialogAnswer answer("題名", std::move(act));
  return Dlg_MessageBox(nullptr, "題名", "一行目", second, set);
}

void Collect(GtkWidget* widget, gpointer labels) {
  if (GTK_IS_BUTTON(widget)) {
    static_cast<std::vector<std::string>*>(labels)->emplace_back(
        gtk_button_get_label(GTK_BUTTON(widget)));
  } else if (GTK_IS_CONTAINER(widget)) {
    gtk_container_foreach(GTK_CONTAINER(widget), Collect, labels);
  }
}

std::vector<std::string> ButtonsOf(gint set) {
  std::vector<std::string> labels;
  Ask(set, [&](GtkWidget* box) {
    Collect(box, &labels);
    CloseByManager(box);
  });
  return labels;
}

}  // namespace

TEST(MessageBox, HasTheButtonsOfItsSet) {
  EXPECT_THAT(ButtonsOf(1), ElementsAre(" 確認 "));
  EXPECT_THAT(ButtonsOf(2), ElementsAre(" はい ", " いいえ "));
  EXPECT_THAT(ButtonsOf(3), ElementsAre(" はい ", " いいえ ", " キャンセル "));
}

TEST(MessageBox, HasNoButtonsForAnUnknownSet) {
  EXPECT_THAT(ButtonsOf(0), IsEmpty());
  EXPECT_THAT(ButtonsOf(4), IsEmpty());
  EXPECT_THAT(ButtonsOf(-1), IsEmpty());
}

// Ten dots around the window, between its lines and between its buttons.
TEST(MessageBox, HasEvenGaps) {
  Ask(2, [](GtkWidget* box) {
    EXPECT_EQ(gtk_container_get_border_width(GTK_CONTAINER(box)), 10u);
    const auto gaps = [](GtkWidget* inside) {
      return gtk_box_get_spacing(GTK_BOX(gtk_widget_get_parent(inside)));
    };
    EXPECT_EQ(gaps(FindLabel(box, "一行目")), 10);
    EXPECT_EQ(gtk_widget_get_parent(FindLabel(box, "一行目")),
              gtk_widget_get_parent(gtk_widget_get_parent(FindLabel(box, " はい "))));
    EXPECT_EQ(gaps(FindLabel(box, " はい ")), 10);
    CloseByManager(box);
  });
}

TEST(MessageBox, AnswersWithTheNumberOfTheButton) {
  EXPECT_EQ(Ask(1, PressButton(" 確認 ")), 1);
  EXPECT_EQ(Ask(2, PressButton(" はい ")), 1);
  EXPECT_EQ(Ask(2, PressButton(" いいえ ")), 2);
  EXPECT_EQ(Ask(3, PressButton(" はい ")), 1);
  EXPECT_EQ(Ask(3, PressButton(" いいえ ")), 2);
  EXPECT_EQ(Ask(3, PressButton(" キャンセル ")), 3);
}

TEST(MessageBox, AnswersNothingWhenClosedByTheWindowManager) {
  EXPECT_EQ(Ask(3, CloseByManager), 0);
}

TEST(MessageBox, EscapeAnswersNothing) {
  EXPECT_EQ(Ask(2, [](GtkWidget* box) { PressKey(box, GDK_KEY_Escape); }), 0);
}

TEST(MessageBox, EscapePressedTwiceClosesOnce) {
  EXPECT_EQ(Ask(2,
                [](GtkWidget* box) {
                  PressKey(box, GDK_KEY_Escape);
                  if (FindWindow("題名") == box) PressKey(box, GDK_KEY_Escape);
                }),
            0);
  EXPECT_TRUE(WaitFor([] { return !g_main_context_pending(nullptr); }));
}

TEST(MessageBox, ReturnPressesTheFirstButton) {
  EXPECT_EQ(Ask(2, [](GtkWidget* box) { PressKey(box, GDK_KEY_Return); }), 1);
}

TEST(MessageBox, ShowsBothLines) {
  Ask(1, [](GtkWidget* box) {
    EXPECT_NE(FindLabel(box, "一行目"), nullptr);
    EXPECT_NE(FindLabel(box, "二行目"), nullptr);
    CloseByManager(box);
  });
}

TEST(MessageBox, LeavesAnEmptyLineOut) {
  Ask(
      1,
      [](GtkWidget* box) {
        // One line and the button's label.
        EXPECT_EQ(CountOf(box, GTK_TYPE_LABEL), 2);
        CloseByManager(box);
      },
      "");
}

TEST(MessageBox, HoldsTheGrabWhileItIsUp) {
  Ask(1, [](GtkWidget* box) {
    EXPECT_EQ(gtk_grab_get_current(), box);
    CloseByManager(box);
  });
  EXPECT_EQ(gtk_grab_get_current(), nullptr);
}

TEST(MessageBox, StandsAboveTheWindowItIsAskedFrom) {
  GtkWidget* parent = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_widget_show(parent);
  {
    const DialogAnswer answer("題名", [parent](GtkWidget* box) {
      EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(box)), GTK_WINDOW(parent));
      CloseByManager(box);
    });
    Dlg_MessageBox(parent, "題名", "一行目", "", 1);
  }
  gtk_widget_destroy(parent);
}
