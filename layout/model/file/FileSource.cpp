#include "layout/model/file/FileSource.h"

ssize_t FileSource::ReadAt(void* buffer, std::size_t size, gint64 offset) const {
  if (file_) return file_.ReadAt(buffer, size, offset);
  if (offset >= size_) return 0;
  return static_cast<ssize_t>(
      bytes_.copy(static_cast<char*>(buffer), size, static_cast<std::size_t>(offset)));
}
