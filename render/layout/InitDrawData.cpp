#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Pictures.h"
#include "render/Primitives.h"
#include "render/fonts/DrawFonts.h"
#include "support/Profile.h"
#include "support/Resource.h"

namespace {

DRAWCOLR ColourOf(gint red, gint green, gint blue) {
  return {static_cast<guint16>(red), static_cast<guint16>(green), static_cast<guint16>(blue),
          PixelOf(red, green, blue)};
}

DRAWCOLR ProfileColour(const gchar* key) {
  gint red = 0, green = 0, blue = 0;
  ProfileRead1("", "COLOR", key, "iii", &red, &green, &blue);
  return ColourOf(red, green, blue);
}

}  // namespace

void InitDrawData() {
  DrawColr[ColourWhite] = ColourOf(65535, 65535, 65535);
  DrawColr[ColourBlack] = ColourOf(0, 0, 0);
  DrawColr[ColourRed] = ColourOf(65535, 0, 0);
  for (gint i = 0; i < FontCount; ++i) FontName[i][0] = FontList[i][0] = '\0';
  SetDrawFont();
  ForgetSmallFont();
  CusrColr[0] = ProfileColour("CURSOR_FG");
  CusrColr[1] = ProfileColour("CURSOR_BG");
  XPM_DataInit();
  MarkDataInit();
}
