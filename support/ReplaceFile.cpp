#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "support/FileHandle.h"
#include "support/FileTools.h"

namespace {

// A new file is for everybody whom the creation mask lets; what replaces a file is its owner's
// alone until it has taken over who may use that.
constexpr mode_t NewFileMode = 0666;
constexpr mode_t PrivateMode = 0600;

// What the file is to hold: `offset` zero bytes, then `bytes`.
struct Content {
  std::string_view Bytes;
  off_t Offset;
  off_t Size() const { return Offset + static_cast<off_t>(Bytes.size()); }
};

enum class Outcome { Done, Failed, Refused };  // Refused = by the folder, not by the disk

bool FolderRefuses(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

Outcome OutcomeOf(int error) {
  return FolderRefuses(error) ? Outcome::Refused : Outcome::Failed;
}

// The folder of a file, open from before its entry changes, so that afterwards only the flush
// itself can fail.
class FolderToFlush {
 public:
  explicit FolderToFlush(const std::string& file)
      : folder_(FileHandle::Open((file.substr(0, file.rfind('/') + 1) + ".").c_str(),
                                 O_RDONLY | O_DIRECTORY)),
        // A folder that lets us write but not read cannot be flushed and need not be.
        ready_(folder_ || errno == EACCES) {}

  explicit operator bool() const { return ready_; }
  bool Flush() const {
    return !folder_ || folder_.Flush() || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
  }

 private:
  FileHandle folder_;
  bool ready_;
};

bool HasMode(const FileHandle& file, mode_t mode) {
  struct stat status;
  return fstat(file.Get(), &status) == 0 && (status.st_mode & 0777) == mode;
}

// The new file takes over whose the old one is, as far as the system lets it, and who may use it.
// What the old group might do, another group gets no more of than everybody.
bool TakeAttributes(const FileHandle& file, const struct stat& old) {
  mode_t mode = old.st_mode & 0777;
  if (fchown(file.Get(), old.st_uid, old.st_gid) != 0 &&
      fchown(file.Get(), static_cast<uid_t>(-1), old.st_gid) != 0) {
    mode &= ~static_cast<mode_t>(070) | (mode & 07) << 3;
  }
  return fchmod(file.Get(), mode) == 0 || HasMode(file, mode);
}

// A file beside the one to be written, removed unless it has become that.
class Temporary {
 public:
  Temporary(const std::string& path, mode_t mode) {
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    static unsigned serial = 0;
    // The name tells nothing of the file's, so no name is too long for it.
    for (int attempt = 0; attempt < 1000 && !file_; ++attempt) {
      name_ = folder + ".varnix-" + std::to_string(getpid()) + "-" + std::to_string(serial++);
      file_ = FileHandle::Open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
      if (!file_ && errno != EEXIST) break;
    }
    made_ = static_cast<bool>(file_);
  }
  ~Temporary() {
    if (made_) unlink(name_.c_str());
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;

  explicit operator bool() const { return made_; }
  FileHandle& File() { return file_; }
  bool Becomes(const std::string& path) {
    made_ = rename(name_.c_str(), path.c_str()) != 0;
    return !made_;
  }

 private:
  std::string name_;
  FileHandle file_;
  bool made_ = false;
};

Outcome ReplaceByRename(const std::string& path, const Content& content, const struct stat* old) {
  const FolderToFlush folder(path);
  if (!folder) return Outcome::Failed;
  Temporary temporary(path, old == nullptr ? NewFileMode : PrivateMode);
  if (!temporary) return OutcomeOf(errno);
  FileHandle& file = temporary.File();
  if (!file.WriteAt(content.Bytes, content.Offset) || !file.SetLength(content.Size())) {
    return Outcome::Failed;
  }
  if (old != nullptr && !TakeAttributes(file, *old)) return Outcome::Refused;
  if (!file.Flush() || !file.Close()) return Outcome::Failed;
  if (!temporary.Becomes(path)) return OutcomeOf(errno);
  return folder.Flush() ? Outcome::Done : Outcome::Failed;
}

// Finds out that the disk is full while the old content still stands.
bool Reserve(const FileHandle& file, off_t size, off_t old_size) {
  if (size <= old_size || file.Reserve(size)) return true;
  if (errno == EOPNOTSUPP || errno == ENOSYS) return true;
  file.SetLength(old_size);  // part of the room may have been added
  return false;
}

bool WriteZeros(const FileHandle& file, off_t count) {
  const std::string zeros(static_cast<std::size_t>(std::min<off_t>(count, 65536)), '\0');
  for (off_t done = 0; done < count; done += static_cast<off_t>(zeros.size())) {
    const auto piece = static_cast<std::size_t>(std::min<off_t>(count - done, 65536));
    if (!file.WriteAt(std::string_view(zeros).substr(0, piece), done)) return false;
  }
  return true;
}

// Overwrites first and cuts last, so that the file keeps the room it has.
bool Overwrite(const FileHandle& file, const Content& content) {
  return WriteZeros(file, content.Offset) && file.WriteAt(content.Bytes, content.Offset) &&
         file.SetLength(content.Size()) && file.Flush();
}

bool WriteInPlace(const std::string& path, const Content& content) {
  const std::optional<std::string> old = ReadWholeFile(path);
  const FileHandle file = FileHandle::Open(path.c_str(), O_WRONLY | O_NOFOLLOW);
  if (!old || !file || !Reserve(file, content.Size(), static_cast<off_t>(old->size()))) {
    return false;
  }
  if (Overwrite(file, content)) return true;
  Overwrite(file, {*old, 0});
  return false;
}

// The file that a link leads to, or the link itself when it leads nowhere; nothing when that cannot
// be found out.
std::optional<std::string> Resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(path.c_str(), nullptr), &free);
  if (real) return real.get();
  return errno == ENOENT ? std::optional(path) : std::nullopt;
}

enum class Protection { OfFile, OfFolder };  // whose decides about writing

bool Replace(const std::string& path, const Content& content, Protection protection) {
  struct stat old;
  // Asked by the name as given: the system may forbid to follow a link that somebody else has put
  // into a folder of everybody's.
  const bool exists = stat(path.c_str(), &old) == 0;
  if (!exists) return errno == ENOENT && ReplaceByRename(path, content, nullptr) == Outcome::Done;
  if (!S_ISREG(old.st_mode)) return false;
  const std::optional<std::string> target = Resolved(path);
  if (!target) return false;
  // Renaming would pass over a write protection of the file.
  if (protection == Protection::OfFile &&
      faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0) {
    return false;
  }
  const Outcome outcome = ReplaceByRename(*target, content, &old);
  if (outcome == Outcome::Refused) return WriteInPlace(*target, content);
  return outcome == Outcome::Done;
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view content, std::size_t offset) {
  return Replace(path, {content, static_cast<off_t>(offset)}, Protection::OfFile);
}

bool ReplaceProtectedFile(const std::string& path, std::string_view content) {
  return Replace(path, {content, 0}, Protection::OfFolder);
}

bool CopyBeside(const std::string& path, const std::string& copy) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) return false;
  const std::optional<std::string> content = ReadWholeFile(path);
  return content && ReplaceByRename(copy, {*content, 0}, &status) == Outcome::Done;
}
