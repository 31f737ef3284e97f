// Runs the benchmarks on the display that is there.
#include <benchmark/benchmark.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <cstdio>

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  testing::InitGoogleTest(&argc, argv);
  gdk_set_allowed_backends("x11");
  if (!gtk_init_check(&argc, &argv)) {
    std::fputs("no display for the benchmarks\n", stderr);
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return testing::UnitTest::GetInstance()->Failed() ? 1 : 0;
}
