#include "tests/window/PointerImage.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>

#include <memory>

namespace {

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
struct ImageFree {
  void operator()(XFixesCursorImage* image) const { XFree(image); }
};

}  // namespace

PointerImage ShownPointer() {
  const std::unique_ptr<Display, DisplayClose> display(XOpenDisplay(nullptr));
  if (!display) return {};
  const std::unique_ptr<XFixesCursorImage, ImageFree> image(XFixesGetCursorImage(display.get()));
  if (!image) return {};
  PointerImage pointer{image->width, image->height, image->xhot, image->yhot, {}};
  const int count = image->width * image->height;
  for (int i = 0; i < count; i++) {
    pointer.Pixels.push_back(static_cast<std::uint32_t>(image->pixels[i]));
  }
  return pointer;
}
