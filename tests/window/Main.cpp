// Runs window tests on the display that is there. No test at all is a failure, too.
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <cstdio>

#include "tests/window/Log.h"

namespace {

class NoComplaints : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*info*/) override { FailOnComplaints(); }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  gdk_set_allowed_backends("x11");
  WatchLog();
  if (!gtk_init_check(&argc, &argv)) {
    std::fputs("no display for the window tests\n", stderr);
    return 1;
  }
  testing::UnitTest* tests = testing::UnitTest::GetInstance();
  tests->listeners().Append(new NoComplaints);
  const int failed = RUN_ALL_TESTS();
  if (tests->test_to_run_count() == 0) std::fputs("no test was chosen\n", stderr);
  return failed != 0 || tests->test_to_run_count() == 0 ? 1 : 0;
}
