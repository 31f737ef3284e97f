// Hit tests, in layout dots. Codes: 0 none; 1 Point1, 2 Point2, 3 (x1, y2), 4 (x2, y1), 5 top, 6
// bottom, 7 left, 8 right edge middle; 9 body or outline.
#pragma once

#include "layout/Records.h"

// How far a drag handle reaches on either side of its place: in zoomed pixels as it is drawn, in
// layout dots as it is hit.
constexpr gint HandleReach = 5;

gint SearchPtrnData(const POINT* point, const PTRNDATA* item);
gint SearchPtrnData01(const POINT* point, const PTRNDATA* item);
gint SearchPtrnData02(const POINT* point, const PTRNDATA* item);
gint SearchPtrnData04(const POINT* point, const PTRNDATA* item);
gint SearchPtrnData06(const POINT* point, const PTRNDATA* item);
// 1 when the point lies in the box, bounds included, corners in any order.
gint PointInRect(const POINT* point, gint x1, gint y1, gint x2, gint y2);
