#include <gdk-pixbuf/gdk-pixbuf.h>

#include "render/surface/Scaler.h"

namespace {

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
class ZoomScaler {
 public:
  ZoomScaler(Drawable& target, const Drawable& picture, const PlaneBox& part,
             const Scaling& scaling)
      : target_(target),
        picture_(picture),
        scaling_(scaling),
        source_(SourceOf(part, scaling)),
        image_(NewImage(picture.Width(), picture.Height())),
        // Few rows, so that what passes from step to step stays in the processor's cache.
        scaled_(NewImage(part.x2 - part.x1, std::min(MaxScaledRows, part.y2 - part.y1))) {}

  bool Ready() const { return image_ && scaled_; }

  bool FillPlain(const PlaneBox& cell, const PlaneBox& source) {
    const guint32 colour = picture_.Row(static_cast<gint>(source.y1))[source.x1];
    for (gint64 y = source.y1; y < source.y2; ++y) {
      const guint32* row = picture_.Row(static_cast<gint>(y));
      guint32 others = 0;
      for (gint64 x = source.x1; x < source.x2; ++x) others |= row[x] ^ colour;
      if (others != 0) return false;
    }
    FillBox(target_, cell, colour);
    return true;
  }

  // Called from top to bottom.
  void Scale(const PlaneBox& box) {
    const PlaneBox rows = SourceOf(box, scaling_);
    const PlaneBox missing{source_.x1, std::max(rows.y1, filled_), source_.x2, rows.y2};
    CopyToImage(image_.get(), picture_, missing);
    filled_ = std::max(filled_, rows.y2);
    gdk_pixbuf_scale(image_.get(), scaled_.get(), 0, 0, static_cast<int>(box.x2 - box.x1),
                     static_cast<int>(box.y2 - box.y1), -static_cast<double>(box.x1),
                     -static_cast<double>(box.y1), scaling_.x, scaling_.y, GDK_INTERP_TILES);
    CopyFromImage(target_, scaled_.get(), box);
  }

 private:
  Drawable& target_;
  const Drawable& picture_;
  Scaling scaling_;
  PlaneBox source_;
  PixbufPtr image_;
  PixbufPtr scaled_;
  gint64 filled_ = 0;  // rows of the image below this hold the picture, as far as they are needed
};

}  // namespace

void PixbufRelease::operator()(GdkPixbuf* pixbuf) const {
  g_object_unref(pixbuf);
}

PixbufPtr PixbufFromSurface(const Drawable& surface) {
  if (!surface.Valid()) return nullptr;
  PixbufPtr image = NewImage(surface.Width(), surface.Height());
  if (image) CopyToImage(image.get(), surface, {0, 0, surface.Width(), surface.Height()});
  return image;
}

void PaintZoomed(Drawable& target, const Drawable& picture, gint width, gint height) {
  const PlaneBox part = PlaneBox{0, 0, width, height}.Clip(BoxOf(target));
  if (!picture.Valid() || part.Empty()) return;
  if (width == picture.Width() && height == picture.Height()) {
    CopyPart(target, picture, part);
  } else {
    const Scaling scaling{picture.Width(), picture.Height(),
                          static_cast<double>(width) / picture.Width(),
                          static_cast<double>(height) / picture.Height()};
    ZoomScaler scaler(target, picture, part, scaling);
    if (scaler.Ready()) ScaleInCells(part, scaling, scaler);
  }
}
