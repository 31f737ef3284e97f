// A picture on the display itself, drawn on with the display's own calls.
#pragma once

#include <X11/Xlib.h>

#include <memory>
#include <string>

struct DisplayClose {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
using DisplayPtr = std::unique_ptr<Display, DisplayClose>;

class ServerPicture {
 public:
  // Black, to be drawn on in white.
  ServerPicture(Display* display, int width, int height);
  ~ServerPicture();
  ServerPicture(const ServerPicture&) = delete;
  ServerPicture& operator=(const ServerPicture&) = delete;

  Pixmap Place() const { return pixmap_; }
  GC Pen() const { return gc_; }
  // One character a pixel, "#" for ink, row by row.
  std::string Pixels() const;

 private:
  Display* display_;
  int width_;
  int height_;
  Pixmap pixmap_;
  GC gc_;
};
