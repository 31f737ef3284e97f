// The title area: colour, logo, title, hard-copy icon and clock.
#include <string>

#include "layout/Guards.h"
#include "layout/ProjectRecord.h"
#include "layout/ShownTexts.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"
#include "render/Pictures.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"
#include "render/layout/Calendar.h"
#include "render/surface/PageArea.h"
#include "support/Resource.h"
#include "support/Text.h"

namespace {

gint TitleFontHeight(const PTRNHEDR& header) {
  return GuardedFontHeight(header.Parm1[HedrSlot::TitleFont]);
}

void DrawTitleText(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header, gint x, gint y,
                   gint font, const std::string& text) {
  DrawText(drawable, gc, x, y, font, header.Parm1[HedrSlot::TitleColour],
           header.Parm1[HedrSlot::TitleAreaColour], text.c_str());
}

}  // namespace

void DrawPageData(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  const PageArea page(header);
  if (page.TitleHeight > 0) {
    if (page.Width > 0) {
      FillArea(drawable, gc, {0, 0, page.Width, page.TitleHeight},
               header.Parm1[HedrSlot::TitleAreaColour]);
    }
    DrawPageData1(drawable, gc, header);
    DrawPageData2(drawable, gc, header);
  }
  DrawPageData3(drawable, gc, header);
}

void DrawPageData1(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  const PageArea page(header);
  const gint height = TitleFontHeight(header);
  const gint margin = (page.TitleHeight - height) / 2;
  gint logoWidth = 0;
  const std::string logo(FieldText(header.LogoName));
  if (header.Parm1[HedrSlot::LogoShown] != 0 && !logo.empty()) {
    DrawBmap(drawable, gc, margin, margin, height, height, -1, BmapPath, logo.c_str());
    logoWidth = height + margin;
  }

  const gint font = header.Parm1[HedrSlot::TitleFont];
  const std::string title(TitleOf(header, Language));
  const bool centred = header.Parm1[HedrSlot::TitleCentred] != 0;
  const gint x =
      centred ? (page.Width - GetTextSize(font, title.c_str()).cx) / 2 : height / 2 + logoWidth;
  DrawTitleText(drawable, gc, header, x, margin, font, title);
}

void DrawPageData2(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  const PageArea page(header);
  const gint height = TitleFontHeight(header);
  gint margin = (page.TitleHeight - height) / 2;
  if (header.Parm1[HedrSlot::HardCopyShown] != 0) {
    DrawXpm(drawable, gc, page.Width - height - margin, margin, height, height, XPM_Printer);
    margin = height + 2 * margin;
  }

  const gint format = CalendarFormat(header.Parm1[HedrSlot::DateFormat]);
  if (format == 0) return;
  const gint font = header.Parm1[HedrSlot::DateFont];
  const std::string date = CalendarText(format, PictureTime());
  const gint x = page.Width - GetTextSize(font, date.c_str()).cx - margin;
  DrawTitleText(drawable, gc, header, x, (page.TitleHeight - GuardedFontHeight(font)) / 2, font,
                date);
}

void DrawPageData(Drawable* drawable, DrawGc* gc) {
  DrawPageData(drawable, gc, PtrnHedr);
}

void DrawPageData1(Drawable* drawable, DrawGc* gc) {
  DrawPageData1(drawable, gc, PtrnHedr);
}

void DrawPageData2(Drawable* drawable, DrawGc* gc) {
  DrawPageData2(drawable, gc, PtrnHedr);
}
