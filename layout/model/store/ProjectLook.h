// The common look that a project gives its layouts: new ones take it, renewal pushes it again.
#pragma once

#include "layout/ProjectRecord.h"
#include "layout/Records.h"

// Sizes, title area, work area, button area, cursor, key colours and logo of a parent window.
void CopyParentLook(PTRNHEDR& header, const PROJDATA& project);
// The same of a child window, which keeps its own size.
void CopyChildLook(PTRNHEDR& header, const PROJDATA& project);
// Grid intervals and colour, for every kind.
void CopyGridLook(PTRNHEDR& header, const PROJDATA& project);
