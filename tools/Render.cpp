#include <algorithm>

#include "render/LayoutPicture.h"
#include "render/Surface.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Text.h"
#include "tools/Commands.h"
#include "tools/LayoutView.h"
#include "tools/OpenProject.h"
#include "tools/RenderChanges.h"
#include "tools/Report.h"

namespace {

int RenderLayout(const std::string& name, const std::string& file, const RenderOptions& options) {
  ViewedLayout layout = LoadView(name);
  if (!layout.Error.empty()) return Fail(file, layout.Error);
  const CanvasPicture canvas = PaintCanvas(layout.Value, options.Zoom, options.Grid);
  if (!canvas.Surface) return Fail(file, canvas.Error);
  return WritePng(*canvas.Surface, file.c_str()) ? Print(ShownPath(file) + "\n")
                                                 : Fail(file, "cannot be written");
}

}  // namespace

int RunRender(const RenderOptions& options) {
  const ProfileInUse profile(options.View.Profile);
  if (!profile.Good() || !OpenProject(options.View.Project)) return ExitFailed;
  PrepareDrawing(options.View);
  SetPictureTime(options.Time ? &*options.Time : nullptr);
  if (!options.Before.empty()) return RenderChanges(options);
  if (!CreateFolder(options.Folder.c_str())) return Fail(options.Folder, "cannot be made");
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
