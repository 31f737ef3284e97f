// Decoded picture files.
#pragma once

#include <string>

#include "render/ShownPictures.h"
#include "render/Surface.h"

struct FilePicture {
  GdkPixbuf* Picture;              // null: the file cannot be read or holds none
  guint64 Source;                  // number of the file's state
  std::optional<FileState> State;  // none: there is no such file
};

// The present state of a regular file, none when there is no such file.
std::optional<FileState> PictureFileState(const std::string& path);

// The picture in a regular file. Kept until the file's time or size changes or newer pictures need
// the room, so it is valid until the next call.
FilePicture PictureFile(const std::string& path);

// Path of the picture `name` of `folder` (empty: the current folder). Empty for an absolute name
// and for one that leads out of the folder, by ".." or by a link, and when there is no such entry.
std::string PicturePathInside(const std::string& folder, const std::string& name);

// While one lives, each path is looked up once: a layout may show one picture in a hundred places,
// and every look asks the system about every folder on the way.
class KeptPicturePaths {
 public:
  KeptPicturePaths();
  ~KeptPicturePaths();
  KeptPicturePaths(const KeptPicturePaths&) = delete;
  KeptPicturePaths& operator=(const KeptPicturePaths&) = delete;
};
