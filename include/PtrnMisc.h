// Support: profiles, files and paths, text, and the palette, mark and font tables.
#pragma once

#include "Types.h"
#include "render/FontTable.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "support/Files.h"
#include "support/Profile.h"
#include "support/Program.h"
#include "support/Resource.h"
#include "support/Text.h"
