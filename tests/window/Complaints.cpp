// A complaint of the toolkit fails the test in which it comes.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include "tests/window/Log.h"

namespace {

TEST(Complaints, OfEachKindFailATest) {
  g_warning("a warning");
  EXPECT_NONFATAL_FAILURE(FailOnComplaints(), "a warning");
  g_critical("a critical");
  EXPECT_NONFATAL_FAILURE(FailOnComplaints(), "a critical");
  gtk_widget_show(nullptr);
  EXPECT_NONFATAL_FAILURE(FailOnComplaints(), "GTK_IS_WIDGET");
  g_object_unref(nullptr);
  EXPECT_NONFATAL_FAILURE(FailOnComplaints(), "G_IS_OBJECT");
  gdk_window_show(nullptr);
  EXPECT_NONFATAL_FAILURE(FailOnComplaints(), "GDK_IS_WINDOW");
}

TEST(Complaints, MessagesAreNone) {
  g_message("a message");
  FailOnComplaints();
}

}  // namespace
