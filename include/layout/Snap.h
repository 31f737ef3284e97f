// Snapping to the grid.
#pragma once

#include "layout/Records.h"

// Snaps the item's points to the grid and orders them as its type asks.
void NormalizeZahyo(PTRNDATA* item);
// Snaps a point to the nearest line of the grid, or of the half grid.
void NormalizePoint(POINT* point, gint half);
