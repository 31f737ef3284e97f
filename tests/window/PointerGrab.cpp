#include "tests/window/PointerGrab.h"

#include <X11/Xlib.h>

struct PointerGrab::Connection {
  Connection() : Server(XOpenDisplay(nullptr)) {}
  ~Connection() {
    if (Server != nullptr) XCloseDisplay(Server);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  Display* Server;
};

PointerGrab::PointerGrab() : other_(std::make_unique<Connection>()) {
  Display* server = other_->Server;
  holds_ =
      server != nullptr && XGrabPointer(server, DefaultRootWindow(server), False, 0, GrabModeAsync,
                                        GrabModeAsync, None, None, CurrentTime) == GrabSuccess;
}

PointerGrab::~PointerGrab() = default;
