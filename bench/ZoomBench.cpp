// One expose of a view of the zoomed canvas, against scaling just that rectangle.
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <unistd.h>

#include <fstream>

#include "bench/FullLayout.h"
#include "bench/Measure.h"

namespace {

constexpr gint ViewWidth = 1600;
constexpr gint ViewHeight = 1000;
constexpr gint Percent[5] = {500, 200, 100, 75, 50};

// The zoomed picture, the grid and the overlay.
void ZoomedExpose(benchmark::State& state) {
  const FullLayout layout(700, 300);
  const gint zoom = static_cast<gint>(state.range(0));
  PtrnHedr.Parm2[ViewSlot::Zoom] = zoom;
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;
  PtrnMode = ModeSelected;
  PtrnData = FrameItem(100, 100, 400, 300, 3);
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  DrawWindow1(&picture, &gc);
  const PixbufPtr image = PixbufFromSurface(picture);
  const gint width = LayoutWidth * Percent[zoom] / 100;
  const gint height = LayoutHeight * Percent[zoom] / 100;
  const gint x = std::max(0, (width - ViewWidth) / 2);
  const gint y = std::max(0, (height - ViewHeight) / 2);
  const double scale = Percent[zoom] / 100.0;
  const gint shownWidth = std::min(width, ViewWidth), shownHeight = std::min(height, ViewHeight);
  const PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, shownWidth, shownHeight));
  Compare(
      state,
      [&] {
        Drawable view(ViewWidth, ViewHeight, x, y);
        PaintZoomed(view, picture, width, height);
        DrawGridData(&view, &gc);
        DrawWindow2(&view, &gc);
      },
      [&] {
        gdk_pixbuf_scale(image.get(), scaled.get(), 0, 0, shownWidth, shownHeight, -x, -y, scale,
                         scale, GDK_INTERP_TILES);
      });
}

// Scrolling over the largest layout at 500 %; the counter is the resident memory after it.
void ScrollLargest(benchmark::State& state) {
  constexpr gint side = 9999;
  const FullLayout layout(700, 300);
  PtrnHedr.Parm1[HedrSlot::Width] = PtrnHedr.Parm1[HedrSlot::Height] = side;
  Drawable picture(side, side);
  DrawGc gc;
  DrawWindow1(&picture, &gc);
  gint at = 0;
  for (auto _ : state) {
    Drawable view(ViewWidth, ViewHeight, at, at);
    PaintZoomed(view, picture, 5 * side, 5 * side);
    at = (at + 4999) % (5 * side - ViewWidth);
  }
  long pages = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  state.counters["resident_mb"] =
      static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

BENCHMARK(ScrollLargest)->Iterations(20)->Unit(benchmark::kMillisecond);

BENCHMARK(ZoomedExpose)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

}  // namespace
