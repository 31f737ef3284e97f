#include "render/Primitives.h"
#include "render/fonts/DrawFonts.h"
#include "render/surface/Paint.h"

void DrawButn(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint border,
              gint topLeftColour, gint bottomRightColour, gint faceColour, gint textColour,
              gint position, gint font, const gchar* label) {
  DrawGbox(drawable, gc, x1, y1, x2, y2, border, border, border, border, topLeftColour,
           bottomRightColour, topLeftColour, bottomRightColour, faceColour);
  const gint64 width = gint64{x2} - x1;
  const gint64 height = gint64{y2} - y1;
  const gint64 left = position == 0 ? (width - GetTextSize(font, label).cx) / 2 : position;
  const gint64 top = (height - LineHeightOf(font)) / 2;
  DrawText(drawable, gc, static_cast<gint>(x1 + left), static_cast<gint>(y1 + top), font,
           textColour, -1, label);
}
