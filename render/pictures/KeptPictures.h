// Scaled pictures kept for the next time they are painted.
#pragma once

#include <tuple>

#include "render/pictures/ScaledPicture.h"

// All that a picture's pixels depend on besides its size. Each state of a source (a file, a picture
// text) has a number of its own, so nothing needs to be dropped when the source changes: what was
// kept of its older state is never asked for again.
struct PictureKey {
  guint64 Source;
  gint64 Front;  // colours put into the picture; -1 = none
  gint64 Back;

  bool operator<(const PictureKey& other) const {
    return std::tie(Source, Front, Back) < std::tie(other.Source, other.Front, other.Back);
  }
};

// A number for a new state of a source.
guint64 NewPictureSource();

// The picture scaled to width x height; null when it is not kept.
const ScaledPicture* FindKept(const PictureKey& key, gint64 width, gint64 height);
// Scales and keeps it, valid until the next call. Null when it is too large for that.
const ScaledPicture* Keep(const PictureKey& key, gint64 width, gint64 height,
                          const GdkPixbuf* picture, bool blend);

// Paints a picture scaled to the box; make() gives it, null for none, when it is not kept.
template <typename Make>
void PaintKept(Drawable& drawable, const PlaneBox& box, const PictureKey& key, bool blend,
               Make make) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (part.Empty()) return;
  const gint64 width = box.x2 - box.x1;
  const gint64 height = box.y2 - box.y1;
  const ScaledPicture* kept = FindKept(key, width, height);
  if (kept == nullptr) {
    const PixbufPtr picture = make();
    kept = Keep(key, width, height, picture.get(), blend);
    if (kept == nullptr) {
      ScaledPicture(picture.get(), box, part, blend).Paint(drawable);
      return;
    }
  }
  kept->PaintAt(drawable, box.x1, box.y1);
}
