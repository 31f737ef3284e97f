// The items of a layout in painting order.
#include <array>
#include <vector>

#include "Constant.h"
#include "layout/Store.h"
#include "render/Layout.h"

namespace {

void DrawStoredItem(Drawable* drawable, DrawGc* gc, gint no) {
  PTRNDATA item;
  GetPtrnData(no, &item);
  DrawPtrnItem(drawable, gc, &item);
  SetPtrnData(no, &item);
}

}  // namespace

void DrawPtrnItem(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  if (!IsItemType(item->Type)) return;
  ItemPainters[static_cast<std::size_t>(item->Type) - 1](drawable, gc, item);
}

void DrawPtrnData(Drawable* drawable, DrawGc* gc, gint layer) {
  std::array<std::vector<gint>, ItemTypeCount + 1> byType;
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    if (IsItemType(item->Type) && item->Parm[ItemSlot::TopLayer] == layer) {
      byType[static_cast<std::size_t>(item->Type)].push_back(no);
    }
  }
  for (const gint type : PtrnTable) {
    for (const gint no : byType[static_cast<std::size_t>(type)]) DrawStoredItem(drawable, gc, no);
  }
}
