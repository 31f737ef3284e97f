#include "render/pictures/PictureFiles.h"

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <sys/stat.h>

#include <list>

#include "render/pictures/KeptPictures.h"

namespace {

// 33 million pixels. More is no picture for a screen, and a small file can claim and hold it.
constexpr gint64 MaxPictureBytes = gint64{128} << 20;
constexpr gint64 MaxKeptBytes = gint64{256} << 20;
constexpr std::size_t MaxKeptFiles = 64;

struct KeptPicture {
  std::string Path;
  FileState State;
  PixbufPtr Picture;  // null: the file holds none
  gint64 Bytes;
  guint64 Source;
};

PixbufPtr ReadPicture(const std::string& path) {
  gint width = 0, height = 0;
  // A header may claim any size; nothing is decoded before that is known to be bearable.
  if (gdk_pixbuf_get_file_info(path.c_str(), &width, &height) == nullptr || width < 1 ||
      height < 1 || gint64{4} * width * height > MaxPictureBytes) {
    return nullptr;
  }
  return PixbufPtr(gdk_pixbuf_new_from_file(path.c_str(), nullptr));
}

// Newest first.
std::list<KeptPicture> kept;

void DropOldest() {
  gint64 bytes = 0;
  std::size_t files = 0;
  for (auto entry = kept.begin(); entry != kept.end();) {
    bytes += entry->Bytes;
    ++files;
    const bool drop = files > 1 && (files > MaxKeptFiles || bytes > MaxKeptBytes);
    entry = drop ? kept.erase(entry) : std::next(entry);
  }
}

}  // namespace

std::optional<FileState> PictureFileState(const std::string& path) {
  struct stat info = {};
  if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
  return FileState{info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec,
                   info.st_mtim.tv_nsec};
}

FilePicture PictureFile(const std::string& path) {
  const std::optional<FileState> state = PictureFileState(path);
  if (!state) return {nullptr, 0, state};
  for (auto entry = kept.begin(); entry != kept.end(); ++entry) {
    if (entry->Path != path) continue;
    if (entry->State == state) {
      kept.splice(kept.begin(), kept, entry);
      return {entry->Picture.get(), entry->Source, state};
    }
    kept.erase(entry);
    break;
  }
  PixbufPtr picture = ReadPicture(path);
  const gint64 bytes = picture ? static_cast<gint64>(gdk_pixbuf_get_byte_length(picture.get())) : 0;
  kept.push_front({path, *state, std::move(picture), bytes, NewPictureSource()});
  DropOldest();
  return {kept.front().Picture.get(), kept.front().Source, state};
}
