// The cursor keys of input items: check buttons in the panel, bits in the record.
#include "dialogs/ToolBox.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"

gint CusrUp = 0;
gint CusrDown = 0;
gint CusrLeft = 0;
gint CusrRight = 0;

namespace {

gint* const Keys[] = {&CusrUp, &CusrDown, &CusrLeft, &CusrRight};

}  // namespace

void SetToolBoxCursor() {
  gint bits = 0;
  for (gint bit = 0; bit < 4; ++bit) {
    if (*Keys[bit] != 0) bits |= 1 << bit;
  }
  PtrnData.Parm[TextSlot::CursorKeys] = bits;
}

void GetToolBoxCursor() {
  for (gint bit = 0; bit < 4; ++bit) *Keys[bit] = PtrnData.Parm[TextSlot::CursorKeys] >> bit & 1;
}
