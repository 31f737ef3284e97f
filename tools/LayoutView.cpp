#include "tools/LayoutView.h"

#include <algorithm>
#include <iterator>

#include "layout/EditState.h"
#include "layout/ItemSlots.h"
#include "layout/LayoutFile.h"
#include "layout/ProjectRecord.h"
#include "layout/Records.h"
#include "layout/Store.h"
#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "render/Primitives.h"
#include "render/Surface.h"
#include "support/ConstantLists.h"
#include "support/FileTools.h"
#include "support/Resource.h"
#include "tools/Report.h"

namespace {

// What one surface can cover: the side of a cairo image, and 1 GiB of pixels.
constexpr gint64 SideLimit = 32767;
constexpr gint64 AreaLimit = gint64{1} << 28;

gint ZoomIndex(int percent) {
  const auto found = std::find(std::begin(ZoomFactorData), std::end(ZoomFactorData), percent);
  return static_cast<gint>(std::distance(std::begin(ZoomFactorData), found));
}

}  // namespace

void PrepareDrawing(const ViewOptions& options) {
  InitDrawData();
  LoadColrFile();
  LoadMarkFile();
  if (options.Language) Language = *options.Language;
  FontDataInit(options.Language ? 0 : 1);
  ColorCode = options.Colour;
}

ViewedLayout LoadView(const std::string& name) {
  ViewedLayout view;
  if (CheckPtrnFile(ProjPath, name.c_str()) != LayoutFileState::Whole) {
    view.Error = "not a whole layout file";
    return view;
  }
  // The result tells a layout without items from others; both can be drawn.
  ReadLayoutFile(ProjPath, name.c_str(), view.Value);
  view.Error = DrawingFault(view.Value);
  return view;
}

std::string DrawingFault(const Layout& layout) {
  const PTRNHEDR& header = layout.Header;
  return DrawableSize(header.Parm1[HedrSlot::Width], header.Parm1[HedrSlot::Height])
             ? ""
             : "its size cannot be drawn";
}

LayoutPicture::LayoutPicture(Layout& layout)
    : surface_(layout.Header.Parm1[HedrSlot::Width], layout.Header.Parm1[HedrSlot::Height]) {
  DrawGc gc;
  DrawLayout(&surface_, &gc, layout.Header, layout.Items);
}

CanvasPicture PaintCanvas(Layout& layout, int zoom, bool grid) {
  PTRNHEDR& header = layout.Header;
  header.Parm2[ViewSlot::Zoom] = ZoomIndex(zoom);
  header.Parm2[ViewSlot::GridShown] = grid;
  const LayoutPicture picture(layout);
  const gint64 width = gint64{header.Parm1[HedrSlot::Width]} * zoom / 100;
  const gint64 height = gint64{header.Parm1[HedrSlot::Height]} * zoom / 100;
  if (!DrawableSize(width, height)) return {nullptr, "too large at this zoom"};
  auto canvas = std::make_unique<Drawable>(static_cast<gint>(width), static_cast<gint>(height));
  if (!picture.Surface().Valid() || !canvas->Valid()) return {nullptr, "too large for the memory"};
  PaintZoomed(*canvas, picture.Surface(), canvas->Width(), canvas->Height());
  DrawGc gc;
  DrawGridData(canvas.get(), &gc, header);
  return {std::move(canvas), ""};
}

bool DrawableSize(gint64 width, gint64 height) {
  return width <= SideLimit && height <= SideLimit && width * height <= AreaLimit;
}
