#include "render/Layout.h"

void DrawWindow1(Drawable* drawable, DrawGc* gc) {
  DrawPageData(drawable, gc);
  DrawPtrnData(drawable, gc, 0);
  DrawPtrnData(drawable, gc, 1);
}
