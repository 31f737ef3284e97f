#include "render/Surface.h"

#include <cairo.h>

#include <algorithm>
#include <new>
#include <utility>

#include "render/surface/Paint.h"
#include "support/BareMemory.h"

namespace {

constexpr guint64 MaxPixels = guint64{1} << 29;
constexpr guint32 Opaque = 0xff000000;

// A view of the canvas is made anew for every expose: the memory of the last surface waits for the
// next one, because memory that is fresh from the system costs more than painting on it.
struct Pixels {
  guint32* Memory = nullptr;
  guint64 Count = 0;
};
Pixels Spare;
constexpr guint64 MaxSpare = guint64{1} << 22;  // 16 MB

Pixels TakePixels(guint64 count) {
  if (Spare.Count >= count && Spare.Count / 2 <= count) return std::exchange(Spare, {});
  try {
    return {static_cast<guint32*>(TakeBareMemory(count * sizeof(guint32))), count};
  } catch (const std::bad_alloc&) {
    return {};
  }
}

void GivePixels(Pixels pixels) {
  if (pixels.Count > Spare.Count && pixels.Count <= MaxSpare) std::swap(pixels, Spare);
  GiveBareMemory(pixels.Memory);
}

}  // namespace

void DrawnBox::Add(const DrawnBox& other) {
  if (Empty()) {
    *this = other;
  } else if (!other.Empty()) {
    *this = {std::min(x1, other.x1), std::min(y1, other.y1), std::max(x2, other.x2),
             std::max(y2, other.y2)};
  }
}

Drawable::Drawable(gint width, gint height, gint x, gint y)
    : x_(x), y_(y), width_(std::max(width, 1)), height_(std::max(height, 1)) {
  const guint64 count = static_cast<guint64>(width_) * static_cast<guint64>(height_);
  if (count <= MaxPixels) {
    const Pixels pixels = TakePixels(count);
    pixels_ = pixels.Memory;
    capacity_ = pixels.Count;
  }
  if (pixels_ == nullptr) {
    width_ = height_ = 0;
    return;
  }
  stride_ = static_cast<gsize>(width_);
  std::fill_n(pixels_, count, Opaque);
}

Drawable::Drawable(Drawable& whole, const DrawnBox& part)
    : x_(std::max(part.x1, whole.x_)),
      y_(std::max(part.y1, whole.y_)),
      width_(std::min(part.x2, whole.x_ + whole.width_) - x_),
      height_(std::min(part.y2, whole.y_ + whole.height_) - y_),
      stride_(whole.stride_) {
  if (width_ <= 0 || height_ <= 0) {
    width_ = height_ = 0;
    return;
  }
  pixels_ = whole.Row(y_ - whole.y_) + (x_ - whole.x_);
}

Drawable::Drawable(gint width, gint height, DrawnBox* drawn)
    : x_(0), y_(0), width_(width), height_(height), drawn_(drawn) {}

Drawable::~Drawable() {
  if (cairo_ != nullptr) cairo_surface_destroy(cairo_);
  if (capacity_ != 0) GivePixels({pixels_, capacity_});
}

guint32 Drawable::At(gint x, gint y) const {
  const gint64 column = gint64{x} - x_;
  const gint64 row = gint64{y} - y_;
  if (column < 0 || row < 0 || column >= width_ || row >= height_) return 0;
  return Row(static_cast<gint>(row))[column] & 0xffffff;
}

// Made when first asked for; cairo reads and writes the same memory. Its error surface stands in
// where a side is longer than cairo allows.
cairo_surface_t* Drawable::Cairo() {
  if (cairo_ == nullptr) {
    cairo_ = cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(pixels_),
                                                 CAIRO_FORMAT_RGB24, width_, height_,
                                                 static_cast<int>(stride_ * sizeof(guint32)));
  }
  return cairo_;
}

void FillPixels(Drawable* drawable, gint x, gint y, gint w, gint h, guint32 rgb) {
  FillBox(*drawable, {x, y, gint64{x} + w, gint64{y} + h}, rgb);
}
