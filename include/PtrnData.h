// The layout document and its editing: records, store, file, item types, commands, mouse, commit.
#pragma once

#include "Types.h"
#include "layout/Area.h"
#include "layout/Commands.h"
#include "layout/Commit.h"
#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Records.h"
#include "layout/Registry.h"
#include "layout/Screen.h"
#include "layout/Store.h"
