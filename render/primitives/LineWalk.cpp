#include "render/primitives/LineWalk.h"

#include <cstdlib>

namespace {

// Which pixels of a line are on, by their number along it.
class DashPattern {
 public:
  DashPattern(const gint8* dashes, gint64 start) {
    if (dashes != nullptr && dashes[0] > 0 && dashes[1] > 0) {
      on_ = gint{dashes[0]};
      period_ = on_ + gint{dashes[1]};
      start_ = start;
    }
  }
  bool Solid() const { return period_ == 0; }
  // Place of a pixel in the pattern, from the begin of its dash.
  gint64 Place(gint64 index) const { return (index + start_) % period_; }
  bool On(gint64 index) const { return Solid() || Place(index) < on_; }
  gint64 OnLength() const { return on_; }
  gint64 Period() const { return period_; }

 private:
  gint64 on_ = 0;
  gint64 period_ = 0;
  gint64 start_ = 0;
};

// Pixel numbers first..last of a line that the interval low..high-1 of its longer axis shows.
struct IndexRange {
  gint64 First;
  gint64 Last;
};

IndexRange VisibleIndexes(gint64 from, gint64 to, gint64 low, gint64 high) {
  const gint64 length = std::abs(to - from);
  if (from <= to) return {std::max<gint64>(low - from, 0), std::min(high - 1 - from, length)};
  return {std::max<gint64>(from - (high - 1), 0), std::min(from - low, length)};
}

void StrokeStraight(Drawable& drawable, const DrawGc& gc, const LineEnds& line, OffsetRange copies,
                    const DashPattern& dashes) {
  const PlaneBox clip = BoxOf(drawable);
  const bool upright = line.Vertical();
  const gint64 from = upright ? line.y1 : line.x1;
  const gint64 to = upright ? line.y2 : line.x2;
  const gint64 low = (upright ? line.x1 : line.y1) + copies.Low;
  const gint64 high = (upright ? line.x1 : line.y1) + copies.High + 1;
  const auto [first, last] =
      VisibleIndexes(from, to, upright ? clip.y1 : clip.x1, upright ? clip.y2 : clip.x2);
  const gint64 step = from <= to ? 1 : -1;
  const auto paint = [&](gint64 i, gint64 j) {
    const gint64 begin = std::min(from + step * i, from + step * j);
    const gint64 end = std::max(from + step * i, from + step * j) + 1;
    FillBox(drawable, upright ? PlaneBox{low, begin, high, end} : PlaneBox{begin, low, end, high},
            gc.Foreground);
  };
  if (dashes.Solid()) {
    if (first <= last) paint(first, last);
    return;
  }
  for (gint64 i = first; i <= last;) {
    const gint64 place = dashes.Place(i);
    if (place < dashes.OnLength()) paint(i, std::min(i + dashes.OnLength() - place - 1, last));
    i += dashes.Period() - place;
  }
}

// Walks the longer axis pixel by pixel; the shorter follows, rounded to the nearest pixel and at
// the exact half on towards the end.
void StrokeSlanted(Drawable& drawable, const DrawGc& gc, const LineEnds& line, OffsetRange copies,
                   const DashPattern& dashes) {
  const PlaneBox clip = BoxOf(drawable);
  const bool flat = line.Flat();
  const gint64 from = flat ? line.x1 : line.y1;
  const gint64 to = flat ? line.x2 : line.y2;
  const gint64 sideFrom = flat ? line.y1 : line.x1;
  const gint64 sideTo = flat ? line.y2 : line.x2;
  const auto [first, last] =
      VisibleIndexes(from, to, flat ? clip.x1 : clip.y1, flat ? clip.x2 : clip.y2);
  const gint64 length = std::abs(to - from);
  const gint64 sideLength = std::abs(sideTo - sideFrom);
  const gint64 step = from <= to ? 1 : -1;
  const gint64 sideStep = sideFrom <= sideTo ? 1 : -1;

  const __int128 travelled = static_cast<__int128>(2) * first * sideLength + length;
  gint64 side = sideFrom + sideStep * static_cast<gint64>(travelled / (2 * length));
  gint64 rest = static_cast<gint64>(travelled % (2 * length));
  for (gint64 i = first; i <= last; ++i) {
    if (dashes.On(i)) {
      const gint64 along = from + step * i;
      const gint64 low = side + copies.Low;
      const gint64 high = side + copies.High + 1;
      FillBox(drawable,
              flat ? PlaneBox{along, low, along + 1, high} : PlaneBox{low, along, high, along + 1},
              gc.Foreground);
    }
    rest += 2 * sideLength;
    if (rest >= 2 * length) {
      rest -= 2 * length;
      side += sideStep;
    }
  }
}

}  // namespace

bool LineEnds::Flat() const {
  return std::abs(x1 - x2) >= std::abs(y1 - y2);
}

void StrokeLine(Drawable& drawable, const DrawGc& gc, const LineEnds& line, OffsetRange copies,
                gint64 start) {
  const DashPattern dashes(gc.Dashes, start);
  if (line.Vertical() || line.Horizontal()) {
    StrokeStraight(drawable, gc, line, copies, dashes);
  } else {
    StrokeSlanted(drawable, gc, line, copies, dashes);
  }
}
