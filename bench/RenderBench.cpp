// Redrawing a full layout and exposing a part of its zoomed view. The counter "fills" is the time
// in units of filling a picture of the same size with one colour.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <random>

#include "render/ItemSamples.h"

namespace {

constexpr gint LayoutWidth = 1600;
constexpr gint LayoutHeight = 1200;
constexpr gint ViewWidth = 1600;
constexpr gint ViewHeight = 1000;

PTRNDATA MixedItem(gint number, gint x, gint y) {
  switch (number % 15 + 1) {
    case TypeFrame:
      return FrameItem(x, y, x + 120, y + 80, 3);
    case TypeLine:
      return LineItem(x, y, x + 120, y + (number % 2) * 60, number % 3, 2);
    case TypeRectangle:
      return ShapeItem(TypeRectangle, x, y, x + 80, y + 50, 1, 2);
    case TypeEllipse:
      return ShapeItem(TypeEllipse, x, y, x + 80, y + 50, 1, 2);
    case TypeBarGraph:
      return BarItem(x, y, x + 20, y + 90, 0, 0, 1);
    case TypeFixedString:
      return TextItem(TypeFixedString, x, y, Font16, {{TextSlot::BackEnabled, 1}}, "貯水池水位");
    case TypeVariableString:
      return TextItem(TypeVariableString, x, y, Font16, {{TextSlot::Length, 12}});
    case TypeNumeric:
      return TextItem(TypeNumeric, x, y, Font24, {{TextSlot::Length, 8}, {TextSlot::Decimals, 2}});
    case TypeButton:
      return ButtonItem(x, y, x + 90, y + 32, Font16, 2, "運転開始");
    case TypeRadioButton:
      return ChoiceItem(TypeRadioButton, x, y, Font16, 1, "自動");
    case TypeCheckBox:
      return ChoiceItem(TypeCheckBox, x, y, Font16, 0, "警報");
    case TypeBitmap:
      return BitmapItem(x, y, x + 64, y + 48, number % 2);
    case TypeMark:
      return MarkItem(x, y, x + 32, y + 32, SceneMark::Disc32x32, number % 2);
    case TypeScrollBar:
      return ScrollItem(x, y, x + 24, y + 160, 1, 2, 1, 1);
    default:
      return MakeItem(TypeSpinButton, x, y, x + 16, y + 32);
  }
}

// A layout of 1,000 items of all types.
class FullLayout {
 public:
  FullLayout() {
    DrawSceneMarks();
    PtrnHedr.Parm1[HedrSlot::Width] = LayoutWidth;
    PtrnHedr.Parm1[HedrSlot::Height] = LayoutHeight;
    PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::Cream;
    std::mt19937 random(1);
    std::uniform_int_distribution<gint> x(0, LayoutWidth - 120);
    std::uniform_int_distribution<gint> y(0, LayoutHeight - 90);
    for (gint number = 0; number < 1000; ++number) {
      const PTRNDATA item = MixedItem(number, x(random), y(random));
      AddPtrnData(&item);
    }
  }

 private:
  Scene scene_;
  SceneBitmaps bitmaps_;
};

double ProcessorSeconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Seconds that one fill of a picture takes, the best of some.
double FillTime(gint width, gint height) {
  Drawable picture(width, height);
  double best = 1.0;
  for (guint32 run = 0; run < 20; ++run) {
    const double begin = ProcessorSeconds();
    for (gint y = 0; y < height; ++y) std::fill_n(picture.Row(y), width, 0xff000000U + run);
    benchmark::DoNotOptimize(picture.Row(0));
    benchmark::ClobberMemory();
    best = std::min(best, ProcessorSeconds() - begin);
  }
  return best;
}

// Runs the benchmark's body and compares its time with that of a fill.
template <typename Body>
void Measure(benchmark::State& state, gint width, gint height, Body body) {
  const double begin = ProcessorSeconds();
  for (auto _ : state) body();
  const double spent = (ProcessorSeconds() - begin) / static_cast<double>(state.iterations());
  state.counters["fills"] = spent / FillTime(width, height);
}

void FullRedraw(benchmark::State& state) {
  const FullLayout layout;
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  Measure(state, LayoutWidth, LayoutHeight, [&] { DrawWindow1(&picture, &gc); });
}
BENCHMARK(FullRedraw)->Unit(benchmark::kMillisecond);

// The costs of the types apart: 1,000 items of one type.
void RedrawOfType(benchmark::State& state) {
  const FullLayout layout;
  const gint type = static_cast<gint>(state.range(0));
  IntPtrnData();
  for (gint number = 0; number < 1000; ++number) {
    const PTRNDATA item =
        MixedItem(type - 1 + 15 * (number % 2), number * 37 % 1480, number * 53 % 1110);
    AddPtrnData(&item);
  }
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  Measure(state, LayoutWidth, LayoutHeight, [&] { DrawPtrnData(&picture, &gc, 0); });
}
BENCHMARK(RedrawOfType)->DenseRange(1, 15)->Unit(benchmark::kMillisecond);

// One expose of the canvas: the zoomed picture, the grid and the overlay.
void ZoomedExpose(benchmark::State& state) {
  constexpr gint percent[5] = {500, 200, 100, 75, 50};
  const FullLayout layout;
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
  const gint width = LayoutWidth * percent[zoom] / 100;
  const gint height = LayoutHeight * percent[zoom] / 100;
  Drawable view(ViewWidth, ViewHeight, std::max(0, (width - ViewWidth) / 2),
                std::max(0, (height - ViewHeight) / 2));
  Measure(state, ViewWidth, ViewHeight, [&] {
    PaintZoomed(view, picture, image.get(), width, height);
    DrawGridData(&view, &gc);
    DrawWindow2(&view, &gc);
  });
}
BENCHMARK(ZoomedExpose)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

}  // namespace
