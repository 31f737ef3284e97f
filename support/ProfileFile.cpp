#include "support/ProfileFile.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

#include "support/FileHandle.h"
#include "support/FileTools.h"
#include "support/Program.h"

namespace {

// Locks the folder, not the profile, which is another file after each change. Waits for at most a
// second: whoever is stopped with the lock in his hand must not stop everybody else.
FileHandle LockFolderOf(const std::string& path) {
  constexpr int Tries = 200;
  constexpr gulong Pause = 5000;  // microseconds
  const std::string folder = path.substr(0, path.rfind('/') + 1);
  FileHandle lock(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  for (int attempt = 0; lock && attempt < Tries; ++attempt) {
    if (flock(lock.Get(), LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR)) {
      break;
    }
    g_usleep(Pause);
  }
  return lock;
}

}  // namespace

std::string ProfilePath(const gchar* profname) {
  return *profname == '\0' ? JoinPath(PathName, "VarnixMaster", "ini") : std::string(profname);
}

std::optional<std::string> LoadProfile(const std::string& path) {
  if (IsMissing(path)) return std::string();
  return ReadWholeFile(path, ProfileLimit);
}

void ChangeProfile(const std::string& path,
                   const std::function<bool(std::string& profile)>& change) {
  const FileHandle lock = LockFolderOf(path);
  std::optional<std::string> profile = LoadProfile(path);
  if (profile && change(*profile)) ReplaceFile(path, *profile);
}

std::string NumberedKey(const gchar* keyname, gint no) {
  return keyname + std::to_string(no);
}
