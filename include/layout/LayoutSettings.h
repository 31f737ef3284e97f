// What the settings dialog of a layout asks of the editing.
#pragma once

#include "Types.h"

// Checks the working copy and tells the first thing that is wrong; 1 when all is well.
gint EditPtrnData_Check();
// Notes in the project and in its file whether the layout is its start and its exit screen. 0 = the
// file could not be read or written.
gint EditPtrnData_Renew();
