#include "render/items/ItemLook.h"

#include "layout/EditState.h"
#include "layout/ShownTexts.h"
#include "render/Primitives.h"
#include "support/Resource.h"

namespace {

gint ShownSystem() {
  return ColorCode >= 0 && ColorCode <= 3 ? ColorCode : 0;
}

}  // namespace

gint SystemColour(const PTRNDATA& item, gint base) {
  return item.Parm[base + ShownSystem()];
}

bool IsOddSystem() {
  return ShownSystem() % 2 != 0;
}

gint ParityColour(const PTRNDATA& item, gint base) {
  return item.Parm[base + (IsOddSystem() ? 1 : 0)];
}

std::string ItemText(const PTRNDATA& item) {
  return std::string(TextOf(item, Language));
}

void FillArea(Drawable* drawable, DrawGc* gc, const ItemBox& box, gint colour) {
  DrawRect(drawable, gc, box.X1, box.Y1, box.X2, box.Y2, 0, 0, colour, colour);
}

void ThinLine(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint colour) {
  DrawLine(drawable, gc, x1, y1, x2, y2, 0, 1, 0, colour);
}
