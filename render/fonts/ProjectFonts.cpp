#include "render/FontTable.h"
#include "render/fonts/DrawFonts.h"
#include "support/Resource.h"

void SetDrawFont() {
  for (gint font = 0; font < FontCount; ++font) {
    LoadDrawFont(font, FontName[font]);
  }
}
