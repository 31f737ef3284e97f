#include "tests/window/ServerGrab.h"

#include <gdk/gdkx.h>

ServerGrab::ServerGrab() {
  gdk_x11_display_grab(gdk_display_get_default());
}

ServerGrab::~ServerGrab() {
  gdk_x11_display_ungrab(gdk_display_get_default());
}
