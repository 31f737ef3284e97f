#include <gdk-pixbuf/gdk-pixbuf.h>

#include "render/Surface.h"
#include "support/FileTools.h"

bool WritePng(const Drawable& surface, const gchar* path) {
  const PixbufPtr pixbuf = PixbufFromSurface(surface);
  gchar* bytes = nullptr;
  gsize size = 0;
  if (!pixbuf || !gdk_pixbuf_save_to_buffer(pixbuf.get(), &bytes, &size, "png", nullptr, NULL)) {
    return false;
  }
  const std::unique_ptr<gchar, decltype(&g_free)> owner(bytes, g_free);
  return ReplaceFile(path, {bytes, size});
}
