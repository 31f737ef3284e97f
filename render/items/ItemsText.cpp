// Fixed string, variable string and numeric data.
#include <algorithm>
#include <string>

#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"

namespace {

void DrawItemText(Drawable* drawable, DrawGc* gc, PTRNDATA* item, const gchar* text) {
  const POINT anchor = OnPlane(POINT{item->Point1});
  const gint font = item->Parm[TextSlot::Font];
  DrawText(
      drawable, gc, anchor.x, anchor.y, font, SystemColour(*item, TextSlot::TextColour),
      OptionalColour(item->Parm[TextSlot::BackEnabled], SystemColour(*item, TextSlot::BackColour)),
      text);
  item->Size = GetTextSize(font, text);
}

}  // namespace

void DrawPtrnData06(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  DrawItemText(drawable, gc, item, ItemText(*item).c_str());
}

void DrawPtrnData07(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const gint length = std::clamp(gint{item->Parm[TextSlot::Length]}, 0, 99);
  DrawItemText(drawable, gc, item, std::string(static_cast<std::size_t>(length), '#').c_str());
}

void DrawPtrnData08(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  gchar sample[100];
  NumericSample(item, sample, sizeof sample);
  DrawItemText(drawable, gc, item, sample);
}
