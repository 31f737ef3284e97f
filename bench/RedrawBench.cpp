// Painting a whole layout, against plain fills of the boxes that its items cover.
#include "bench/FullLayout.h"
#include "bench/Measure.h"

namespace {

constexpr gint ItemCount = 1000;
constexpr gint TextCount = 300;

void Fill(Drawable& picture, gint x1, gint y1, gint x2, gint y2, guint32 pixel) {
  x2 = std::min(x2, picture.Width());
  y2 = std::min(y2, picture.Height());
  for (gint y = y1; y < y2; ++y) std::fill_n(picture.Row(y) + x1, x2 - x1, pixel);
}

// The second corner of an item's box.
POINT FarCorner(const PTRNDATA& item) {
  if (!IsTextType(item.Type)) return item.Point2;
  return {item.Point1.x + item.Size.cx, item.Point1.y + item.Size.cy};
}

// Fills the picture, then the box of each item.
void FillBoxes(Drawable& picture) {
  Fill(picture, 0, 0, picture.Width(), picture.Height(), 0xff000000);
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    const PTRNDATA& item = *ViewPtrnData(no);
    const POINT corner = FarCorner(item);
    const gint x = item.Point1.x, y = item.Point1.y;
    Fill(picture, x, y, std::max(corner.x, x + 1), std::max(corner.y, y + 1), 0xff000000U + no);
  }
}

void FullRedraw(benchmark::State& state) {
  const FullLayout layout(ItemCount, 0);
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  Compare(
      state, [&] { DrawWindow1(&picture, &gc); }, [&] { FillBoxes(picture); });
}

BENCHMARK(FullRedraw)->Unit(benchmark::kMillisecond);

// Against the same layout without its texts.
void RedrawWithTexts(benchmark::State& state) {
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  const auto redraw = [&] { DrawWindow1(&picture, &gc); };
  double plain = 0;
  if (RUNNING_ON_VALGRIND == 0) {
    const FullLayout layout(ItemCount - TextCount, 0);
    plain = BestSeconds(20, redraw);
  }
  const FullLayout layout(ItemCount - TextCount, TextCount);
  if (CountInstructions(state, redraw)) return;
  double best = 1;
  for (auto _ : state) best = std::min(best, Seconds(redraw));
  Report(state, best, plain);
}

BENCHMARK(RedrawWithTexts)->Unit(benchmark::kMillisecond);

// The types apart: 1,000 items of one type, against the fills of their boxes.
void RedrawOfType(benchmark::State& state) {
  const FullLayout layout(0, 0);
  const gint type = static_cast<gint>(state.range(0));
  for (gint number = 0; number < ItemCount; ++number) {
    const PTRNDATA item = ItemOfType(type, number, number * 37 % 1480, number * 53 % 1110);
    AddPtrnData(&item);
  }
  Drawable picture(LayoutWidth, LayoutHeight);
  DrawGc gc;
  Compare(
      state, [&] { DrawPtrnData(&picture, &gc, 0); }, [&] { FillBoxes(picture); });
}

BENCHMARK(RedrawOfType)->DenseRange(1, 15)->Unit(benchmark::kMillisecond);

}  // namespace
