// The texts of a project's record.
#pragma once

#include "layout/ProjectRecord.h"

// The record with every text ended within its field and nothing left behind its end, as it is taken
// from a file and put into one.
PROJDATA CleanTexts(PROJDATA data);
