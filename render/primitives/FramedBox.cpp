#include "layout/Guards.h"
#include "render/Primitives.h"
#include "render/surface/Paint.h"

namespace {

void FillColour(Drawable& drawable, DrawGc& gc, const PlaneBox& box, gint colour) {
  if (IsColour(colour)) {
    gc.Foreground = DrawColr[colour].pixel;
    FillBox(drawable, box, gc.Foreground);
  }
}

}  // namespace

void DrawGbox(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint top,
              gint bottom, gint left, gint right, gint topColour, gint bottomColour,
              gint leftColour, gint rightColour, gint areaColour) {
  gc->Dashes = nullptr;
  const gint64 ax = x1, ay = y1, bx = x2, by = y2;
  // The area keeps its corners as given: swapped ones leave it empty.
  FillColour(*drawable, *gc, {ax, ay, bx, by}, areaColour);
  // Borders are bundles of lines, so both ends count and their direction does not.
  const gint64 minX = std::min(ax, bx), maxX = std::max(ax, bx) + 1;
  const gint64 minY = std::min(ay, by), maxY = std::max(ay, by) + 1;
  FillColour(*drawable, *gc, {minX, ay, maxX, ay + top}, topColour);
  FillColour(*drawable, *gc, {minX, by - bottom, maxX, by}, bottomColour);
  FillColour(*drawable, *gc, {ax, minY, ax + left, maxY}, leftColour);
  FillColour(*drawable, *gc, {bx - right, minY, bx, maxY}, rightColour);
}
