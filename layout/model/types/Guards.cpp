#include "layout/Guards.h"

#include "layout/ItemSlots.h"
#include "layout/Records.h"
#include "support/ConstantLists.h"
#include "support/Resource.h"

namespace {

constexpr gint GridIntervals = 12;

// The entry of a table, its first one for an index outside.
template <typename Entry, std::size_t Size>
const Entry& EntryOf(const Entry (&table)[Size], gint index, gint used = Size) {
  return table[index >= 0 && index < used ? index : 0];
}

}  // namespace

gint ZoomPercent(gint index) {
  return EntryOf(ZoomFactorData, index);
}

gint GridDots(gint index) {
  return EntryOf(GridIntvData, index, GridIntervals);
}

SIZE DisplaySize(gint index) {
  return EntryOf(DispSizeData, index);
}

gint CalendarFormat(gint index) {
  return index >= 1 && index <= 6 ? index : 0;
}

gint TextIndex(gint language) {
  return language == 0 || language == 1 ? language : 2;
}

bool IsOnLayout(const PTRNHEDR& header, gint64 x, gint64 y) {
  return x >= 0 && x < header.Parm1[HedrSlot::Width] && y >= 0 &&
         y < header.Parm1[HedrSlot::Height];
}

gint GuardedFontHeight(gint font) {
  if (font < 0 || font >= FontCount || FontHeight[font] < 0) return 0;
  return FontHeight[font];
}
