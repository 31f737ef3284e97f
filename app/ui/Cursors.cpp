#include "Holders.h"
#include "app/Window.h"
#include "render/Pictures.h"
#include "render/Primitives.h"

namespace {
constexpr gint CursorCount = 8;
constexpr gint CursorSize = 32;
constexpr guint32 Opaque = 0xff000000;

ObjectPtr<GdkCursor> Cursor;
gint CursorNo = -1;

bool BitOf(const guint8* bits, gint x, gint y) {
  return (bits[4 * y + x / 8] >> (x % 8) & 1) != 0;
}

SurfacePtr CursorPicture(gint no) {
  SurfacePtr picture(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, CursorSize, CursorSize));
  guint8* memory = cairo_image_surface_get_data(picture.get());
  if (memory == nullptr) return picture;
  const gint stride = cairo_image_surface_get_stride(picture.get());
  for (gint y = 0; y < CursorSize; y++) {
    auto* row = reinterpret_cast<guint32*>(memory + static_cast<gsize>(y) * stride);
    for (gint x = 0; x < CursorSize; x++) {
      const DRAWCOLR& colour = CusrColr[BitOf(CursorData[no], x, y) ? 0 : 1];
      row[x] = BitOf(CursorMask[no], x, y) ? Opaque | colour.pixel : 0;
    }
  }
  cairo_surface_mark_dirty(picture.get());
  return picture;
}
}  // namespace

void SetCursor(gint no) {
  GdkWindow* window = PtrnWnd != nullptr ? gtk_widget_get_window(PtrnWnd) : nullptr;
  if (window == nullptr || no < 0 || no >= CursorCount) return;
  // Every motion asks for its cursor; most ask for the one that is there.
  if (no == CursorNo && gdk_window_get_cursor(window) == Cursor.get()) return;

  const SurfacePtr picture = CursorPicture(no);
  Cursor.reset(gdk_cursor_new_from_surface(gdk_window_get_display(window), picture.get(),
                                           CursorHome[no].x, CursorHome[no].y));
  CursorNo = no;
  gdk_window_set_cursor(window, Cursor.get());
}
