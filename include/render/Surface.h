// The program's drawing surface: 32-bit RGB memory that covers a rectangle of a larger plane.
#pragma once

#include <memory>

#include "Types.h"

typedef struct _cairo_surface cairo_surface_t;
typedef struct _GdkPixbuf GdkPixbuf;

// A box of the plane: from (x1, y1) up to, but not including, (x2, y2).
struct DrawnBox {
  gint x1 = 0;
  gint y1 = 0;
  gint x2 = 0;
  gint y2 = 0;

  bool Empty() const { return x1 >= x2 || y1 >= y2; }
  bool Meets(const DrawnBox& other) const {
    return x1 < other.x2 && other.x1 < x2 && y1 < other.y2 && other.y1 < y2;
  }
  // Grows to hold the other, too.
  void Add(const DrawnBox& other);
};

// Pixels are 0xffRRGGBB. Drawing positions are plane positions: pixel (x, y) of the plane lies at
// (x - X(), y - Y()) of the memory. Everything outside is clipped.
class Drawable {
 public:
  // A black surface; width or height below 1 give a surface of 1 x 1. `x`, `y`: its place on the
  // plane.
  Drawable(gint width, gint height, gint x = 0, gint y = 0);
  // A part of another surface, drawing into that surface's memory; it must not outlive it.
  Drawable(Drawable& whole, const DrawnBox& part);
  // A surface without memory: adds to `drawn` where it would be painted on.
  Drawable(gint width, gint height, DrawnBox* drawn);
  ~Drawable();
  Drawable(const Drawable&) = delete;
  Drawable& operator=(const Drawable&) = delete;

  gint X() const { return x_; }
  gint Y() const { return y_; }
  gint Width() const { return width_; }
  gint Height() const { return height_; }
  // First pixel of memory row `row` (0..Height()-1).
  guint32* Row(gint row) { return pixels_ + static_cast<gsize>(row) * stride_; }
  const guint32* Row(gint row) const { return pixels_ + static_cast<gsize>(row) * stride_; }
  // Colour at a plane position as 0xRRGGBB; 0 outside.
  guint32 At(gint x, gint y) const;
  // The same memory for cairo (CAIRO_FORMAT_RGB24); owned by the surface.
  cairo_surface_t* Cairo();
  // Where painting is noted instead of done, null on a surface with memory.
  DrawnBox* Drawn() const { return drawn_; }
  // Whether the memory could be had. Without it every drawing is clipped away.
  bool Valid() const { return pixels_ != nullptr; }

 private:
  gint x_;
  gint y_;
  gint width_;
  gint height_;
  gsize stride_ = 0;      // in pixels
  guint64 capacity_ = 0;  // pixels of memory of its own
  DrawnBox* drawn_ = nullptr;
  guint32* pixels_ = nullptr;
  cairo_surface_t* cairo_ = nullptr;
};

// How lines are drawn.
struct DrawGc {
  guint32 Foreground = 0;         // 0xRRGGBB
  const gint8* Dashes = nullptr;  // on and off lengths in pixels, null = solid
};

// A finished picture as gdk-pixbuf takes it for scaling (three bytes a pixel).
struct PixbufRelease {
  void operator()(GdkPixbuf* pixbuf) const;
};
using PixbufPtr = std::unique_ptr<GdkPixbuf, PixbufRelease>;
// Copies the surface; null when the memory cannot be had.
PixbufPtr PixbufFromSurface(const Drawable& surface);

// Paints the part of `picture` (scaled to width x height zoomed pixels, tiles interpolation) that
// the target covers: the target's plane is the zoomed picture. Same pixels as scaling the whole.
void PaintZoomed(Drawable& target, const Drawable& picture, gint width, gint height);
// Writes a PNG, all or nothing. False = failed.
bool WritePng(const Drawable& surface, const gchar* path);
// Fills w x h pixels at (x, y) with 0xRRGGBB, for colours outside the palette.
void FillPixels(Drawable* drawable, gint x, gint y, gint w, gint h, guint32 rgb);
