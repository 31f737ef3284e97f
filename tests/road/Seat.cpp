#include "tests/road/Seat.h"

#include <X11/extensions/XTest.h>

#include <stdexcept>

Seat::Seat() : display_(XOpenDisplay(nullptr)) {
  if (display_ == nullptr) throw std::runtime_error("no display for the user");
}

Seat::~Seat() {
  XCloseDisplay(display_);
}

void Seat::MovePointer(gint x, gint y) {
  XTestFakeMotionEvent(display_, -1, x, y, CurrentTime);
  XSync(display_, False);
}

void Seat::MovePointerBy(gint x, gint y) {
  XTestFakeRelativeMotionEvent(display_, x, y, CurrentTime);
  XSync(display_, False);
}

void Seat::SendButton(guint button, bool press) {
  XTestFakeButtonEvent(display_, button, press ? True : False, CurrentTime);
  XSync(display_, False);
}

void Seat::SendClick(guint button) {
  XTestFakeButtonEvent(display_, button, True, CurrentTime);
  XTestFakeButtonEvent(display_, button, False, CurrentTime);
  XSync(display_, False);
}

void Seat::SendKey(guint key, bool press) {
  XTestFakeKeyEvent(display_, XKeysymToKeycode(display_, key), press ? True : False, CurrentTime);
  XSync(display_, False);
}

bool Seat::PointerIsFree() {
  const bool free = XGrabPointer(display_, DefaultRootWindow(display_), False, 0, GrabModeAsync,
                                 GrabModeAsync, None, None, CurrentTime) == GrabSuccess;
  if (free) XUngrabPointer(display_, CurrentTime);
  XSync(display_, False);
  return free;
}

bool Seat::NeedsShift(guint key) {
  int count = 0;
  KeySym* symbols = XGetKeyboardMapping(display_, XKeysymToKeycode(display_, key), 1, &count);
  const bool shifted = count > 1 && symbols[0] != key && symbols[1] == key;
  XFree(symbols);
  return shifted;
}
