#include <algorithm>
#include <iterator>

#include "Constant.h"
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "PtrnMisc.h"
#include "support/FileTools.h"
#include "tools/Commands.h"
#include "tools/LayoutView.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"

namespace {

gint ZoomIndex(int percent) {
  const auto found = std::find(std::begin(ZoomFactorData), std::end(ZoomFactorData), percent);
  return static_cast<gint>(std::distance(std::begin(ZoomFactorData), found));
}

// The canvas' own steps: the picture at 100 %, scaled, the grid over it.
int RenderLayout(const std::string& name, const std::string& file, const RenderOptions& options) {
  const OpenLayout layout(name);
  if (!layout.Error().empty()) return Fail(file, layout.Error());
  PtrnHedr.Parm2[ViewSlot::Zoom] = ZoomIndex(options.Zoom);
  PtrnHedr.Parm2[ViewSlot::GridShown] = options.Grid;
  const LayoutPicture picture;
  const gint64 width = gint64{PtrnHedr.Parm1[HedrSlot::Width]} * options.Zoom / 100;
  const gint64 height = gint64{PtrnHedr.Parm1[HedrSlot::Height]} * options.Zoom / 100;
  if (!DrawableSize(width, height)) return Fail(file, "too large at this zoom");
  Drawable canvas(static_cast<gint>(width), static_cast<gint>(height));
  if (!picture.Surface().Valid() || !canvas.Valid()) return Fail(file, "too large for the memory");
  const PixbufPtr image = options.Zoom == 100 ? nullptr : PixbufFromSurface(picture.Surface());
  if (options.Zoom != 100 && !image) return Fail(file, "too large for the memory");
  PaintZoomed(canvas, picture.Surface(), image.get(), canvas.Width(), canvas.Height());
  DrawGc gc;
  DrawGridData(&canvas, &gc);
  return WritePng(canvas, file.c_str()) ? Print(ShownPath(file) + "\n")
                                        : Fail(file, "cannot be written");
}

}  // namespace

int RunRender(const RenderOptions& options) {
  const ProfileInUse profile(options.View.Profile);
  if (!profile.Good() || !OpenProject(options.View.Project)) return ExitFailed;
  if (!CreateFolder(options.Folder.c_str())) return Fail(options.Folder, "cannot be made");
  PrepareDrawing(options.View);
  SetPictureTime(options.Time ? &*options.Time : nullptr);
  std::vector<std::string> names = options.Names;
  if (names.empty()) names = SortedLayouts();
  int result = ExitDone;
  for (const std::string& wanted : names) {
    const std::string name = FindLayout(wanted);
    const int done =
        name.empty()
            ? Fail(wanted, "no such layout in the project")
            : RenderLayout(name, JoinPath(options.Folder, DisplayText(name), "png"), options);
    result = std::max(result, done);
  }
  return result;
}
