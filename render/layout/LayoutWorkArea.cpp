// Below the title area: work area, button area and the frame of a child window.
#include <array>
#include <string>

#include "layout/ProjectRecord.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"
#include "render/primitives/Gradation.h"
#include "render/surface/PageArea.h"
#include "support/Text.h"

namespace {

void DrawGradation(Drawable* drawable, const PTRNHEDR& header, const PageArea& page) {
  const gint colour = header.Parm1[HedrSlot::WorkAreaColour];
  if (colour < 0 || colour >= ColrCount) return;
  std::array<guint32, 256> shades;
  for (gint shade = 0; shade < 256; ++shade) {
    shades[static_cast<std::size_t>(shade)] = GradationPixel(ColrData[colour], shade);
  }
  const gint rows = page.WorkHeight();
  for (gint row = 0; row < rows; ++row) {
    // Kept: the rows start one pixel below the title area and reach one pixel past the right edge.
    FillPixels(drawable, 0, page.TitleHeight + row + 1, page.Width + 1, 1,
               shades[static_cast<std::size_t>(GradationShade(row, rows))]);
  }
}

void DrawWorkArea(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header, const PageArea& page) {
  if (page.Width <= 0 || page.WorkHeight() <= 0) return;
  if (!FieldText(header.BmapName).empty()) {
    DrawPageData4(drawable, gc, header);
  } else if (header.Parm1[HedrSlot::Gradation] != 0) {
    DrawGradation(drawable, header, page);
  } else {
    FillArea(drawable, gc, {0, page.TitleHeight, page.Width, page.Height - page.ButtonHeight},
             header.Parm1[HedrSlot::WorkAreaColour]);
  }
}

}  // namespace

void DrawPageData3(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  const PageArea page(header);
  DrawWorkArea(drawable, gc, header, page);
  if (page.ButtonHeight > 0 && page.Width > 0) {
    FillArea(drawable, gc, {0, page.Height - page.ButtonHeight, page.Width, page.Height},
             header.Parm1[HedrSlot::ButtonAreaColour]);
  }
  const gint frameWidth = BoundedWidth(header.Parm1[HedrSlot::FrameWidth]);
  if (frameWidth != 0) {
    DrawRect(drawable, gc, 0, 0, page.Width, page.Height, frameWidth, 1,
             header.Parm1[HedrSlot::FrameColour], -1);
  }
}

void DrawPageData4(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header) {
  const PageArea page(header);
  const std::string name(FieldText(header.BmapName));
  DrawBmap(drawable, gc, 0, page.TitleHeight, page.Width, page.WorkHeight(), -1, BmapPath,
           name.c_str());
}

void DrawPageData3(Drawable* drawable, DrawGc* gc) {
  DrawPageData3(drawable, gc, PtrnHedr);
}

void DrawPageData4(Drawable* drawable, DrawGc* gc) {
  DrawPageData4(drawable, gc, PtrnHedr);
}
