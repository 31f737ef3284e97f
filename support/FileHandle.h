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
  // Closes now. False when the system tells only here that what was written did not arrive.
  bool Close();

  // Opens with the flags of open(); not open on failure, the reason in errno.
  static FileHandle Open(const char* path, int flags, mode_t mode = 0);
  // Opens for reading without ever waiting, as a named pipe would make it do.
  static FileHandle OpenToRead(const char* path);
  // Number of bytes that came from `offset` on, at most `size`; -1 on an error.
  ssize_t ReadAt(void* buffer, std::size_t size, off_t offset) const;
  bool WriteAt(std::string_view bytes, off_t offset) const;
  bool SetLength(off_t length) const;
  // Makes room for so many bytes, which lengthens a shorter file, in part even where it fails.
  bool Reserve(off_t length) const;
  // Has the device take what was written.
  bool Flush() const;

 private:
  int descriptor_ = -1;
};
