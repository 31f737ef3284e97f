#include <gdk-pixbuf/gdk-pixbuf.h>

#include "Paint.h"

namespace {

guchar* RowOf(GdkPixbuf* pixbuf, gint64 row) {
  return gdk_pixbuf_get_pixels(pixbuf) + row * gdk_pixbuf_get_rowstride(pixbuf);
}

void CopyPart(Drawable& target, const Drawable& picture, const PlaneBox& part) {
  for (gint64 y = part.y1; y < part.y2; ++y) {
    std::copy_n(picture.Row(static_cast<gint>(y)) + part.x1, part.x2 - part.x1,
                PixelAt(target, part.x1, y));
  }
}

void ScalePart(Drawable& target, const GdkPixbuf* image, const PlaneBox& part, gint width,
               gint height) {
  const PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8,
                                        static_cast<int>(part.x2 - part.x1),
                                        static_cast<int>(part.y2 - part.y1)));
  if (!scaled) {
    return;
  }
  gdk_pixbuf_scale(image, scaled.get(), 0, 0, gdk_pixbuf_get_width(scaled.get()),
                   gdk_pixbuf_get_height(scaled.get()), -static_cast<double>(part.x1),
                   -static_cast<double>(part.y1),
                   static_cast<double>(width) / gdk_pixbuf_get_width(image),
                   static_cast<double>(height) / gdk_pixbuf_get_height(image), GDK_INTERP_TILES);
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const guchar* in = RowOf(scaled.get(), y - part.y1);
    guint32* out = PixelAt(target, part.x1, y);
    for (gint64 x = part.x1; x < part.x2; ++x, in += 3) {
      *out++ = 0xff000000u | guint32{in[0]} << 16 | guint32{in[1]} << 8 | in[2];
    }
  }
}

}  // namespace

void PixbufRelease::operator()(GdkPixbuf* pixbuf) const {
  g_object_unref(pixbuf);
}

// Three bytes a pixel: with a fourth the scaler gives other pixels.
PixbufPtr PixbufFromSurface(const Drawable& surface) {
  if (!surface.Valid()) {
    return nullptr;
  }
  PixbufPtr pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, surface.Width(), surface.Height()));
  for (gint y = 0; pixbuf && y < surface.Height(); ++y) {
    const guint32* in = surface.Row(y);
    guchar* out = RowOf(pixbuf.get(), y);
    for (gint x = 0; x < surface.Width(); ++x, ++in) {
      *out++ = static_cast<guchar>(*in >> 16);
      *out++ = static_cast<guchar>(*in >> 8);
      *out++ = static_cast<guchar>(*in);
    }
  }
  return pixbuf;
}

void PaintZoomed(Drawable& target, const Drawable& picture, GdkPixbuf* image, gint width,
                 gint height) {
  const PlaneBox part = PlaneBox{0, 0, width, height}.Clip(BoxOf(target));
  if (!picture.Valid() || part.Empty()) {
    return;
  }
  if (width == picture.Width() && height == picture.Height()) {
    CopyPart(target, picture, part);
  } else if (image != nullptr) {
    ScalePart(target, image, part, width, height);
  } else if (const PixbufPtr own = PixbufFromSurface(picture)) {
    ScalePart(target, own.get(), part, width, height);
  }
}
