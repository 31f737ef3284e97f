// The items of a layout in painting order.
#include <array>
#include <vector>

#include "layout/ItemSlots.h"
#include "layout/ItemTypes.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"

void DrawPtrnData(Drawable* drawable, DrawGc* gc, std::span<PTRNDATA> items, gint layer) {
  std::array<std::vector<PTRNDATA*>, ItemTypeCount + 1> byType;
  for (PTRNDATA& item : items) {
    if (IsItemType(item.Type) && item.Parm[ItemSlot::TopLayer] == layer) {
      byType[static_cast<std::size_t>(item.Type)].push_back(&item);
    }
  }
  for (const gint type : PtrnTable) {
    for (PTRNDATA* const item : byType[static_cast<std::size_t>(type)]) {
      DrawPtrnItem(drawable, gc, item);
    }
  }
}

void DrawPtrnData(Drawable* drawable, DrawGc* gc, gint layer) {
  DrawPtrnData(drawable, gc, ReachAllPtrnData(), layer);
}
