// An item in memory and its record in the layout file, which begin alike. Between them bytes are
// copied: packed numbers need not be aligned, and a record in between would cost more than the
// copy.
#pragma once

#include <cstddef>
#include <cstring>

#include "layout/ItemSlots.h"
#include "layout/Records.h"

constexpr std::size_t AlikeSize = offsetof(PTRNFILE, ID_Type);
static_assert(offsetof(PTRNFILE, Parm) == offsetof(PTRNDATA, Parm));
static_assert(offsetof(PTRNDATA, Text1) == AlikeSize);

// Fills an item with what the record holds, its points included.
inline void TakeRecord(PTRNDATA& item, const char* record) {
  std::memcpy(&item, record, AlikeSize);
  std::memcpy(&item.ID_Type, record + offsetof(PTRNFILE, ID_Type), sizeof item.ID_Type);
  std::memcpy(&item.ID_No, record + offsetof(PTRNFILE, ID_No), sizeof item.ID_No);
  std::memcpy(&item.UndfFlag, record + offsetof(PTRNFILE, UndfFlag), sizeof item.UndfFlag);
  item.Point1 = {item.Parm[ItemSlot::X1], item.Parm[ItemSlot::Y1]};
  item.Point2 = {item.Parm[ItemSlot::X2], item.Parm[ItemSlot::Y2]};
}

inline void PutRecord(char* record, const PTRNDATA& item) {
  std::memcpy(record, &item, AlikeSize);
  std::memcpy(record + offsetof(PTRNFILE, ID_Type), &item.ID_Type, sizeof item.ID_Type);
  std::memcpy(record + offsetof(PTRNFILE, ID_No), &item.ID_No, sizeof item.ID_No);
  std::memcpy(record + offsetof(PTRNFILE, UndfFlag), &item.UndfFlag, sizeof item.UndfFlag);
}
