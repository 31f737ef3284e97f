#include "layout/Guards.h"
#include "render/Primitives.h"
#include "render/primitives/LineWalk.h"

namespace {

const gint8 dash1[] = {12, 4};
const gint8 dash2[] = {4, 2};

// Offsets of the copies of a vertical or horizontal line: centred 0, -1, +1, -2, +2, ...
OffsetRange StraightOffsets(gint64 width, gint position) {
  if (position == 0) return {-(width / 2), (width - 1) / 2};
  return position == 1 ? OffsetRange{-width, -1} : OffsetRange{0, width - 1};
}

// Offsets of the copies of a slanted line. Copy k lies at -k / 2 for even and k / 2 - 1 for odd k:
// 0, -1, -1, 0, -2, +1, -3, +2, ... Kept: the repeated offsets make the line thinner than its
// width. The offsets leave no gap, so their ends say all. For widths above 1.
OffsetRange SlantedOffsets(gint64 width) {
  return {-std::max<gint64>(1, (width - 1) / 2), std::max<gint64>(0, width / 2 - 2)};
}

}  // namespace

void DrawLine(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint style,
              gint width, gint position, gint colour) {
  if (!IsColour(colour) || width <= 0) return;
  gc->Foreground = DrawColr[colour].pixel;
  gc->Dashes = style == 0 ? nullptr : style == 1 ? dash1 : dash2;
  const LineEnds line{x1, y1, x2, y2};
  OffsetRange copies{0, 0};
  if (width > 1) {
    copies = line.Vertical() || line.Horizontal() ? StraightOffsets(width, position)
                                                  : SlantedOffsets(width);
  }
  StrokeLine(*drawable, *gc, line, copies);
}
