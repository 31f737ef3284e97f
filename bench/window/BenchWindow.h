// The main window with the sample project, opened for a benchmark.
#pragma once

#include "PtrnMisc.h"
#include "app/Window.h"
#include "tests/window/Program.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

class BenchWindow : public WindowTest {
 public:
  // As large as the display lets it be.
  BenchWindow() {
    CopyText(PathName, folder_.Path());
    OpenWindow();
    gtk_window_maximize(GTK_WINDOW(PtrnWnd));
    WaitFor([] { return gtk_window_is_maximized(GTK_WINDOW(PtrnWnd)) != FALSE; });
    FinishFrame(PtrnDraw);
  }
  using WindowTest::ShowLayout;

 private:
  void TestBody() override {}

  ProgramFolder folder_;
};

// Paints all of the canvas that is to be seen.
inline void PaintWholeCanvas() {
  gtk_widget_queue_draw(PtrnDraw);
  FinishFrame(PtrnDraw);
}
