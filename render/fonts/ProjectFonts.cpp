// An object of its own, so that a test can stand in for the function.
#include "render/FontTable.h"
#include "render/fonts/DrawFonts.h"
#include "support/Resource.h"

void SetDrawFont() {
  for (gint font = 0; font < FontCount; ++font) LoadDrawFont(font, FontName[font]);
}
