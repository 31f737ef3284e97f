// The display for this program alone.
#pragma once

// While it lives the display does nothing for other programs, the window manager included.
class ServerGrab {
 public:
  ServerGrab();
  ~ServerGrab();
  ServerGrab(const ServerGrab&) = delete;
  ServerGrab& operator=(const ServerGrab&) = delete;
};
