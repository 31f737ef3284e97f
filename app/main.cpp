#include <cstdio>
#include <cstring>

#include "app/Window.h"
#include "app/ui/Holders.h"
#include "support/Text.h"

namespace {

// Tells scripts that it was the display.
constexpr int NoDisplay = 3;

void RunMainLoop() {
  const MainLoopPtr loop(g_main_loop_new(nullptr, FALSE));
  MainLoop = loop.get();
  g_main_loop_run(MainLoop);
  MainLoop = nullptr;
}

// For the launcher: --tell LINE LINE shows a message and does nothing else.
bool IsMessage(int argc, char** argv) {
  return argc == 4 && std::strcmp(argv[1], "--tell") == 0;
}

}  // namespace

int main(int argc, char** argv) {
  gdk_set_allowed_backends("x11");
  if (!gtk_init_check(&argc, &argv)) {
    std::fputs("VarnixMaster: the display cannot be opened\n", stderr);
    return NoDisplay;
  }
  if (IsMessage(argc, argv)) {
    Dlg_MessageBox(nullptr, "VarnixMaster", DisplayText(argv[2]).c_str(),
                   DisplayText(argv[3]).c_str(), 1);
    return 0;
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
