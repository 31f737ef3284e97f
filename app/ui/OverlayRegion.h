// Where the editing overlay lies on the canvas.
#pragma once

#include "Holders.h"
#include "Types.h"

// The pixels that DrawWindow2 may touch in the present editing state, on a canvas of this size.
RegionPtr OverlayRegion(gint width, gint height);
