// A picture of what two layouts differ in.
#pragma once

#include "tools/Commands.h"

// Writes the picture of `options.After` to the file `options.Folder`, with the changed, added and
// removed items outlined. The project is open.
int RenderChanges(const RenderOptions& options);
