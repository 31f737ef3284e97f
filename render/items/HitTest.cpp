#include "render/HitTest.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "layout/ItemTypes.h"
#include "render/surface/Plane.h"

namespace {

enum HitCode { HitNone = 0, HitBody = 9 };

bool NearPoint(const POINT& point, gint x, gint y) {
  return std::abs(point.x - x) <= HandleReach && std::abs(point.y - y) <= HandleReach;
}

// Codes 1..4, the corners.
gint CornerHandle(const POINT& point, const ItemBox& box) {
  if (NearPoint(point, box.X1, box.Y1)) return 1;
  if (NearPoint(point, box.X2, box.Y2)) return 2;
  if (NearPoint(point, box.X1, box.Y2)) return 3;
  if (NearPoint(point, box.X2, box.Y1)) return 4;
  return HitNone;
}

// Codes 5..8, the middles of the edges.
gint EdgeHandle(const POINT& point, const ItemBox& box) {
  if (NearPoint(point, box.MiddleX(), box.Y1)) return 5;
  if (NearPoint(point, box.MiddleX(), box.Y2)) return 6;
  if (NearPoint(point, box.X1, box.MiddleY())) return 7;
  if (NearPoint(point, box.X2, box.MiddleY())) return 8;
  return HitNone;
}

bool OnEdge(gint position, gint edge) {
  return std::abs(position - edge) <= 2;
}

gint BodyIf(bool hit) {
  return hit ? HitBody : HitNone;
}

// Distance along y, in single precision.
bool NearSlantedLine(const POINT& point, const ItemBox& line) {
  const float slope = static_cast<float>(line.Y1 - line.Y2) / static_cast<float>(line.X1 - line.X2);
  const float offset = static_cast<float>(line.Y1) - static_cast<float>(line.X1) * slope;
  const float distance =
      std::fabs(static_cast<float>(point.y) - slope * static_cast<float>(point.x) - offset);
  return distance <= 10.0F;
}

using Test = gint (*)(const POINT* point, const PTRNDATA* item);

// Index = ItemShape.
constexpr auto Tests = std::to_array<Test>(
    {nullptr, SearchPtrnData06, SearchPtrnData02, SearchPtrnData01, SearchPtrnData04});
static_assert(Tests.size() == ItemShapeCount);

}  // namespace

gint PointInRect(const POINT* point, gint x1, gint y1, gint x2, gint y2) {
  const gint x = point->x;
  const gint y = point->y;
  const bool inX = std::min(x1, x2) <= x && x <= std::max(x1, x2);
  const bool inY = std::min(y1, y2) <= y && y <= std::max(y1, y2);
  return inX && inY ? 1 : 0;
}

gint SearchPtrnData(const POINT* point, const PTRNDATA* item) {
  const auto shape = static_cast<std::size_t>(ItemTypeOf(item->Type).Shape);
  return Tests[shape] == nullptr ? gint{HitNone} : Tests[shape](point, item);
}

gint SearchPtrnData01(const POINT* point, const PTRNDATA* item) {
  const POINT at = OnPlane(POINT{*point});
  const ItemBox box = ItemBoxOf(*item);
  if (const gint corner = CornerHandle(at, box); corner != HitNone) return corner;
  if (const gint edge = EdgeHandle(at, box); edge != HitNone) return edge;
  // The edges only, and only of a box whose first point is its top left corner.
  const bool upright =
      (OnEdge(at.x, box.X1) || OnEdge(at.x, box.X2)) && box.Y1 <= at.y && at.y <= box.Y2;
  const bool level =
      (OnEdge(at.y, box.Y1) || OnEdge(at.y, box.Y2)) && box.X1 <= at.x && at.x <= box.X2;
  return BodyIf(upright || level);
}

gint SearchPtrnData02(const POINT* point, const PTRNDATA* item) {
  const POINT at = OnPlane(POINT{*point});
  const ItemBox line = ItemBoxOf(*item);
  if (NearPoint(at, line.X1, line.Y1)) return 1;
  if (NearPoint(at, line.X2, line.Y2)) return 2;
  // Kept: 5 dots either side of a vertical line, 4 of a horizontal one.
  if (line.X1 == line.X2) {
    return BodyIf(PointInRect(&at, line.X1 - 5, line.Y1, line.X1 + 5, line.Y2) != 0);
  }
  if (line.Y1 == line.Y2) {
    return BodyIf(PointInRect(&at, line.X1, line.Y1 - 4, line.X2, line.Y1 + 4) != 0);
  }
  // The box grows at the second point and shrinks where that lies left of or above the first.
  if (PointInRect(&at, line.X1 - 5, line.Y1 - 5, line.X2 + 5, line.Y2 + 5) == 0) return HitNone;
  return BodyIf(NearSlantedLine(at, line));
}

gint SearchPtrnData04(const POINT* point, const PTRNDATA* item) {
  const POINT at = OnPlane(POINT{*point});
  const ItemBox box = ItemBoxOf(*item);
  if (const gint edge = EdgeHandle(at, box); edge != HitNone) return edge;
  if (box.X1 == box.X2 || box.Y1 == box.Y2) return HitNone;
  const double dx = at.x - (box.X1 + box.X2) / 2.0;
  const double dy = at.y - (box.Y1 + box.Y2) / 2.0;
  const double rx = box.Width() / 2.0;
  const double ry = box.Height() / 2.0;
  const double reach = dx * dx / (rx * rx) + dy * dy / (ry * ry);
  return BodyIf(reach >= 0.9 && reach <= 1.1);
}

gint SearchPtrnData06(const POINT* point, const PTRNDATA* item) {
  const POINT at = OnPlane(POINT{*point});
  const POINT anchor = OnPlane(POINT{item->Point1});
  const gint width = OnPlane(item->Size.cx);
  const gint height = OnPlane(item->Size.cy);
  if (width == 0 && height == 0) {
    // Kept: 5 dots around the point, to the left only 1.
    return BodyIf(PointInRect(&at, anchor.x - 1, anchor.y - 5, anchor.x + 5, anchor.y + 5) != 0);
  }
  return BodyIf(PointInRect(&at, anchor.x, anchor.y, anchor.x + width, anchor.y + height) != 0);
}
