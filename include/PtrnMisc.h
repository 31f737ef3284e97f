// Support: profiles, files and paths, text, and the palette, mark and font tables.
#pragma once

#include "Types.h"
#include "support/Files.h"
#include "support/Profile.h"
#include "support/Resource.h"
#include "support/Text.h"

// Folder of the running executable, file-system bytes, no trailing "/". Written once at start-up.
extern gchar PathName[258];
// Data version written into project and layout files.
extern gint Version;
