#include "render/pictures/KeptPictures.h"

#include <map>
#include <new>

namespace {

// A larger picture is scaled anew each time, and of it only what shows.
constexpr gint64 MaxPixels = gint64{1} << 22;
constexpr std::size_t MaxKeptPixels = std::size_t{1} << 24;
constexpr std::size_t MaxKept = 4096;

struct SizedKey {
  PictureKey Picture;
  gint64 Width;
  gint64 Height;

  bool operator<(const SizedKey& other) const {
    return std::tie(Picture, Width, Height) < std::tie(other.Picture, other.Width, other.Height);
  }
};

std::map<SizedKey, ScaledPicture> kept;
std::size_t keptPixels = 0;

// Fits what comes next; all go at once, those in use soon come back.
void MakeRoom(std::size_t pixels) {
  if (keptPixels + pixels > MaxKeptPixels || kept.size() >= MaxKept) {
    kept.clear();
    keptPixels = 0;
  }
}

}  // namespace

guint64 NewPictureSource() {
  static guint64 last = 0;
  return ++last;
}

const ScaledPicture* FindKept(const PictureKey& key, gint64 width, gint64 height) {
  const auto found = kept.find({key, width, height});
  return found == kept.end() ? nullptr : &found->second;
}

const ScaledPicture* Keep(const PictureKey& key, gint64 width, gint64 height,
                          const GdkPixbuf* picture, bool blend) {
  if (height > MaxPixels / width) return nullptr;
  try {
    const PlaneBox whole{0, 0, width, height};
    ScaledPicture scaled(picture, whole, whole, blend);
    const std::size_t pixels = scaled.PixelCount();
    MakeRoom(pixels);
    const auto place = kept.insert_or_assign({key, width, height}, std::move(scaled)).first;
    keptPixels += pixels;
    return &place->second;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
