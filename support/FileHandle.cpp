#include "support/FileHandle.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

FileHandle::FileHandle(FileHandle&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

FileHandle::~FileHandle() {
  if (descriptor_ >= 0) close(descriptor_);
}

FileHandle FileHandle::OpenToRead(const char* path) {
  return FileHandle(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

ssize_t FileHandle::ReadAt(void* buffer, std::size_t size, off_t offset) const {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t count = pread(descriptor_, static_cast<char*>(buffer) + done, size - done,
                                offset + static_cast<off_t>(done));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return -1;
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  return static_cast<ssize_t>(done);
}

bool FileHandle::WriteAt(std::string_view bytes, off_t offset) const {
  while (!bytes.empty()) {
    const ssize_t count = pwrite(descriptor_, bytes.data(), bytes.size(), offset);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
    offset += count;
  }
  return true;
}
