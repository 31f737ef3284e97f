#include "render/pictures/ScaledPicture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <new>

#include "render/surface/Scaler.h"

namespace {

void TakeRgbaRow(const guchar* in, gint64 count, bool hasAlpha, guint32* out) {
  for (gint64 x = 0; x < count; ++x, in += 4) {
    const guint32 alpha = hasAlpha ? in[3] : 255;
    *out++ = alpha << 24 | guint32{in[0]} << 16 | guint32{in[1]} << 8 | in[2];
  }
}

guint32 Mixed(guint32 below, guint32 above, guint32 alpha) {
  return ((above & 0xff) * alpha + (below & 0xff) * (255 - alpha) + 127) / 255;
}

guint32 Blended(guint32 below, guint32 above) {
  const guint32 alpha = above >> 24;
  return 0xff000000 | Mixed(below >> 16, above >> 16, alpha) << 16 |
         Mixed(below >> 8, above >> 8, alpha) << 8 | Mixed(below, above, alpha);
}

}  // namespace

ScaledPicture::ScaledPicture(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part,
                             bool blend)
    : part_(part) {
  if (picture == nullptr || part.Empty()) return;
  try {
    if (box.x2 - box.x1 == gdk_pixbuf_get_width(picture) &&
        box.y2 - box.y1 == gdk_pixbuf_get_height(picture)) {
      Take(picture, part.x1 - box.x1, part.y1 - box.y1, blend);
    } else if (const PixbufPtr scaled = ScaledPart(picture, box, part)) {
      Take(scaled.get(), 0, 0, blend);
    }
  } catch (const std::bad_alloc&) {
    runs_.clear();
  }
}

void ScaledPicture::Take(const GdkPixbuf* picture, gint64 left, gint64 top, bool blend) {
  const guchar* rows = gdk_pixbuf_read_pixels(picture);
  const gint stride = gdk_pixbuf_get_rowstride(picture);
  const gint channels = gdk_pixbuf_get_n_channels(picture);
  const bool hasAlpha = blend && channels == 4;
  const gint64 width = part_.x2 - part_.x1;
  pixels_.resize(static_cast<std::size_t>(width * (part_.y2 - part_.y1)));
  guint32* out = pixels_.data();
  for (gint64 y = top; y < top + part_.y2 - part_.y1; ++y, out += width) {
    const guchar* in = rows + y * stride + left * channels;
    if (channels == 3) {
      TakeRgbRow(in, width, out);
    } else {
      TakeRgbaRow(in, width, hasAlpha, out);
    }
  }
  if (hasAlpha) {
    FindRuns();
  } else {
    for (gint32 y = 0; y < part_.y2 - part_.y1; ++y) {
      runs_.push_back({0, y, static_cast<gint32>(width), false});
    }
  }
}

void ScaledPicture::FindRuns() {
  enum Kind { Hidden, Mixture, Solid };
  const auto kindOf = [](guint32 pixel) {
    const guint32 alpha = pixel >> 24;
    return alpha == 0 ? Hidden : alpha == 255 ? Solid : Mixture;
  };
  const auto width = static_cast<gint32>(part_.x2 - part_.x1);
  gint32 y = 0;
  for (auto row = pixels_.cbegin(); row != pixels_.cend(); row += width, ++y) {
    for (gint32 x = 0; x < width;) {
      const gint32 start = x;
      const Kind kind = kindOf(row[x]);
      while (x < width && kindOf(row[x]) == kind) ++x;
      if (kind != Hidden) runs_.push_back({start, y, x - start, kind == Mixture});
    }
  }
}

void ScaledPicture::Paint(Drawable& drawable) const {
  PaintAt(drawable, part_.x1, part_.y1);
}

void ScaledPicture::PaintAt(Drawable& drawable, gint64 x, gint64 y) const {
  const gint64 width = part_.x2 - part_.x1;
  const PlaneBox clip = BoxOf(drawable);
  const PlaneBox shown = PlaneBox{x, y, x + width, y + part_.y2 - part_.y1}.Clip(clip);
  if (shown.Empty() || !TakesPixels(drawable, shown)) return;
  for (const Run& run : runs_) {
    const gint64 row = y + run.y;
    const gint64 begin = std::max(x + run.x, clip.x1);
    const gint64 end = std::min(x + run.x + run.Length, clip.x2);
    if (row < clip.y1 || row >= clip.y2 || begin >= end) continue;
    const guint32* in = pixels_.data() + run.y * width + (begin - x);
    guint32* out = PixelAt(drawable, begin, row);
    if (run.Mixed) {
      std::transform(out, out + (end - begin), in, out, Blended);
    } else {
      std::copy_n(in, end - begin, out);
    }
  }
}

PixbufPtr WithTransparent(const GdkPixbuf* picture, guint8 red, guint8 green, guint8 blue) {
  return PixbufPtr(picture == nullptr ? nullptr
                                      : gdk_pixbuf_add_alpha(picture, TRUE, red, green, blue));
}
