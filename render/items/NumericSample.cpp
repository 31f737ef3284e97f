#include <algorithm>
#include <string>

#include "layout/ItemSlots.h"
#include "render/Items.h"
#include "support/Text.h"

void NumericSample(const PTRNDATA* item, gchar* text, gsize size) {
  const gint digits = std::clamp(gint{item->Parm[TextSlot::Length]}, 0, 99);
  const gint decimals = std::clamp(gint{item->Parm[TextSlot::Decimals]}, 0, 99);
  std::string sample(static_cast<std::size_t>(digits), '*');

  if (item->Parm[TextSlot::Hexadecimal] == 0) {
    const gint point = digits - decimals - 1;
    if (decimals > 0 && point >= 0) sample[static_cast<std::size_t>(point)] = '.';
    if (item->Parm[TextSlot::Grouping] != 0) {
      // Kept: the separator takes a digit's place; an integer part of 4, 8, ... begins with one.
      const gint whole = decimals > 0 ? point : digits;
      for (gint place = whole - 4; place >= 0; place -= 4) {
        sample[static_cast<std::size_t>(place)] = ',';
      }
    }
  }
  CopyText(text, size, sample);
}
