// Items with texts and codes, by number.
#pragma once

#include <cstring>
#include <string>

#include "layout/Store.h"
#include "support/Text.h"

inline PTRNDATA NumberedItem(gint number, gint codes) {
  PTRNDATA item{};
  item.Type = 1 + number % 15;
  for (gint i = 0; i < 30; ++i) item.Parm[i] = number + i;
  CopyText(item.Text1, "Pressure before the pump");
  CopyText(item.Text2, "Druck vor der Pumpe");
  CopyText(item.Text3, "Pression avant la pompe");
  CopyText(item.ID_Code, "CODE_" + std::to_string(number % codes));
  item.ID_No = number % 10;
  return item;
}

// Makes the store hold the items of `count` numbers.
inline void FillStore(gint first, gint count, gint codes = 5000) {
  PtrnHedr = PTRNHEDR{};
  IntPtrnData();
  for (gint number = first; number < first + count; ++number) {
    const PTRNDATA item = NumberedItem(number, codes);
    AddPtrnData(&item);
  }
}
