// What the canvas does for one motion of the pointer and one step of scrolling, against painting
// all of it that is to be seen. Times are those of the whole process, the toolkit's included.
#include "BenchWindow.h"
#include "PtrnData.h"
#include "bench/FullLayout.h"
#include "bench/Measure.h"
#include "window/Exposures.h"

namespace {

constexpr gint Zoom500 = 0;
constexpr gint Zoom100 = 2;
constexpr gint ItemCount = 1000;
constexpr gint TextCount = 300;

// Dots of the canvas that can be seen.
double VisiblePixels() {
  GtkWidget* viewport = gtk_widget_get_parent(PtrnDraw);
  return static_cast<double>(gtk_widget_get_allocated_width(viewport)) *
         gtk_widget_get_allocated_height(viewport);
}

// Picks an item and begins to drag it. False when that fails.
bool BeginDrag(gint x, gint y) {
  for (int press = 0; press < 2; ++press) {
    SendButton(GDK_BUTTON_PRESS, GDK_BUTTON_PRIMARY, x, y);
    if (PtrnMode == ModeDragging) return true;
    SendButton(GDK_BUTTON_RELEASE, GDK_BUTTON_PRIMARY, x, y);
  }
  return PtrnMode == ModeDragging;
}

void MotionOfDrag(benchmark::State& state) {
  BenchWindow window;
  const FullLayout layout(ItemCount - TextCount, TextCount);
  PTRNDATA item = FrameItem(400, 300, 640, 460, 3);
  item.Parm[ItemSlot::X1] = 400;
  item.Parm[ItemSlot::Y1] = 300;
  item.Parm[ItemSlot::X2] = 640;
  item.Parm[ItemSlot::Y2] = 460;
  SetPtrnData(0, &item);  // the first at a place is picked
  window.ShowLayout(LayoutWidth, LayoutHeight, Zoom100);
  FinishFrame(PtrnDraw);
  if (!BeginDrag(450, 300)) return state.SkipWithError("nothing to drag");
  FinishFrame(PtrnDraw);
  Exposures exposures;
  gint step = 0;
  double painted = 0;
  Compare(
      state,
      [&] {
        ++step;
        exposures.Clear();
        SendMotion(450 + step * 7 % 300, 300 + step * 11 % 200);
        FinishFrame(PtrnDraw);
        painted = std::max(painted, exposures.Pixels());
      },
      PaintWholeCanvas);
  state.counters["painted_share"] = painted / VisiblePixels();
}
BENCHMARK(MotionOfDrag)->Unit(benchmark::kMillisecond);

// The pointer over the items, no button pressed.
void MotionOverItems(benchmark::State& state) {
  BenchWindow window;
  const FullLayout layout(ItemCount - TextCount, TextCount);
  window.ShowLayout(LayoutWidth, LayoutHeight, Zoom100);
  FinishFrame(PtrnDraw);
  gint step = 0;
  Compare(
      state,
      [&] {
        ++step;
        SendMotion(step * 7 % 900, step * 11 % 600);
      },
      PaintWholeCanvas);
}
BENCHMARK(MotionOverItems)->Unit(benchmark::kMillisecond);

void ScrollBy40(benchmark::State& state) {
  constexpr gint Step = 40;
  BenchWindow window;
  const FullLayout layout(ItemCount - TextCount, TextCount);
  window.ShowLayout(LayoutWidth, LayoutHeight, static_cast<gint>(state.range(0)));
  FinishFrame(PtrnDraw);
  GtkAdjustment* down =
      gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(gtk_widget_get_parent(PtrnDraw)));
  Exposures exposures;
  const gint room =
      static_cast<gint>(gtk_adjustment_get_upper(down) - gtk_adjustment_get_page_size(down));
  gint at = 0;
  double painted = 0;
  int steps = 0;
  Compare(
      state,
      [&] {
        at = (at + Step) % room;
        exposures.Clear();
        gtk_adjustment_set_value(down, at);
        FinishFrame(PtrnDraw);
        painted += exposures.Pixels();
        ++steps;
      },
      PaintWholeCanvas);
  state.counters["painted_share"] = painted / steps / VisiblePixels();
}
BENCHMARK(ScrollBy40)->Arg(Zoom500)->Unit(benchmark::kMillisecond);

}  // namespace
