// Where the bytes of a file come from: the open file itself, or a copy of it in memory.
#pragma once

#include <string_view>

#include "Types.h"
#include "support/FileHandle.h"

class FileSource {
 public:
  FileSource() = default;
  explicit FileSource(std::string_view bytes)
      : bytes_(bytes), size_(static_cast<gint64>(bytes.size())), open_(true) {}
  FileSource(FileHandle file, gint64 size) : file_(std::move(file)), size_(size), open_(true) {}

  bool IsOpen() const { return open_; }
  gint64 Size() const { return size_; }
  // Number of bytes that came from `offset` on, at most `size`; -1 when the system is at fault.
  ssize_t ReadAt(void* buffer, std::size_t size, gint64 offset) const;

 private:
  FileHandle file_;  // not open where the bytes are in memory
  std::string_view bytes_;
  gint64 size_ = 0;
  bool open_ = false;
};
