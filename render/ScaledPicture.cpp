#include "ScaledPicture.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace {

// The pixels of a picture, row by row.
struct PixelRows {
  const guchar* pixels;
  std::ptrdiff_t stride;
  gint channels;

  explicit PixelRows(const GdkPixbuf* picture)
      : pixels(gdk_pixbuf_read_pixels(picture)),
        stride(gdk_pixbuf_get_rowstride(picture)),
        channels(gdk_pixbuf_get_n_channels(picture)) {}
  const guchar* At(gint64 x, gint64 y) const { return pixels + y * stride + x * channels; }
};

guint32 Mixed(guint32 below, guchar above, guint32 alpha) {
  return (above * alpha + (below & 0xff) * (255 - alpha) + 127) / 255;
}

// Paints `part` of the plane from rows whose pixel (0, 0) belongs at (left, top).
void PaintRows(Drawable& drawable, const PixelRows& rows, const PlaneBox& part, gint64 left,
               gint64 top, bool blend) {
  const bool mix = blend && rows.channels == 4;
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const guchar* in = rows.At(part.x1 - left, y - top);
    guint32* out = PixelAt(drawable, part.x1, y);
    for (gint64 x = part.x1; x < part.x2; ++x, ++out, in += rows.channels) {
      const guint32 alpha = mix ? in[3] : 255;
      *out = 0xff000000 | Mixed(*out >> 16, in[0], alpha) << 16 |
             Mixed(*out >> 8, in[1], alpha) << 8 | Mixed(*out, in[2], alpha);
    }
  }
}

}  // namespace

void PaintScaled(Drawable& drawable, const GdkPixbuf* picture, const PlaneBox& box, bool blend) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (picture == nullptr || part.Empty()) {
    return;
  }
  const gint64 width = box.x2 - box.x1;
  const gint64 height = box.y2 - box.y1;
  if (width == gdk_pixbuf_get_width(picture) && height == gdk_pixbuf_get_height(picture)) {
    PaintRows(drawable, PixelRows(picture), part, box.x1, box.y1, blend);
    return;
  }
  // Only what shows is scaled.
  const PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(picture), 8,
                                        static_cast<int>(part.x2 - part.x1),
                                        static_cast<int>(part.y2 - part.y1)));
  if (!scaled) {
    return;
  }
  gdk_pixbuf_scale(picture, scaled.get(), 0, 0, gdk_pixbuf_get_width(scaled.get()),
                   gdk_pixbuf_get_height(scaled.get()), static_cast<double>(box.x1 - part.x1),
                   static_cast<double>(box.y1 - part.y1),
                   static_cast<double>(width) / gdk_pixbuf_get_width(picture),
                   static_cast<double>(height) / gdk_pixbuf_get_height(picture),
                   GDK_INTERP_BILINEAR);
  PaintRows(drawable, PixelRows(scaled.get()), part, part.x1, part.y1, blend);
}

PixbufPtr WithTransparent(const GdkPixbuf* picture, guint8 red, guint8 green, guint8 blue) {
  return PixbufPtr(picture == nullptr ? nullptr
                                      : gdk_pixbuf_add_alpha(picture, TRUE, red, green, blue));
}
