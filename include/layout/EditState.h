// State of the editing in the window, read by the overlay. Written by Mouse.h and LayoutCommands.h.
#pragma once

#include "layout/ItemTypes.h"

enum PtrnModeCode {
  ModeIdle = 0,
  ModeCreating = 1,
  ModePicked = 2,
  ModeSelected = 3,
  ModeDragging = 4,
  ModeArea = 5,
};

extern gint PtrnMode;
// Item type chosen, 0 = none.
extern gint PtrnType;
// Store index of the picked item, -1 = none.
extern gint PtrnNo;
// Hit code under the press that began a drag.
extern gint PtrnPost;
// The item's points and the press position when the drag began, layout dots.
extern POINT PtrnPoint1;
extern POINT PtrnPoint2;
extern POINT PtrnPoint3;
// Corners of the area selection, layout dots.
extern POINT AreaPoint1;
extern POINT AreaPoint2;
// Per type - 1: non-zero = such items cannot be picked.
extern gint PtrnUnSlct[ItemTypeCount];
// Non-zero: the overlay shows the incomplete items.
extern gint PtrnUndef;
// Colour system shown, 0..3.
extern gint ColorCode;
