#include "support/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

#include "support/FileHandle.h"
#include "support/FileTools.h"

namespace {

bool ReadExactly(const std::string& path, void* buffer, gint size, gint offset) {
  const FileHandle file = FileHandle::OpenToRead(path.c_str());
  return file && offset >= 0 &&
         file.ReadAt(buffer, static_cast<std::size_t>(size), offset) == static_cast<ssize_t>(size);
}

// Moves an entry unless the new name is taken, in one step where the file system can.
bool RenameToFreeName(const std::string& from, const std::string& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  return access(to.c_str(), F_OK) != 0 && rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace

gint FileRead(const gchar* path, const gchar* name, const gchar* ext, void* buffer, gint size,
              gint offset) {
  if (size <= 0) return 0;
  if (ReadExactly(JoinPath(path, name, ext), buffer, size, offset)) return 1;
  std::memset(buffer, 0, static_cast<std::size_t>(size));
  return 0;
}

gint FileWrite(const gchar* path, const gchar* name, const gchar* ext, const void* buffer,
               gint size, gint offset) {
  if (size < 0 || offset < 0) return 0;
  const std::string full = JoinPath(path, name, ext);
  if (size == 0) {  // leaves an empty file, yet counts as nothing written
    ReplaceFile(full, "");
    return 0;
  }
  const std::string_view bytes(static_cast<const char*>(buffer), static_cast<std::size_t>(size));
  return ReplaceFile(full, bytes, static_cast<std::size_t>(offset)) ? 1 : 0;
}

gint FileCopy(const gchar* path1, const gchar* name1, const gchar* ext1, const gchar* path2,
              const gchar* name2, const gchar* ext2) {
  const std::optional<std::string> content = ReadWholeFile(JoinPath(path1, name1, ext1), G_MAXINT);
  // An empty file cannot be copied.
  if (!content || content->empty()) return 0;
  return ReplaceFile(JoinPath(path2, name2, ext2), *content) ? 1 : 0;
}

gint FileRename(const gchar* path, const gchar* name1, const gchar* ext1, const gchar* name2,
                const gchar* ext2) {
  return RenameToFreeName(JoinPath(path, name1, ext1), JoinPath(path, name2, ext2)) ? 1 : 0;
}

gint FileDelete(const gchar* path, const gchar* name, const gchar* ext) {
  return FileExist(path, name, ext) != 0 && unlink(JoinPath(path, name, ext).c_str()) == 0 ? 1 : 0;
}

gint FileExist(const gchar* path, const gchar* name, const gchar* ext) {
  struct stat status;
  return stat(JoinPath(path, name, ext).c_str(), &status) == 0 ? 1 : 0;
}

gint FileSize(const gchar* path, const gchar* name, const gchar* ext) {
  struct stat status;
  if (stat(JoinPath(path, name, ext).c_str(), &status) != 0) return -1;
  return static_cast<gint>(std::min<off_t>(status.st_size, G_MAXINT));
}
