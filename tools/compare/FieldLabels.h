// Parameter slots in the words of the tool box and the settings dialogs.
#pragma once

#include <string_view>

#include "Types.h"

// One row: a slot by its name (ItemSlots.h), its label, and how its values are called.
struct FieldLabel {
  gint Type;  // item type; AllTypes, or one of the header's
  std::string_view Slot;
  const char* Label;
  const gchar* const* Values;  // ended by ""; null = the number itself
};

enum LabelOwner { AllTypes = 0, HeaderParm1 = -1, HeaderParm2 = -2 };

// The row of a slot; null when the slot has none.
const FieldLabel* LabelOf(gint owner, std::string_view slot);
