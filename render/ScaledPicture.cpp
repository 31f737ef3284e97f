#include "ScaledPicture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <new>

namespace {

PixbufPtr Scaled(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part) {
  PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(picture), 8,
                                  static_cast<int>(part.x2 - part.x1),
                                  static_cast<int>(part.y2 - part.y1)));
  if (scaled) {
    gdk_pixbuf_scale(picture, scaled.get(), 0, 0, gdk_pixbuf_get_width(scaled.get()),
                     gdk_pixbuf_get_height(scaled.get()), static_cast<double>(box.x1 - part.x1),
                     static_cast<double>(box.y1 - part.y1),
                     static_cast<double>(box.x2 - box.x1) / gdk_pixbuf_get_width(picture),
                     static_cast<double>(box.y2 - box.y1) / gdk_pixbuf_get_height(picture),
                     GDK_INTERP_BILINEAR);
  }
  return scaled;
}

guint32 Mixed(guint32 below, guint32 above, guint32 alpha) {
  return ((above & 0xff) * alpha + (below & 0xff) * (255 - alpha) + 127) / 255;
}

guint32 Blended(guint32 below, guint32 above) {
  const guint32 alpha = above >> 24;
  if (alpha == 255) {
    return above;
  }
  if (alpha == 0) {
    return below;
  }
  return 0xff000000 | Mixed(below >> 16, above >> 16, alpha) << 16 |
         Mixed(below >> 8, above >> 8, alpha) << 8 | Mixed(below, above, alpha);
}

}  // namespace

ScaledPicture::ScaledPicture(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part,
                             bool blend)
    : part_(part), blend_(blend) {
  if (picture == nullptr || part.Empty()) {
    return;
  }
  blend_ = blend && gdk_pixbuf_get_n_channels(picture) == 4;
  try {
    if (box.x2 - box.x1 == gdk_pixbuf_get_width(picture) &&
        box.y2 - box.y1 == gdk_pixbuf_get_height(picture)) {
      TakeRows(picture, part.x1 - box.x1, part.y1 - box.y1);
    } else if (const PixbufPtr scaled = Scaled(picture, box, part)) {
      TakeRows(scaled.get(), 0, 0);
    }
  } catch (const std::bad_alloc&) {
    pixels_.clear();
  }
}

void ScaledPicture::TakeRows(const GdkPixbuf* picture, gint64 left, gint64 top) {
  const guchar* rows = gdk_pixbuf_read_pixels(picture);
  const gint channels = gdk_pixbuf_get_n_channels(picture);
  pixels_.resize(static_cast<std::size_t>((part_.x2 - part_.x1) * (part_.y2 - part_.y1)));
  guint32* out = pixels_.data();
  for (gint64 y = top; y < top + part_.y2 - part_.y1; ++y) {
    const guchar* in = rows + y * gdk_pixbuf_get_rowstride(picture) + left * channels;
    for (gint64 x = part_.x1; x < part_.x2; ++x, in += channels) {
      const guint32 alpha = blend_ ? in[3] : 255;
      *out++ = alpha << 24 | guint32{in[0]} << 16 | guint32{in[1]} << 8 | in[2];
    }
  }
}

void ScaledPicture::Paint(Drawable& drawable) const {
  PaintAt(drawable, part_.x1, part_.y1);
}

void ScaledPicture::PaintAt(Drawable& drawable, gint64 x, gint64 y) const {
  const gint64 width = part_.x2 - part_.x1;
  const PlaneBox shown = PlaneBox{x, y, x + width, y + part_.y2 - part_.y1}.Clip(BoxOf(drawable));
  if (pixels_.empty() || shown.Empty()) {
    return;
  }
  for (gint64 row = shown.y1; row < shown.y2; ++row) {
    const guint32* in = pixels_.data() + (row - y) * width + (shown.x1 - x);
    guint32* out = PixelAt(drawable, shown.x1, row);
    if (blend_) {
      std::transform(out, out + (shown.x2 - shown.x1), in, out, Blended);
    } else {
      std::copy_n(in, shown.x2 - shown.x1, out);
    }
  }
}

PixbufPtr WithTransparent(const GdkPixbuf* picture, guint8 red, guint8 green, guint8 blue) {
  return PixbufPtr(picture == nullptr ? nullptr
                                      : gdk_pixbuf_add_alpha(picture, TRUE, red, green, blue));
}
