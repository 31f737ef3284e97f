// The rules that an item keeps.
#pragma once

#include "layout/Records.h"

// First rule that a (snapped) item breaks, as an index into ErrorMessage; -1 = valid.
gint CheckPtrnData(const PTRNDATA* item);
