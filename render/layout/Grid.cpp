#include "layout/Guards.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "render/surface/PageArea.h"

namespace {

constexpr gint Dotted = 2;

// Every tenth line is solid, but not the first.
gint GridStyle(gint number) {
  return number != 0 && number % 10 == 0 ? 0 : Dotted;
}

// Calls draw(position, style) for the grid lines at 0, step, ... below `extent` that a surface of
// `visible` pixels from `start` on can show. A step that the zoom shrank to nothing has no lines.
template <typename Draw>
void EachGridLine(gint step, gint extent, gint start, gint visible, Draw draw) {
  if (step <= 0) return;
  const gint end = std::min(extent, start + visible);
  for (gint number = std::max(0, start) / step; number * step < end; ++number) {
    draw(number * step, GridStyle(number));
  }
}

}  // namespace

void DrawGridData(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  if (header.Parm2[ViewSlot::GridShown] == 0) return;
  const gint zoom = ZoomPercent(header.Parm2[ViewSlot::Zoom]);
  const PageArea page(header);
  const gint width = Zoomed(page.Width, zoom);
  const gint height = Zoomed(page.Height, zoom);
  const gint colour = header.Parm2[ViewSlot::GridColour];

  EachGridLine(Zoomed(GridDots(header.Parm2[ViewSlot::GridX]), zoom), width, drawable->X(),
               drawable->Width(), [&](gint x, gint style) {
                 DrawLine(drawable, gc, x, 0, x, height, style, 1, 0, colour);
               });
  EachGridLine(Zoomed(GridDots(header.Parm2[ViewSlot::GridY]), zoom), height, drawable->Y(),
               drawable->Height(), [&](gint y, gint style) {
                 DrawLine(drawable, gc, 0, y, width, y, style, 1, 0, colour);
               });
}

void DrawGridData(Drawable* drawable, DrawGc* gc) {
  DrawGridData(drawable, gc, PtrnHedr);
}
