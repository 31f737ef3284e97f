// The main window's size from one run to the next.
#pragma once

#include "Types.h"

// The saved size, 800 x 600 when there is none.
SIZE SavedWindowSize();
// Keeps the main window's size in memory; for the time after the window is gone.
void RememberWindowSize();
