#include <cstdlib>

#include "layout/Guards.h"
#include "render/Primitives.h"
#include "render/primitives/LineWalk.h"
#include "render/primitives/Outlines.h"

namespace {

// The four sides, drawn round from the first corner, so that dashes run on from side to side.
void StrokeBox(Drawable& drawable, const DrawGc& gc, const PlaneBox& box) {
  const LineEnds sides[] = {{box.x1, box.y1, box.x2, box.y1},
                            {box.x2, box.y1, box.x2, box.y2},
                            {box.x2, box.y2, box.x1, box.y2},
                            {box.x1, box.y2, box.x1, box.y1}};
  gint64 start = 0;
  for (const LineEnds& side : sides) {
    StrokeLine(drawable, gc, side, {0, 0}, start);
    start += std::abs(side.x2 - side.x1) + std::abs(side.y2 - side.y1);
  }
}

}  // namespace

void DrawRect1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2) {
  const PlaneBox box = Normalised(x1, y1, x2, y2);
  if (filled) {
    FillBox(*drawable, box, gc->Foreground);
  } else {
    StrokeBox(*drawable, *gc, box);
  }
}

void DrawRect(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill) {
  gc->Dashes = nullptr;
  if (IsColour(fill)) {
    gc->Foreground = DrawColr[fill].pixel;
    DrawRect1(drawable, gc, 1, x1, y1, x2, y2);
  }
  if (width <= 0 || !IsColour(line)) return;
  gc->Foreground = DrawColr[line].pixel;
  const OffsetRange insets = OutlineInsets(width, position);
  for (gint64 inset = insets.Low; inset <= insets.High; ++inset) {
    // The corners are moved as given: with swapped corners an inset grows the box.
    StrokeBox(*drawable, *gc, Normalised(x1 + inset, y1 + inset, x2 - inset, y2 - inset));
  }
}
