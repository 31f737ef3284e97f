// What the canvas does for one motion of the pointer and one step of scrolling, against painting
// all of it that is to be seen. Times are those of the whole process, the toolkit's included.
#include "PtrnData.h"
#include "bench/FullLayout.h"
#include "bench/Measure.h"
#include "bench/window/BenchWindow.h"
#include "tests/window/Exposures.h"

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

// The processor time of the canvas's own handlers, apart from what the toolkit does around them.
class OwnTime {
 public:
  OwnTime() {
    Replace("motion-notify-event", G_CALLBACK(PtrnDraw_Motion), G_CALLBACK(TimedMotion));
    Replace("draw", G_CALLBACK(PtrnDraw_Expose), G_CALLBACK(TimedExpose));
  }
  void Clear() { seconds_ = 0; }
  double Seconds() const { return seconds_; }

 private:
  void Replace(const char* signal, GCallback handler, GCallback timed) {
    g_signal_handlers_disconnect_by_func(PtrnDraw, reinterpret_cast<gpointer>(handler), nullptr);
    g_signal_connect(PtrnDraw, signal, timed, this);
  }
  template <typename Body>
  gboolean Timed(Body body) {
    gboolean result = FALSE;
    seconds_ += ::Seconds([&] { result = body(); });
    return result;
  }
  static gboolean TimedMotion(GtkWidget* canvas, GdkEventMotion* event, gpointer self) {
    return static_cast<OwnTime*>(self)->Timed(
        [&] { return PtrnDraw_Motion(canvas, event, nullptr); });
  }
  static gboolean TimedExpose(GtkWidget* canvas, cairo_t* cairo, gpointer self) {
    return static_cast<OwnTime*>(self)->Timed(
        [&] { return PtrnDraw_Expose(canvas, cairo, nullptr); });
  }

  double seconds_ = 0;
};

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
  // The panel that has just opened goes on painting itself for some frames.
  for (gint frame = 0; frame < 20; ++frame) {
    FinishFrame(PtrnDraw);
    FinishFrame(ToolBox);
  }
  Exposures exposures;
  OwnTime own;
  gint step = 0;
  double painted = 0;
  double bestOwn = 1e9;
  Compare(
      state,
      [&] {
        ++step;
        exposures.Clear();
        own.Clear();
        SendMotion(450 + step * 7 % 300, 300 + step * 11 % 200);
        FinishFrame(PtrnDraw);
        FinishFrame(ToolBox);
        painted = std::max(painted, exposures.Pixels());
        bestOwn = std::min(bestOwn, own.Seconds());
      },
      PaintWholeCanvas);
  state.counters["painted_share"] = painted / VisiblePixels();
  state.counters["own_ms"] = bestOwn * 1e3;
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
