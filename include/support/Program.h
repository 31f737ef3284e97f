// The program itself: where it stands and which data it writes.
#pragma once

#include "Types.h"

// Folder of the running executable, file-system bytes, no trailing "/". Written once at start-up.
extern gchar PathName[258];
// Data version written into project and layout files.
extern gint Version;
