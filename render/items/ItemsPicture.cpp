// Bitmap, mark and spin button.
#include <cstdlib>
#include <string>

#include "layout/ItemSlots.h"
#include "layout/ProjectRecord.h"
#include "render/Items.h"
#include "render/Pictures.h"
#include "render/Primitives.h"
#include "render/items/ItemLook.h"
#include "support/Text.h"

void DrawPtrnData12(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  const std::string name(FieldText(item->Text1));
  DrawBmap(drawable, gc, box.X1, box.Y1, std::abs(box.Width()), std::abs(box.Height()),
           OptionalColour(item->Parm[BitmapSlot::Transparent],
                          item->Parm[BitmapSlot::TransparentColour]),
           BmapPath, name.c_str());
}

void DrawPtrnData13(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  DrawMark(
      drawable, gc, box.X1, box.Y1, box.Width(), box.Height(),
      SystemColour(*item, MarkSlot::MarkColour),
      OptionalColour(item->Parm[MarkSlot::BackEnabled], SystemColour(*item, MarkSlot::BackColour)),
      SystemColour(*item, MarkSlot::Mark));
}

void DrawPtrnData15(Drawable* drawable, DrawGc* gc, PTRNDATA* item) {
  const ItemBox box = ItemBoxOf(*item);
  DrawXpm(drawable, gc, box.X1, box.Y1, std::abs(box.Width()), std::abs(box.Height()),
          XPM_SpinButn);
}
