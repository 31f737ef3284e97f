// A layout as a value: what its file holds, in memory. Any number of them may be at work at once;
// the open one stands in the globals of layout/Store.h.
#pragma once

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
PTRNDATA* AddEmptyItems(ItemArray& items, gint count);
