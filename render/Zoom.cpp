#include <gdk-pixbuf/gdk-pixbuf.h>

#include "Scaler.h"

namespace {

// Rows scaled at a time: what passes from step to step stays in the processor's cache.
constexpr gint64 BandRows = 96;

guchar* RowOf(GdkPixbuf* pixbuf, gint64 row) {
  return gdk_pixbuf_get_pixels(pixbuf) + row * gdk_pixbuf_get_rowstride(pixbuf);
}

// Three bytes a pixel: with a fourth the scaler gives other pixels.
PixbufPtr NewImage(gint64 width, gint64 height) {
  return PixbufPtr(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, static_cast<int>(width),
                                  static_cast<int>(height)));
}

void CopyToImage(GdkPixbuf* image, const Drawable& surface, const PlaneBox& part) {
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const guint32* in = surface.Row(static_cast<gint>(y)) + part.x1;
    guchar* out = RowOf(image, y) + 3 * part.x1;
    for (gint64 x = part.x1; x < part.x2; ++x, ++in) {
      *out++ = static_cast<guchar>(*in >> 16);
      *out++ = static_cast<guchar>(*in >> 8);
      *out++ = static_cast<guchar>(*in);
    }
  }
}

void CopyFromImage(Drawable& target, GdkPixbuf* image, const PlaneBox& part) {
  for (gint64 y = part.y1; y < part.y2; ++y) {
    TakeRgbRow(RowOf(image, y - part.y1), part.x2 - part.x1, PixelAt(target, part.x1, y));
  }
}

void CopyPart(Drawable& target, const Drawable& picture, const PlaneBox& part) {
  for (gint64 y = part.y1; y < part.y2; ++y) {
    std::copy_n(picture.Row(static_cast<gint>(y)) + part.x1, part.x2 - part.x1,
                PixelAt(target, part.x1, y));
  }
}

// The scaler gets an image as large as the picture, so that it counts alike for every part, but
// only the pixels that it reads are filled in: memory that is never touched is not taken.
void ScalePart(Drawable& target, const Drawable& picture, const PlaneBox& part, gint width,
               gint height) {
  const PixbufPtr image = NewImage(picture.Width(), picture.Height());
  const PixbufPtr scaled = NewImage(part.x2 - part.x1, std::min(BandRows, part.y2 - part.y1));
  if (!image || !scaled) {
    return;
  }
  const double scaleX = static_cast<double>(width) / picture.Width();
  const double scaleY = static_cast<double>(height) / picture.Height();
  const OffsetRange columns = SourceOf(part.x1, part.x2, scaleX);
  gint64 filled = 0;
  for (gint64 y = part.y1; y < part.y2; y += BandRows) {
    const PlaneBox band{part.x1, y, part.x2, std::min(y + BandRows, part.y2)};
    const OffsetRange rows = SourceOf(band.y1, band.y2, scaleY);
    const PlaneBox source =
        PlaneBox{columns.low, std::max(rows.low, filled), columns.high, rows.high}.Clip(
            {0, 0, picture.Width(), picture.Height()});
    CopyToImage(image.get(), picture, source);
    filled = source.y2;
    gdk_pixbuf_scale(image.get(), scaled.get(), 0, 0, static_cast<int>(band.x2 - band.x1),
                     static_cast<int>(band.y2 - band.y1), -static_cast<double>(band.x1),
                     -static_cast<double>(band.y1), scaleX, scaleY, GDK_INTERP_TILES);
    CopyFromImage(target, scaled.get(), band);
  }
}

}  // namespace

void PixbufRelease::operator()(GdkPixbuf* pixbuf) const {
  g_object_unref(pixbuf);
}

PixbufPtr PixbufFromSurface(const Drawable& surface) {
  if (!surface.Valid()) {
    return nullptr;
  }
  PixbufPtr image = NewImage(surface.Width(), surface.Height());
  if (image) {
    CopyToImage(image.get(), surface, {0, 0, surface.Width(), surface.Height()});
  }
  return image;
}

void PaintZoomed(Drawable& target, const Drawable& picture, gint width, gint height) {
  const PlaneBox part = PlaneBox{0, 0, width, height}.Clip(BoxOf(target));
  if (!picture.Valid() || part.Empty()) {
    return;
  }
  if (width == picture.Width() && height == picture.Height()) {
    CopyPart(target, picture, part);
  } else {
    ScalePart(target, picture, part, width, height);
  }
}
