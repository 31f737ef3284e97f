#include "layout/Guards.h"
#include "render/Primitives.h"
#include "render/fonts/DrawFonts.h"
#include "render/surface/Paint.h"

void DrawText(Drawable* drawable, DrawGc* gc, gint x, gint y, gint font, gint fg, gint bg,
              const gchar* text) {
  FontSet* fonts = DrawFontOf(font);
  if (fonts == nullptr || text == nullptr || text[0] == '\0') return;
  const TextExtents extents = fonts->Measure(text);
  const gint height = LineHeightOf(font);
  if (IsColour(bg)) {
    gc->Foreground = DrawColr[bg].pixel;
    FillPixels(drawable, x, y, extents.Width, height, gc->Foreground);
  }
  if (IsColour(fg)) {
    gc->Foreground = DrawColr[fg].pixel;
    const gint64 baseline = gint64{y} + (extents.Ascent + height - extents.Descent) / 2;
    const PlaneBox ink{gint64{x} + extents.Left, baseline - extents.Ascent,
                       gint64{x} + extents.Right, baseline + extents.Descent};
    if (!ink.Clip(BoxOf(*drawable)).Empty()) {
      fonts->Draw(*drawable, x, baseline, gc->Foreground, text);
    }
  }
}

void DrawTextOnBaseline(Drawable* drawable, DrawGc* gc, gint x, gint baseline, gint font, gint fg,
                        const gchar* text) {
  FontSet* fonts = DrawFontOf(font);
  if (fonts == nullptr || text == nullptr || !IsColour(fg)) return;
  gc->Foreground = DrawColr[fg].pixel;
  fonts->Draw(*drawable, x, baseline, gc->Foreground, text);
}

SIZE GetTextSize(gint font, const gchar* text) {
  FontSet* fonts = DrawFontOf(font);
  if (fonts == nullptr || text == nullptr || text[0] == '\0') return {0, 0};
  const TextExtents extents = fonts->Measure(text);
  // Both bearings are added, so the ink's distance from the origin counts twice; hit tests rely on
  // it.
  return {extents.Left + extents.Right, extents.Ascent + extents.Descent};
}
