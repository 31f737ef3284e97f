#include "app/Window.h"
#include "app/ui/Holders.h"
#include "render/Pictures.h"
#include "render/Primitives.h"

namespace {

constexpr gint CursorCount = 8;
constexpr gint CursorSize = 32;
constexpr guint32 Opaque = 0xff000000;

ObjectPtr<GdkCursor> Cursor;
gint CursorNo = -1;
gint CursorScale = 0;

bool BitOf(const guint8* bits, gint x, gint y) {
  return (bits[4 * y + x / 8] >> (x % 8) & 1) != 0;
}

// Each dot as a square of screen dots: the toolkit would blur what it has to enlarge itself.
SurfacePtr CursorPicture(gint no, gint scale) {
  const gint size = CursorSize * scale;
  SurfacePtr picture(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size));
  guint8* memory = cairo_image_surface_get_data(picture.get());
  if (memory == nullptr) return picture;
  const gint stride = cairo_image_surface_get_stride(picture.get());
  for (gint y = 0; y < size; y++) {
    auto* row = reinterpret_cast<guint32*>(memory + static_cast<gsize>(y) * stride);
    for (gint x = 0; x < size; x++) {
      const POINT dot = {x / scale, y / scale};
      const DRAWCOLR& colour = CusrColr[BitOf(CursorData[no], dot.x, dot.y) ? 0 : 1];
      row[x] = BitOf(CursorMask[no], dot.x, dot.y) ? Opaque | colour.pixel : 0;
    }
  }
  cairo_surface_mark_dirty(picture.get());
  cairo_surface_set_device_scale(picture.get(), scale, scale);
  return picture;
}

}  // namespace

void SetCursor(gint no) {
  GdkWindow* window = PtrnWnd != nullptr ? gtk_widget_get_window(PtrnWnd) : nullptr;
  if (window == nullptr || no < 0 || no >= CursorCount) return;
  // Every motion asks for its cursor; most ask for the one that is there.
  const gint scale = gdk_window_get_scale_factor(window);
  if (no == CursorNo && scale == CursorScale && gdk_window_get_cursor(window) == Cursor.get()) {
    return;
  }

  const SurfacePtr picture = CursorPicture(no, scale);
  Cursor.reset(gdk_cursor_new_from_surface(gdk_window_get_display(window), picture.get(),
                                           CursorHome[no].x, CursorHome[no].y));
  CursorNo = no;
  CursorScale = scale;
  gdk_window_set_cursor(window, Cursor.get());
}
