// The constant lists, those of the item types among them.
#pragma once

#include "Types.h"
#include "layout/ItemTypes.h"
#include "support/ConstantLists.h"
