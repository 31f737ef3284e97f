// An open file descriptor that closes itself, and reading and writing that see a transfer through.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string_view>

class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle&& other) noexcept;
  FileHandle& operator=(FileHandle&& other) noexcept;
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle();

  explicit operator bool() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }

  // Opens for reading without ever waiting, as a named pipe would make it do.
  static FileHandle OpenToRead(const char* path);
  // Number of bytes that came from `offset` on, at most `size`; -1 on an error.
  ssize_t ReadAt(void* buffer, std::size_t size, off_t offset) const;
  bool WriteAt(std::string_view bytes, off_t offset) const;

 private:
  int descriptor_ = -1;
};
