#include "render/Layout.h"
#include "render/pictures/PictureFiles.h"

void DrawWindow1(Drawable* drawable, DrawGc* gc) {
  const KeptPicturePaths paths;
  DrawPageData(drawable, gc);
  DrawPtrnData(drawable, gc, 0);
  DrawPtrnData(drawable, gc, 1);
}
