#include "tools/LayoutView.h"

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "support/FileTools.h"
#include "tools/Report.h"

namespace {

// What one surface can cover: the side of a cairo image, and 1 GiB of pixels.
constexpr gint64 SideLimit = 32767;
constexpr gint64 AreaLimit = gint64{1} << 28;

}  // namespace

void PrepareDrawing(const ViewOptions& options) {
  InitDrawData();
  LoadColrFile();
  LoadMarkFile();
  if (options.Language) Language = *options.Language;
  FontDataInit(options.Language ? 0 : 1);
  ColorCode = options.Colour;
}

OpenLayout::OpenLayout(const std::string& name) {
  IntPtrnData();
  PtrnHedr = {};
  if (CheckPtrnFile(ProjPath, name.c_str()) != LayoutFileState::Whole) {
    error_ = "not a whole layout file";
    return;
  }
  // The result tells a layout without items from others; both can be drawn.
  PtrnFileRead(ProjPath, name.c_str());
  if (!DrawableSize(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]))
    error_ = "its size cannot be drawn";
}

OpenLayout::~OpenLayout() {
  ExtPtrnData();
}

LayoutPicture::LayoutPicture()
    : surface_(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]) {
  DrawGc gc;
  DrawWindow1(&surface_, &gc);
}

bool DrawableSize(gint64 width, gint64 height) {
  return width <= SideLimit && height <= SideLimit && width * height <= AreaLimit;
}
