#include "render/Items.h"

void DrawPtrnItem(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  if (!IsItemType(item->Type)) return;
  ItemPainters[static_cast<std::size_t>(item->Type) - 1](drawable, gc, item);
}
