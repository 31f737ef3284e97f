// The items of a layout in painting order.
#include <array>
#include <vector>

#include "Constant.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "render/Layout.h"

namespace {

using Renderer = void (*)(Drawable*, DrawGc*, PTRNDATA*);

// Index = type code.
constexpr Renderer Renderers[16] = {nullptr,        DrawPtrnData01, DrawPtrnData02, DrawPtrnData03,
                                    DrawPtrnData04, DrawPtrnData05, DrawPtrnData06, DrawPtrnData07,
                                    DrawPtrnData08, DrawPtrnData09, DrawPtrnData10, DrawPtrnData11,
                                    DrawPtrnData12, DrawPtrnData13, DrawPtrnData14, DrawPtrnData15};

void DrawStoredItem(Drawable* drawable, DrawGc* gc, gint no) {
  PTRNDATA item;
  GetPtrnData(no, &item);
  DrawPtrnItem(drawable, gc, &item);
  SetPtrnData(no, &item);
}

}  // namespace

void DrawPtrnItem(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  if (IsItemType(item->Type)) Renderers[item->Type](drawable, gc, item);
}

void DrawPtrnData(Drawable* drawable, DrawGc* gc, gint layer) {
  std::array<std::vector<gint>, 16> byType;
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
