// A layout as a value: what its file holds, in memory. Any number of them may be at work at once;
// the open one stands in the globals of layout/Store.h.
#pragma once

#include <cstring>
#include <vector>

#include "layout/Records.h"
#include "support/BareMemory.h"

// Items in their order. Those that resize() adds are not cleared, see AddEmptyItems.
using ItemArray = std::vector<PTRNDATA, BareMemory<PTRNDATA>>;

struct Layout {
  PTRNHEDR Header{};
  ItemArray Items;
};

// Appends `count` empty items; the first of them, the others follow it. Gone with the next change.
inline PTRNDATA* AddEmptyItems(ItemArray& items, gint count) {
  const std::size_t before = items.size();
  items.resize(before + static_cast<std::size_t>(count));
  PTRNDATA* first = items.data() + before;
  std::memset(first, 0, static_cast<std::size_t>(count) * sizeof *first);
  return first;
}
