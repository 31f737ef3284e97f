#include "layout/Guards.h"
#include "layout/Records.h"
#include "layout/Store.h"
#include "render/HitTest.h"
#include "tools/Commands.h"
#include "tools/LayoutView.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"

namespace {

// The first item in store order decides, as for the mouse; not the one painted on top. A press
// beside the layout picks nothing.
std::string HitLine(const Layout& layout, const POINT& point) {
  if (!IsOnLayout(layout.Header, point.x, point.y)) return "none\n";
  for (std::size_t no = 0; no < layout.Items.size(); ++no) {
    const PTRNDATA& item = layout.Items[no];
    if (const gint hit = SearchPtrnData(&point, &item)) {
      return "index=" + std::to_string(no) + " type=" + std::to_string(item.Type) +
             " hit=" + std::to_string(hit) + "\n";
    }
  }
  return "none\n";
}

}  // namespace

int RunHit(const HitOptions& options) {
  const ProfileInUse profile(options.View.Profile);
  if (!profile.Good() || !OpenProject(options.View.Project)) return ExitFailed;
  const std::string name = FindLayout(options.Name);
  if (name.empty()) return Fail(options.Name, "no such layout in the project");
  PrepareDrawing(options.View);
  ViewedLayout layout = LoadView(name);
  if (!layout.Error.empty()) return Fail(options.Name, layout.Error);
  // Texts have an extent only once they have been painted.
  const LayoutPicture picture(layout.Value);
  return Print(HitLine(layout.Value, {options.X, options.Y}));
}
