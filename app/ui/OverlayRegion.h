// Where the editing overlay lies on the canvas.
#pragma once

#include "Types.h"
#include "app/ui/Holders.h"

// The pixels that DrawWindow2 may touch in the present editing state, on a canvas of this size.
RegionPtr OverlayRegion(gint width, gint height);
