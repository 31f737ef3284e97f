#include "tests/faults/FileCalls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>

namespace {

constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();

struct Arrangement {
  std::string Name;  // "" = calls of every name
  int Call = 0;      // counted down to 0
  int Error = 0;
  FileCalls::Fault Kind = FileCalls::Fault::Once;
  std::size_t Room = NoLimit;
  std::size_t Longest = NoLimit;
  int KillPoint = 0;
  FileCalls::Watcher Watcher;
};

Arrangement Plan;
std::string WentWrong;
bool NewFilesRefused = false;
bool Paused = false;
int CallCount = 0;
int ChangeCount = 0;
bool Telling = false;  // the watcher's own calls are none of the test's

std::string PathOf(int file) {
  if (!Plan.Watcher) return {};  // nobody asks
  char path[4096];
  const ssize_t size =
      readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path);
  return {path, size > 0 ? static_cast<std::size_t>(size) : 0};
}

// Counts a call and tells whether it is to fail.
bool Fails(const char* name) {
  if (Telling || Paused) return false;
  ++CallCount;
  if (Plan.Call == 0 || (!Plan.Name.empty() && Plan.Name != name)) return false;
  if (Plan.Call > 1) {
    --Plan.Call;
    return false;
  }
  if (WentWrong.empty()) WentWrong = name;
  if (Plan.Kind != FileCalls::Fault::Lasting) Plan.Call = 0;
  if (Plan.Kind == FileCalls::Fault::Short) Plan.Room = 0;
  errno = Plan.Error;
  return true;
}

constexpr const char* ChangingCalls[] = {"open to write", "pwrite", "fallocate", "ftruncate",
                                         "fchown",        "fchmod", "rename",    "renameat2",
                                         "unlink",        "mkdir"};

void CountChange(const char* name) {
  if (std::find(std::begin(ChangingCalls), std::end(ChangingCalls), std::string_view(name)) ==
      std::end(ChangingCalls)) {
    return;
  }
  ++ChangeCount;
  if (Plan.KillPoint == ChangeCount) kill(getpid(), SIGKILL);
}

void Told(const char* name, const std::string& path) {
  if (Telling || Paused) return;
  CountChange(name);
  if (!Plan.Watcher) return;
  const int error = errno;
  Telling = true;
  Plan.Watcher(name, path);
  Telling = false;
  errno = error;
}

// The function of that name that stands behind this one.
template <typename Function>
Function* Behind(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsFolder(int file) {
  struct stat status;
  static auto* const behind = Behind<int(int, struct stat*)>("fstat");
  return behind(file, &status) == 0 && S_ISDIR(status.st_mode);
}

// A call with a result of -1 for failure.
template <typename Function, typename... Arguments>
int Call(const char* name, const std::string& path, Function* behind, Arguments... arguments) {
  if (Fails(name)) return -1;
  const int result = behind(arguments...);
  if (result != -1) Told(name, path);
  return result;
}

}  // namespace

namespace FileCalls {

void GoWrong(int call, int error, Fault fault) {
  GoWrong("", call, error, fault);
}

void GoWrong(const std::string& name, int call, int error, Fault fault) {
  Heal();
  Plan.Name = name;
  Plan.Call = call;
  Plan.Error = error;
  Plan.Kind = fault;
}

void LeaveRoom(std::size_t bytes) {
  Heal();
  Plan.Room = bytes;
}

void WriteInPieces(std::size_t longest) {
  Heal();
  Plan.Longest = longest;
}

void KillBehind(int changes) {
  Heal();
  Plan.KillPoint = changes;
}

void RefuseNewFiles(bool refuse) {
  NewFilesRefused = refuse;
}

void Pause(bool pause) {
  Paused = pause;
}

void Watch(Watcher watcher) {
  Heal();
  Plan.Watcher = std::move(watcher);
}

std::string Heal() {
  Plan = Arrangement();
  CallCount = 0;
  ChangeCount = 0;
  return std::exchange(WentWrong, {});
}

int Count() {
  return CallCount;
}

int Changes() {
  return ChangeCount;
}

}  // namespace FileCalls

extern "C" {

int open(const char* path, int flags, ...) {
  va_list args;
  va_start(args, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(args, mode_t) : 0;
  va_end(args);
  static auto* const behind = Behind<int(const char*, int, ...)>("open");
  const bool writes = (flags & O_ACCMODE) != O_RDONLY;
  if (NewFilesRefused && (flags & O_CREAT) != 0 && !Telling) {
    errno = EACCES;
    return -1;
  }
  return Call(writes ? "open to write" : "open", path, behind, path, flags, mode);
}

ssize_t pread(int file, void* bytes, size_t size, off_t offset) {
  static auto* const behind = Behind<ssize_t(int, void*, size_t, off_t)>("pread");
  return Fails("pread") ? -1 : behind(file, bytes, size, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  static auto* const behind = Behind<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  const bool fails = Fails("pwrite");
  if (fails && Plan.Kind != FileCalls::Fault::Short) return -1;
  if (fails) return behind(file, bytes, size / 2, offset);
  const std::size_t possible = std::min({size, Plan.Room, Plan.Longest});
  if (possible == 0 && size > 0) {
    if (WentWrong.empty()) WentWrong = "pwrite";
    errno = ENOSPC;
    return -1;
  }
  const ssize_t written = behind(file, bytes, possible, offset);
  if (Plan.Room != NoLimit && written > 0) Plan.Room -= static_cast<std::size_t>(written);
  if (written > 0) Told("pwrite", PathOf(file));
  return written;
}

// What fails on the way has made the file longer by then; a call that is not known has not.
int fallocate(int file, int mode, off_t offset, off_t size) {
  static auto* const behind = Behind<int(int, int, off_t, off_t)>("fallocate");
  const bool full = Plan.Room != NoLimit && static_cast<std::size_t>(size) > Plan.Room;
  if (!full && !Fails("fallocate")) {
    const int result = behind(file, mode, offset, size);
    if (result != -1) Told("fallocate", PathOf(file));
    return result;
  }
  if (full && WentWrong.empty()) WentWrong = "fallocate";
  const int error = full ? ENOSPC : errno;
  if (error != EOPNOTSUPP && error != ENOSYS) behind(file, mode, offset, size - 1);
  errno = error;
  return -1;
}

int ftruncate(int file, off_t size) noexcept {
  static auto* const behind = Behind<int(int, off_t)>("ftruncate");
  return Call("ftruncate", PathOf(file), behind, file, size);
}

int fsync(int file) {
  const auto nothing = [](int) { return 0; };
  return Call(IsFolder(file) ? "fsync of the folder" : "fsync", PathOf(file), +nothing, file);
}

// A descriptor is closed even where closing fails.
int close(int file) {
  static auto* const behind = Behind<int(int)>("close");
  const bool fails = Fails("close");
  const int error = errno;
  const int result = behind(file);
  if (!fails) return result;
  errno = error;
  return -1;
}

int flock(int file, int operation) noexcept {
  static auto* const behind = Behind<int(int, int)>("flock");
  return Call("flock", PathOf(file), behind, file, operation);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  static auto* const behind = Behind<int(int, uid_t, gid_t)>("fchown");
  return Call("fchown", PathOf(file), behind, file, owner, group);
}

int fchmod(int file, mode_t mode) noexcept {
  static auto* const behind = Behind<int(int, mode_t)>("fchmod");
  return Call("fchmod", PathOf(file), behind, file, mode);
}

int rename(const char* from, const char* to) noexcept {
  static auto* const behind = Behind<int(const char*, const char*)>("rename");
  return Call("rename", to, behind, from, to);
}

int renameat2(int from_folder, const char* from, int to_folder, const char* to,
              unsigned flags) noexcept {
  static auto* const behind =
      Behind<int(int, const char*, int, const char*, unsigned)>("renameat2");
  return Call("renameat2", to, behind, from_folder, from, to_folder, to, flags);
}

int unlink(const char* path) noexcept {
  static auto* const behind = Behind<int(const char*)>("unlink");
  return Call("unlink", path, behind, path);
}

int mkdir(const char* path, mode_t mode) noexcept {
  static auto* const behind = Behind<int(const char*, mode_t)>("mkdir");
  return Call("mkdir", path, behind, path, mode);
}

int stat(const char* path, struct stat* status) noexcept {
  static auto* const behind = Behind<int(const char*, struct stat*)>("stat");
  return Call("stat", path, behind, path, status);
}

int fstat(int file, struct stat* status) noexcept {
  static auto* const behind = Behind<int(int, struct stat*)>("fstat");
  return Call("fstat", "", behind, file, status);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  static auto* const behind = Behind<int(int, const char*, struct stat*, int)>("fstatat");
  return Call("fstatat", path, behind, folder, path, status, flags);
}

int access(const char* path, int mode) noexcept {
  static auto* const behind = Behind<int(const char*, int)>("access");
  return Call("access", path, behind, path, mode);
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  static auto* const behind = Behind<int(int, const char*, int, int)>("faccessat");
  return Call("faccessat", path, behind, folder, path, mode, flags);
}

char* realpath(const char* path, char* resolved) noexcept {
  static auto* const behind = Behind<char*(const char*, char*)>("realpath");
  return Fails("realpath") ? nullptr : behind(path, resolved);
}

DIR* opendir(const char* path) {
  static auto* const behind = Behind<DIR*(const char*)>("opendir");
  return Fails("opendir") ? nullptr : behind(path);
}

struct dirent* readdir(DIR* folder) {
  static auto* const behind = Behind<struct dirent*(DIR*)>("readdir");
  return Fails("readdir") ? nullptr : behind(folder);
}

}  // extern "C"
