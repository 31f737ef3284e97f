// Radio button and check box.
#include <string>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"

namespace {

void DrawChoice(Drawable* drawable, DrawGc* gc, PTRNDATA* item, gint indicator) {
  const POINT anchor = OnPlane(POINT{item->Point1});
  const gint font = item->Parm[ChoiceSlot::Font];
  const gint height = GuardedFontHeight(font);
  const gint textColour = ParityColour(*item, ChoiceSlot::TextColour);
  const gint backColour = OptionalColour(item->Parm[ChoiceSlot::BackEnabled],
                                         ParityColour(*item, ChoiceSlot::BackColour));

  DrawMark(drawable, gc, anchor.x, anchor.y, height, height, textColour, backColour, indicator);
  item->Size = {height, height};

  const std::string caption = ItemText(*item);
  if (caption.empty()) return;
  const gint indent = height * 3 / 2;
  DrawText(drawable, gc, anchor.x + indent, anchor.y, font, textColour, backColour,
           caption.c_str());
  item->Size.cx = indent + GetTextSize(font, caption.c_str()).cx;
}

}  // namespace

void DrawPtrnData10(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  DrawChoice(drawable, gc, item, IsOddSystem() ? MarkRadioOn : MarkRadioOff);
}

void DrawPtrnData11(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  DrawChoice(drawable, gc, item, IsOddSystem() ? MarkCheckOn : MarkCheckOff);
}
