#include "app/ui/OverlayRegion.h"

#include <algorithm>

#include "PtrnData.h"
#include "render/HitTest.h"
#include "render/LayoutPicture.h"

namespace {

// How far outline and handles may stand off the box.
constexpr gint Reach = HandleReach + 1;
// Far outside any canvas, and far from overflow.
constexpr gint64 FarAway = 1 << 20;

struct Box {
  gint X1, Y1, X2, Y2;
};

gint Zoomed(gint64 dots) {
  const gint64 pixels = dots * ZoomPercent(PtrnHedr.Parm2[ViewSlot::Zoom]) / 100;
  return static_cast<gint>(std::clamp(pixels, -FarAway, FarAway));
}

Box ZoomedBox(gint64 x1, gint64 y1, gint64 x2, gint64 y2) {
  return {Zoomed(std::min(x1, x2)), Zoomed(std::min(y1, y2)), Zoomed(std::max(x1, x2)),
          Zoomed(std::max(y1, y2))};
}

Box ItemBox() {
  const POINT& first = PtrnData.Point1;
  if (IsItemType(PtrnData.Type) && !HasTwoPoints(PtrnData.Type)) {
    return ZoomedBox(first.x, first.y, gint64{first.x} + PtrnData.Size.cx,
                     gint64{first.y} + PtrnData.Size.cy);
  }
  return ZoomedBox(first.x, first.y, PtrnData.Point2.x, PtrnData.Point2.y);
}

RegionPtr Widened(const Box& box, gint by) {
  const cairo_rectangle_int_t rectangle{box.X1 - by, box.Y1 - by, box.X2 - box.X1 + 2 * by + 1,
                                        box.Y2 - box.Y1 + 2 * by + 1};
  if (rectangle.width <= 0 || rectangle.height <= 0) return RegionPtr(cairo_region_create());
  return RegionPtr(cairo_region_create_rectangle(&rectangle));
}

// The box without its inside, which an outline leaves as it is.
RegionPtr Outline(const Box& box) {
  RegionPtr region = Widened(box, Reach);
  cairo_region_subtract(region.get(), Widened(box, -Reach).get());
  return region;
}

}  // namespace

RegionPtr OverlayRegion(gint width, gint height) {
  if (PtrnUndef != 0) {
    const cairo_rectangle_int_t all{0, 0, width, height};
    return RegionPtr(cairo_region_create_rectangle(&all));
  }
  if (PtrnMode == ModeArea) {
    return Outline(ZoomedBox(AreaPoint1.x, AreaPoint1.y, AreaPoint2.x, AreaPoint2.y));
  }
  if (PtrnMode < ModeCreating || PtrnMode > ModeDragging) return RegionPtr(cairo_region_create());

  return OutlineCrossesBox(PtrnData.Type) ? Widened(ItemBox(), Reach) : Outline(ItemBox());
}
