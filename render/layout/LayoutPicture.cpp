#include "render/LayoutPicture.h"

#include "layout/Store.h"
#include "render/pictures/PictureFiles.h"

void DrawLayout(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header, std::span<PTRNDATA> items) {
  const KeptPicturePaths paths;
  DrawPageData(drawable, gc, header);
  DrawPtrnData(drawable, gc, items, 0);
  DrawPtrnData(drawable, gc, items, 1);
}

void DrawWindow1(Drawable* drawable, DrawGc* gc) {
  DrawLayout(drawable, gc, PtrnHedr, ReachAllPtrnData());
}
