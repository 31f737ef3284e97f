// Pictures that the tool has written, read back pixel by pixel.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <memory>
#include <stdexcept>
#include <string>

// A PNG, as far as its pixels go.
class Picture {
 public:
  explicit Picture(const std::string& path)
      : image_(gdk_pixbuf_new_from_file(path.c_str(), nullptr)) {
    if (!image_) throw std::runtime_error("no picture " + path);
  }
  int Width() const { return gdk_pixbuf_get_width(image_.get()); }
  int Height() const { return gdk_pixbuf_get_height(image_.get()); }
  unsigned At(int x, int y) const {
    const guchar* pixel = gdk_pixbuf_read_pixels(image_.get()) +
                          y * gdk_pixbuf_get_rowstride(image_.get()) +
                          x * gdk_pixbuf_get_n_channels(image_.get());
    return static_cast<unsigned>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
  }

 private:
  struct Release {
    void operator()(GdkPixbuf* image) const { g_object_unref(image); }
  };
  std::unique_ptr<GdkPixbuf, Release> image_;
};
