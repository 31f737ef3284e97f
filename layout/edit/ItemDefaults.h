// Parameters that a new item of a type starts with, kept in the designer profile.
#pragma once

#include "layout/Records.h"

// Fills the item's parameters after the points with its type's defaults; missing ones become 0.
void LoadItemDefaults(PTRNDATA* item);
// Makes the item's parameters after the points the defaults of its type.
void SaveItemDefaults(const PTRNDATA& item);
