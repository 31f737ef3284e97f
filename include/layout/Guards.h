// Numbers from files and profile pass these before they index anything. The stored value stays.
#pragma once

#include "layout/ItemTypes.h"

struct PTRNHEDR;

// The zooms by their index.
namespace ZoomCode {
enum { Percent500 = 0, Percent200 = 1, Percent100 = 2, Percent75 = 3, Percent50 = 4, Count = 5 };
}
// Percent of a zoom index; entry 0 when out of range.
gint ZoomPercent(gint index);
// Dots of a grid interval index 0..11; entry 0 when out of range.
gint GridDots(gint index);
// Size of a display-size index; entry 0 when out of range.
SIZE DisplaySize(gint index);
// 1..6 as they are, anything else 0 (hidden).
gint CalendarFormat(gint index);
// Display language as an index 0..2 of a text: any value but 0 and 1 selects the third.
gint TextIndex(gint language);
// Whether a place, in layout dots, lies on a layout; one on its right or bottom edge lies beside
// it.
bool IsOnLayout(const PTRNHEDR& header, gint64 x, gint64 y);
inline bool IsColour(gint colour) {
  return colour >= 0 && colour <= 102;
}

inline bool IsFont(gint font) {
  return font >= 0 && font <= 20;
}

inline bool IsMark(gint mark) {
  return mark >= 0 && mark <= 353;
}

// Line height of a font in dots; 0 for a number that names none.
gint GuardedFontHeight(gint font);
