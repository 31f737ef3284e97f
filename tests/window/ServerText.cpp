#include "window/ServerText.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <memory>

namespace {

using namespace ServerTextPlace;

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
struct ImageDestroy {
  void operator()(XImage* image) const { XDestroyImage(image); }
};

// A picture of the display's own, black.
class Picture {
 public:
  explicit Picture(Display* display)
      : display_(display),
        pixmap_(
            XCreatePixmap(display, DefaultRootWindow(display), Width, Height,
                          static_cast<unsigned>(DefaultDepth(display, DefaultScreen(display))))),
        gc_(XCreateGC(display, pixmap_, 0, nullptr)) {
    XSetForeground(display, gc_, BlackPixel(display, DefaultScreen(display)));
    XFillRectangle(display, pixmap_, gc_, 0, 0, Width, Height);
    XSetForeground(display, gc_, WhitePixel(display, DefaultScreen(display)));
  }
  ~Picture() {
    XFreeGC(display_, gc_);
    XFreePixmap(display_, pixmap_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  void Draw(XFontSet fonts, const std::string& text) {
    Xutf8DrawString(display_, pixmap_, fonts, gc_, X, Baseline, text.c_str(),
                    static_cast<int>(text.size()));
  }
  std::string Pixels() const {
    const std::unique_ptr<XImage, ImageDestroy> image(
        XGetImage(display_, pixmap_, 0, 0, Width, Height, AllPlanes, ZPixmap));
    const unsigned long black = BlackPixel(display_, DefaultScreen(display_));
    std::string pixels;
    for (int y = 0; y < Height; y++)
      for (int x = 0; x < Width; x++) pixels += XGetPixel(image.get(), x, y) == black ? '.' : '#';
    return pixels;
  }

 private:
  Display* display_;
  Pixmap pixmap_;
  GC gc_;
};

XFontSet OpenFonts(Display* display, const char* descriptor) {
  char** missing = nullptr;
  int count = 0;
  char* standIn = nullptr;
  XFontSet fonts = XCreateFontSet(display, descriptor, &missing, &count, &standIn);
  if (missing != nullptr) XFreeStringList(missing);
  return fonts;
}

ServerText TextOf(Display* display, XFontSet fonts, const std::string& text) {
  XRectangle ink;
  XRectangle line;
  Xutf8TextExtents(fonts, text.c_str(), static_cast<int>(text.size()), &ink, &line);
  Picture picture(display);
  picture.Draw(fonts, text);
  return {ink.x, ink.x + ink.width, -ink.y, ink.y + ink.height, picture.Pixels()};
}

}  // namespace

std::vector<ServerText> TextsOfServer(const char* descriptor,
                                      const std::vector<std::string>& texts) {
  std::vector<ServerText> drawn;
  const std::unique_ptr<Display, DisplayClose> display(XOpenDisplay(nullptr));
  if (!display) return drawn;
  XFontSet fonts = OpenFonts(display.get(), descriptor);
  if (fonts == nullptr) return drawn;
  for (const std::string& text : texts) drawn.push_back(TextOf(display.get(), fonts, text));
  XFreeFontSet(display.get(), fonts);
  return drawn;
}
