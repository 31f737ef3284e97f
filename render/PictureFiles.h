// Decoded picture files.
#pragma once

#include <string>

#include "render/Surface.h"

// The picture in a regular file; null when it cannot be read. Kept until the file's time or size
// changes or newer pictures need the room, so it is valid until the next call.
const GdkPixbuf* PictureFile(const std::string& path);
