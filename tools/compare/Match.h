// Which items of two layouts are the same item.
#pragma once

#include <span>
#include <vector>

#include "layout/Records.h"

// Indexes into both lists.
struct ItemPair {
  std::size_t Before;
  std::size_t After;
};

struct ItemMatch {
  std::vector<ItemPair> Pairs;       // in the order of the list after
  std::vector<std::size_t> Removed;  // indexes into the list before
  std::vector<std::size_t> Added;    // indexes into the list after
};

// Items of one type are paired when they agree, in this order of preference, in everything; place
// and texts; code, number and texts; place; code and number; texts. Several that agree are paired
// in their order.
ItemMatch MatchItems(std::span<const PTRNDATA> before, std::span<const PTRNDATA> after);
// Pairs whose place in the order has changed against the others, in the order of the list after.
std::vector<ItemPair> Reordered(const ItemMatch& match);
