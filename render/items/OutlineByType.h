// Which outline an item type has.
#pragma once

#include "layout/Records.h"
#include "render/Surface.h"

using OutlineFunction = void (*)(Drawable*, DrawGc*, const PTRNDATA*, gint undefined, gint zoom);

// Null for an unknown type.
OutlineFunction OutlineOf(gint type);
