#include "tests/window/ServerPicture.h"

#include <X11/Xutil.h>

namespace {

struct ImageDestroy {
  void operator()(XImage* image) const { XDestroyImage(image); }
};

}  // namespace

ServerPicture::ServerPicture(Display* display, int width, int height)
    : display_(display),
      width_(width),
      height_(height),
      pixmap_(XCreatePixmap(display, DefaultRootWindow(display), static_cast<unsigned>(width),
                            static_cast<unsigned>(height),
                            static_cast<unsigned>(DefaultDepth(display, DefaultScreen(display))))),
      gc_(XCreateGC(display, pixmap_, 0, nullptr)) {
  XSetForeground(display, gc_, BlackPixel(display, DefaultScreen(display)));
  XFillRectangle(display, pixmap_, gc_, 0, 0, static_cast<unsigned>(width),
                 static_cast<unsigned>(height));
  XSetForeground(display, gc_, WhitePixel(display, DefaultScreen(display)));
}

ServerPicture::~ServerPicture() {
  XFreeGC(display_, gc_);
  XFreePixmap(display_, pixmap_);
}

std::string ServerPicture::Pixels() const {
  const std::unique_ptr<XImage, ImageDestroy> image(
      XGetImage(display_, pixmap_, 0, 0, static_cast<unsigned>(width_),
                static_cast<unsigned>(height_), AllPlanes, ZPixmap));
  const unsigned long black = BlackPixel(display_, DefaultScreen(display_));
  std::string pixels;
  for (int y = 0; y < height_; y++) {
    for (int x = 0; x < width_; x++) pixels += XGetPixel(image.get(), x, y) == black ? '.' : '#';
  }
  return pixels;
}
