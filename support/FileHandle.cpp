#include "support/FileHandle.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

// Takes a step that ends with 0 again for as long as the system interrupts it.
template <typename Step>
bool Succeeds(Step step) {
  int result = 0;
  do {
    result = step();
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

}  // namespace

FileHandle::FileHandle(FileHandle&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

FileHandle::~FileHandle() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool FileHandle::Close() {
  // An interrupted close has closed all the same.
  return close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR;
}

FileHandle FileHandle::Open(const char* path, int flags, mode_t mode) {
  int descriptor = -1;
  do {
    descriptor = open(path, flags | O_CLOEXEC, mode);
  } while (descriptor < 0 && errno == EINTR);
  return FileHandle(descriptor);
}

FileHandle FileHandle::OpenToRead(const char* path) {
  return Open(path, O_RDONLY | O_NONBLOCK);
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

bool FileHandle::SetLength(off_t length) const {
  return Succeeds([this, length] { return ftruncate(descriptor_, length); });
}

bool FileHandle::Reserve(off_t length) const {
  return Succeeds([this, length] { return fallocate(descriptor_, 0, 0, length); });
}

bool FileHandle::Flush() const {
  return Succeeds([this] { return fsync(descriptor_); });
}
