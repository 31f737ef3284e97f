#include "layout/Store.h"
#include "render/Items.h"
#include "render/items/OutlineByType.h"

void DrawUndfData(Drawable* drawable, DrawGc* gc, gint zoom) {
  const gint count = GetPtrnCount();
  for (gint no = 0; no < count; ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    if (item == nullptr || item->UndfFlag == 0) continue;
    if (const OutlineFunction draw = OutlineOf(item->Type)) draw(drawable, gc, item, 1, zoom);
  }
}
