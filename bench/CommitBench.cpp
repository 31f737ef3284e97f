// The repainting that a commit of one item causes, against painting the whole layout.
#include "bench/FullLayout.h"
#include "bench/Measure.h"
#include "render/PaintedLayout.h"

namespace {

void CommitOneItem(benchmark::State& state) {
  const FullLayout layout(700, 300);
  Drawable picture(LayoutWidth, LayoutHeight);
  PaintedLayout painted;
  painted.Paint(picture);
  PTRNDATA item;
  GetPtrnData(500, &item);
  gint step = 4;
  Compare(
      state,
      [&] {
        step = -step;
        item.Point1.x += step;
        item.Point2.x += step;
        SetPtrnData(500, &item);
        painted.Paint(picture);
      },
      [&] {
        DrawGc gc;
        DrawWindow1(&picture, &gc);
      });
}

BENCHMARK(CommitOneItem)->Unit(benchmark::kMillisecond);

}  // namespace
