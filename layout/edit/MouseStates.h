// What the handlers of press, motion and release share.
#pragma once

#include <array>

#include "layout/EditState.h"
#include "layout/Records.h"

// Cursors that the editing shows besides those of PtrnCusrType.
enum CursorNumber {
  CursorPlain = 0,
  CursorOverItem = 1,
};

// What the item menu offers when no item is in hand, by bit: to redraw alone.
constexpr gint RedrawOnlyMenu = 16;

// One handler per editing state; a null handler leaves the event without effect.
using StateHandler = void (*)(const POINT& point);
using StateHandlers = std::array<StateHandler, ModeArea + 1>;

// Runs the handler of the present state.
void RunState(const StateHandlers& handlers, const POINT& point);
// Moves the free end of the item being dragged out: its second point, or its anchor.
void PlaceFreeEnd(const POINT& point);
// Cursor that tells what a press with this hit code would grab.
gint CursorOfHit(gint hit);
