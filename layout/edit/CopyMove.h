// Shifting stored items: what copying and moving have in common.
#pragma once

#include "layout/Records.h"

// What the copy and move dialogs edit; all of them begin with the values confirmed last.
extern DLGPARM CopyMoveParm;

// Writes the item's points into its parameters.
void SetPointParms(PTRNDATA* item);
// Moves the item by the offsets of `parm`.
void ShiftItem(PTRNDATA* item, const DLGPARM& parm);
// Adds `parm.cont` copies to the store, each shifted and renumbered from the one before it.
void AddShiftedCopies(PTRNDATA item, const DLGPARM& parm);
