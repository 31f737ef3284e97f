// Opening dialogs until they are painted and closing them, against the same with a bare window.
#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDialog.h"
#include "PtrnMisc.h"
#include "bench/Measure.h"
#include "bench/window/BenchWindow.h"
#include "tests/common/TempFolder.h"

namespace {

void PaintAndDestroy(GtkWidget* window) {
  FinishFrame(window);
  gtk_widget_destroy(window);
}

void BareWindow() {
  GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_transient_for(GTK_WINDOW(window), GTK_WINDOW(PtrnWnd));
  gtk_window_set_default_size(GTK_WINDOW(window), 500, 350);
  gtk_widget_show(window);
  WaitFor([window] { return gtk_widget_get_mapped(window) != FALSE; });
  PaintAndDestroy(window);
}

// The best time that `open` takes, from the call to the painted window.
void CompareDialog(benchmark::State& state, const char* title, const std::function<void()>& open) {
  double elapsed = 1e9;
  Compare(
      state,
      [&] {
        const gint64 begin = g_get_monotonic_time();
        gint64 painted = begin;
        const DialogAnswer answer(title, [&](GtkWidget* dialog) {
          FinishFrame(dialog);
          painted = g_get_monotonic_time();
          gtk_widget_destroy(dialog);
        });
        open();
        elapsed = std::min(elapsed, static_cast<double>(painted - begin) * 1e-3);
      },
      BareWindow);
  state.counters["elapsed_ms"] = elapsed;
}

// A project of many layouts, in a folder of its own.
class ManyLayouts {
 public:
  explicit ManyLayouts(gint count) {
    CopyText(ProjPath, folder_.Path());
    CopyText(ProjName, "Plant");
    IntPtrnData();
    PtrnFileInit(0);
    PtrnHedr = EditHedr;
    const std::string bytes(reinterpret_cast<const char*>(&PtrnHedr), sizeof PtrnHedr);
    for (gint no = 0; no < count; ++no) {
      folder_.Write("Screen " + std::to_string(1000 + no) + ".ptn", bytes);
    }
  }

 private:
  TempFolder folder_;
};

void OpenLayoutDialog(benchmark::State& state) {
  BenchWindow window;
  const ManyLayouts layouts(static_cast<gint>(state.range(0)));
  CompareDialog(state, "レイアウトを開く", [] { PtrnFileOpen(PtrnWnd); });
}

BENCHMARK(OpenLayoutDialog)->Arg(10)->Arg(2000)->Unit(benchmark::kMillisecond);

// With its switch to the layouts that have incomplete items, each header of which is read.
void OpenProjectDialog(benchmark::State& state) {
  BenchWindow window;
  const ManyLayouts layouts(2000);
  constexpr gint KnownProjects = 100;
  const TempFolder projects;
  for (gint no = 0; no < KnownProjects; ++no) {
    const std::string name = "Plant" + std::to_string(no);
    projects.Write(name + ".prj", std::string(sizeof(PROJFILE), '\0'));
    ProfileWrite2("", "PROJNAME", "PROJNAME", no, "ss", name.c_str(), projects.Path().c_str());
  }
  CompareDialog(state, "プロジェクトを開く", [] { ProjFileOpen(PtrnWnd); });
}

BENCHMARK(OpenProjectDialog)->Unit(benchmark::kMillisecond);

void MarkPicker(benchmark::State& state) {
  BenchWindow window;
  CompareDialog(state, "マーク選択", [] { Dlg_MarkSelect(PtrnWnd); });
}

BENCHMARK(MarkPicker)->Unit(benchmark::kMillisecond);

}  // namespace
