#include "render/surface/Scaler.h"

namespace {

std::size_t Bytes(gint64 count) {
  return static_cast<std::size_t>(count);
}

// Scales into an image that shows `part_` of the scaled picture.
class PartScaler {
 public:
  PartScaler(const GdkPixbuf* picture, const Scaling& scaling, GdkPixbuf* scaled,
             const PlaneBox& part)
      : picture_(picture),
        scaling_(scaling),
        scaled_(scaled),
        part_(part),
        channels_(gdk_pixbuf_get_n_channels(picture)) {}

  bool FillPlain(const PlaneBox& cell, const PlaneBox& source) {
    const guchar* colour = OnlyColour(source);
    if (colour == nullptr) return false;
    const gint stride = gdk_pixbuf_get_rowstride(scaled_);
    guchar* first = gdk_pixbuf_get_pixels(scaled_) + (cell.y1 - part_.y1) * stride +
                    (cell.x1 - part_.x1) * channels_;
    const gint64 length = (cell.x2 - cell.x1) * channels_;
    for (gint64 i = 0; i < length; i += channels_) std::memcpy(first + i, colour, Bytes(channels_));
    for (gint64 y = 1; y < cell.y2 - cell.y1; ++y) {
      std::memcpy(first + y * stride, first, Bytes(length));
    }
    return true;
  }

  void Scale(const PlaneBox& box) {
    gdk_pixbuf_scale(picture_, scaled_, static_cast<int>(box.x1 - part_.x1),
                     static_cast<int>(box.y1 - part_.y1), static_cast<int>(box.x2 - box.x1),
                     static_cast<int>(box.y2 - box.y1), -static_cast<double>(part_.x1),
                     -static_cast<double>(part_.y1), scaling_.x, scaling_.y, GDK_INTERP_BILINEAR);
  }

 private:
  // A pixel of the source when all are alike and hide what is below, else null.
  const guchar* OnlyColour(const PlaneBox& source) const {
    const gint stride = gdk_pixbuf_get_rowstride(picture_);
    const guchar* first =
        gdk_pixbuf_read_pixels(picture_) + source.y1 * stride + source.x1 * channels_;
    if (channels_ == 4 && first[3] != 255) return nullptr;
    const gint64 others = (source.x2 - source.x1 - 1) * channels_;
    const guchar* row = first;
    for (gint64 y = source.y1; y < source.y2; ++y, row += stride) {
      if (std::memcmp(row, first, Bytes(channels_)) != 0 ||
          std::memcmp(row, row + channels_, Bytes(others)) != 0) {
        return nullptr;
      }
    }
    return first;
  }

  const GdkPixbuf* picture_;
  Scaling scaling_;
  GdkPixbuf* scaled_;
  PlaneBox part_;
  gint64 channels_;
};

}  // namespace

PixbufPtr ScaledPart(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part) {
  PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(picture), 8,
                                  static_cast<int>(part.x2 - part.x1),
                                  static_cast<int>(part.y2 - part.y1)));
  if (!scaled) return scaled;
  const gint width = gdk_pixbuf_get_width(picture);
  const gint height = gdk_pixbuf_get_height(picture);
  const Scaling scaling{width, height, static_cast<double>(box.x2 - box.x1) / width,
                        static_cast<double>(box.y2 - box.y1) / height};
  const PlaneBox shown{part.x1 - box.x1, part.y1 - box.y1, part.x2 - box.x1, part.y2 - box.y1};
  PartScaler scaler(picture, scaling, scaled.get(), shown);
  ScaleInCells(shown, scaling, scaler);
  return scaled;
}
