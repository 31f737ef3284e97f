// The items of a layout in painting order.
#include "Constant.h"
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

void DrawItemsOfType(Drawable* drawable, DrawGc* gc, gint type, gint layer) {
  const gint count = GetPtrnCount();
  for (gint no = 0; no < count; ++no) {
    const PTRNDATA* stored = ViewPtrnData(no);
    if (stored == nullptr || stored->Type != type || stored->Parm[ItemSlot::TopLayer] != layer) {
      continue;
    }
    PTRNDATA item = *stored;
    Renderers[type](drawable, gc, &item);
    SetPtrnData(no, &item);
  }
}

}  // namespace

void DrawPtrnData(Drawable* drawable, DrawGc* gc, gint layer) {
  for (const gint type : PtrnTable) DrawItemsOfType(drawable, gc, type, layer);
}
