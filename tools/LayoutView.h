// A layout as the canvas shows it, without a window.
#pragma once

#include <memory>
#include <string>

#include "render/Surface.h"
#include "tools/Commands.h"
#include "tools/json/LayoutFile.h"

// Makes the drawing resources of the open project.
void PrepareDrawing(const ViewOptions& options);

// The layout in the program's own store, for as long as this lives.
class OpenLayout {
 public:
  // A layout of the open project, named as on disk.
  explicit OpenLayout(const std::string& name);
  // A layout from anywhere.
  explicit OpenLayout(const LayoutFile& layout);
  ~OpenLayout();
  OpenLayout(const OpenLayout&) = delete;
  OpenLayout& operator=(const OpenLayout&) = delete;
  // "" when it can be drawn, else the reason.
  const std::string& Error() const { return error_; }

 private:
  void CheckSize();

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

// What the canvas shows of the open layout, or the reason why that cannot be had.
struct CanvasPicture {
  std::unique_ptr<Drawable> Surface;
  std::string Error;
};
// The canvas' own steps: the picture at 100 %, scaled, the grid over it.
CanvasPicture PaintCanvas(int zoom, bool grid);

// Whether pictures of this size are made at all.
bool DrawableSize(gint64 width, gint64 height);
