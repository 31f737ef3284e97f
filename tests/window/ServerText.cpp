#include "tests/window/ServerText.h"

#include "tests/window/ServerPicture.h"

namespace {

using namespace ServerTextPlace;

XFontSet OpenFonts(Display* display, const char* descriptor) {
  char** missing = nullptr;
  int count = 0;
  char* standIn = nullptr;
  XFontSet fonts = XCreateFontSet(display, descriptor, &missing, &count, &standIn);
  if (missing != nullptr) XFreeStringList(missing);
  return fonts;
}

ServerText TextOf(Display* display, XFontSet fonts, const std::string& text) {
  XRectangle ink;
  XRectangle line;
  Xutf8TextExtents(fonts, text.c_str(), static_cast<int>(text.size()), &ink, &line);
  const ServerPicture picture(display, Width, Height);
  Xutf8DrawString(display, picture.Place(), fonts, picture.Pen(), X, Baseline, text.c_str(),
                  static_cast<int>(text.size()));
  return {ink.x, ink.x + ink.width, -ink.y, ink.y + ink.height, picture.Pixels()};
}

}  // namespace

std::vector<ServerText> TextsOfServer(const char* descriptor,
                                      const std::vector<std::string>& texts) {
  std::vector<ServerText> drawn;
  const DisplayPtr display(XOpenDisplay(nullptr));
  if (!display) return drawn;
  XFontSet fonts = OpenFonts(display.get(), descriptor);
  if (fonts == nullptr) return drawn;
  for (const std::string& text : texts) drawn.push_back(TextOf(display.get(), fonts, text));
  XFreeFontSet(display.get(), fonts);
  return drawn;
}
