#include "tests/window/PopUps.h"

#include <X11/Xlib.h>

#include <memory>

namespace {

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
struct ListFree {
  void operator()(Window* list) const { XFree(list); }
};

// A window may go while it is looked at.
int Ignore(Display* /*display*/, XErrorEvent* /*event*/) {
  return 0;
}

}  // namespace

int ShownPopUps() {
  const std::unique_ptr<Display, DisplayClose> display(XOpenDisplay(nullptr));
  if (!display) return 0;
  const XErrorHandler before = XSetErrorHandler(Ignore);
  Window root = 0;
  Window parent = 0;
  Window* list = nullptr;
  unsigned count = 0;
  int shown = 0;
  XQueryTree(display.get(), DefaultRootWindow(display.get()), &root, &parent, &list, &count);
  const std::unique_ptr<Window, ListFree> windows(list);
  for (unsigned i = 0; i < count; i++) {
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display.get(), list[i], &attributes) != 0 &&
        attributes.override_redirect && attributes.map_state == IsViewable) {
      shown++;
    }
  }
  XSync(display.get(), False);
  XSetErrorHandler(before);
  return shown;
}
