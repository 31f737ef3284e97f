#include <cstdio>

#include "app/Window.h"
#include "app/ui/Holders.h"

namespace {
// Tells scripts that it was the display.
constexpr int NoDisplay = 3;

void RunMainLoop() {
  const MainLoopPtr loop(g_main_loop_new(nullptr, FALSE));
  MainLoop = loop.get();
  g_main_loop_run(MainLoop);
  MainLoop = nullptr;
}
}  // namespace

int main(int argc, char** argv) {
  gdk_set_allowed_backends("x11");
  if (!gtk_init_check(&argc, &argv)) {
    std::fputs("VarnixMaster: the display cannot be opened\n", stderr);
    return NoDisplay;
  }
  SetProgramFolder(argc > 0 ? argv[0] : nullptr);
  CreateMainWindow();
  gtk_widget_show(PtrnWnd);
  InitVarnixMaster();
  RunMainLoop();
  ExitVarnixMaster();
  if (PtrnWnd != nullptr) gtk_widget_destroy(PtrnWnd);
  return 0;
}
