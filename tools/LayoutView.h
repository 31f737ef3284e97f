// A layout as the canvas shows it, without a window.
#pragma once

#include <string>

#include "render/Surface.h"
#include "tools/Commands.h"

// Makes the drawing resources of the open project.
void PrepareDrawing(const ViewOptions& options);

// The layout in the program's own store, for as long as this lives.
class OpenLayout {
 public:
  // A layout of the open project, named as on disk.
  explicit OpenLayout(const std::string& name);
  ~OpenLayout();
  OpenLayout(const OpenLayout&) = delete;
  OpenLayout& operator=(const OpenLayout&) = delete;
  // "" when it can be drawn, else the reason.
  const std::string& Error() const { return error_; }

 private:
  std::string error_;
};

// The open layout's picture at 100 %. Gives one-point items their sizes.
class LayoutPicture {
 public:
  LayoutPicture();
  const Drawable& Surface() const { return surface_; }

 private:
  Drawable surface_;
};

// Whether pictures of this size are made at all.
bool DrawableSize(gint64 width, gint64 height);
