#include "tests/window/ServerArc.h"

#include "tests/window/ServerPicture.h"

namespace {

// In 1/64 degree.
constexpr int WholeTurn = 360 * 64;

template <typename Draw>
std::string Drawn(Display* display, const ServerArc& arc, Draw draw) {
  const int around = 1 + 2 * ServerArc::Margin;
  const ServerPicture picture(display, arc.Width + around, arc.Height + around);
  draw(display, picture.Place(), picture.Pen(), ServerArc::Margin, ServerArc::Margin,
       static_cast<unsigned>(arc.Width), static_cast<unsigned>(arc.Height), 0, WholeTurn);
  return picture.Pixels();
}

}  // namespace

bool DrawOnServer(std::vector<ServerArc>& arcs) {
  const DisplayPtr display(XOpenDisplay(nullptr));
  if (!display) return false;
  for (ServerArc& arc : arcs) {
    arc.Filled = Drawn(display.get(), arc, XFillArc);
    arc.Outline = Drawn(display.get(), arc, XDrawArc);
  }
  return true;
}
