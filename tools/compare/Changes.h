// What two layouts differ in.
#pragma once

#include <string>
#include <vector>

#include "layout/Layout.h"
#include "tools/compare/Match.h"

// One field in the words of the dialogs, its values fit to show.
struct FieldChange {
  std::string Label;
  std::string Before;
  std::string After;
};

std::vector<FieldChange> HeaderChanges(const PTRNHEDR& before, const PTRNHEDR& after);
// Of two items of the same type.
std::vector<FieldChange> ItemChanges(const PTRNDATA& before, const PTRNDATA& after);

// An item that is in both layouts and not the same in both.
struct ChangedItem {
  ItemPair Items;
  std::vector<FieldChange> Fields;
};

struct LayoutChanges {
  std::vector<FieldChange> Header;
  std::vector<ChangedItem> Changed;
  std::vector<std::size_t> Removed;
  std::vector<std::size_t> Added;

  bool None() const {
    return Header.empty() && Changed.empty() && Removed.empty() && Added.empty();
  }
};

LayoutChanges CompareLayouts(const Layout& before, const Layout& after);
// All changes as lines for people; "" when there are none.
std::string ChangesText(const LayoutChanges& changes, const Layout& before, const Layout& after);
