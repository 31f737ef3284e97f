#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>

#include "support/FileHandle.h"
#include "support/FileTools.h"

namespace {

constexpr mode_t NewFileMode = 0666;

// What the file is to hold: `offset` zero bytes, then `bytes`.
struct Content {
  std::string_view bytes;
  off_t offset;
  off_t Size() const { return offset + static_cast<off_t>(bytes.size()); }
};

enum class Outcome { Done, Failed, Refused };  // Refused = by the folder, not by the disk

bool FolderRefuses(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

bool SetLength(const FileHandle& file, off_t length) {
  return ftruncate(file.Get(), length) == 0;
}

bool SetOwner(const FileHandle& file, uid_t owner, gid_t group) {
  return fchown(file.Get(), owner, group) == 0;
}

bool SetMode(const FileHandle& file, mode_t mode) {
  return fchmod(file.Get(), mode) == 0;
}

// Overwrites first and cuts last, so that a file written in place keeps the room it has.
bool Fill(const FileHandle& file, const Content& content) {
  if (content.offset > 0 && !SetLength(file, 0)) return false;
  return file.WriteAt(content.bytes, content.offset) && SetLength(file, content.Size()) &&
         fsync(file.Get()) == 0;
}

// The new file takes over whose the old one is and who may use it, as far as the system lets it.
void KeepAttributes(const FileHandle& file, const struct stat& old) {
  if (!SetOwner(file, old.st_uid, old.st_gid)) SetOwner(file, static_cast<uid_t>(-1), old.st_gid);
  SetMode(file, old.st_mode & 0777);
}

// A new hidden file in the folder of `path`; its name tells nothing, so no name is too long for it.
FileHandle OpenTemporary(const std::string& path, std::string& name) {
  const std::string folder = path.substr(0, path.rfind('/') + 1);
  static unsigned serial = 0;
  for (int attempt = 0; attempt < 1000; ++attempt) {
    name = folder + ".varnix-" + std::to_string(getpid()) + "-" + std::to_string(serial++);
    FileHandle file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, NewFileMode));
    if (file || errno != EEXIST) return file;
  }
  return {};
}

Outcome ReplaceByRename(const std::string& path, const Content& content, const struct stat* old) {
  std::string name;
  const FileHandle file = OpenTemporary(path, name);
  if (!file) return FolderRefuses(errno) ? Outcome::Refused : Outcome::Failed;
  Outcome outcome = Outcome::Failed;
  if (Fill(file, content)) {
    if (old != nullptr) KeepAttributes(file, *old);
    if (rename(name.c_str(), path.c_str()) == 0) return Outcome::Done;
    if (FolderRefuses(errno)) outcome = Outcome::Refused;
  }
  unlink(name.c_str());
  return outcome;
}

// Finds out that the disk is full while the old content still stands.
bool Reserve(const FileHandle& file, off_t size, off_t old_size) {
  if (size <= old_size || fallocate(file.Get(), 0, 0, size) == 0) return true;
  if (errno == EOPNOTSUPP || errno == ENOSYS) return true;
  SetLength(file, old_size);  // part of the room may have been added
  return false;
}

bool WriteInPlace(const std::string& path, const Content& content, const struct stat& old) {
  const FileHandle file(open(path.c_str(), O_WRONLY | O_CLOEXEC));
  return file && Reserve(file, content.Size(), old.st_size) && Fill(file, content);
}

// The file that a link leads to: it is replaced, and the link stays. A link that leads nowhere is
// replaced itself.
std::string Resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(path.c_str(), nullptr), &free);
  return real ? real.get() : path;
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view content, std::size_t offset) {
  const Content wanted{content, static_cast<off_t>(offset)};
  const std::string target = Resolved(path);
  struct stat old;
  if (stat(target.c_str(), &old) != 0) {
    return errno == ENOENT && ReplaceByRename(target, wanted, nullptr) == Outcome::Done;
  }
  if (!S_ISREG(old.st_mode)) return false;
  // Renaming would pass over a write protection of the file.
  if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return false;
  const Outcome outcome = ReplaceByRename(target, wanted, &old);
  if (outcome == Outcome::Refused) return WriteInPlace(target, wanted, old);
  return outcome == Outcome::Done;
}
