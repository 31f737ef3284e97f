// Decoded picture files.
#pragma once

#include <string>

#include "render/Surface.h"

struct FilePicture {
  GdkPixbuf* picture;  // null: the file cannot be read or holds none
  guint64 source;      // number of the file's state
};

// The picture in a regular file. Kept until the file's time or size changes or newer pictures need
// the room, so it is valid until the next call.
FilePicture PictureFile(const std::string& path);
