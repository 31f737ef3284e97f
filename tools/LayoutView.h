// A layout as the canvas shows it, without a window.
#pragma once

#include <memory>
#include <string>

#include "layout/Layout.h"
#include "render/Surface.h"
#include "tools/Commands.h"

// Makes the drawing resources of the open project.
void PrepareDrawing(const ViewOptions& options);

// A layout to be drawn, or the reason why it cannot be.
struct ViewedLayout {
  Layout Value;
  std::string Error;  // "" = it can be drawn
};
// A layout of the open project, named as on disk.
ViewedLayout LoadView(const std::string& name);
// Why a layout cannot be drawn, "" when it can.
std::string DrawingFault(const Layout& layout);

// The layout's picture at 100 %. Gives one-point items their sizes.
class LayoutPicture {
 public:
  explicit LayoutPicture(Layout& layout);
  const Drawable& Surface() const { return surface_; }

 private:
  Drawable surface_;
};

// What the canvas shows of a layout, or the reason why that cannot be had.
struct CanvasPicture {
  std::unique_ptr<Drawable> Surface;
  std::string Error;
};
// The canvas' own steps: the picture at 100 %, scaled, the grid over it.
CanvasPicture PaintCanvas(Layout& layout, int zoom, bool grid);

// Whether pictures of this size are made at all.
bool DrawableSize(gint64 width, gint64 height);
