#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"

namespace {

// Entries of the item menu, by bit: register, delete, cancel, copy, redraw.
constexpr gint NewItemMenu = 1 | 4 | 16;
constexpr gint StoredItemMenu = 1 | 2 | 4 | 8 | 16;

void ReleaseSelected([[maybe_unused]] const POINT& point) {
  PtrnMode = ModeSelected;
  SetToolBoxPoint();
  SetCursor(CursorOverItem);
  DrawRequest(0);
}

void ReleaseCreating(const POINT& point) {
  SetMenuActive2(NewItemMenu);
  PlaceFreeEnd(point);
  ReleaseSelected(point);
}

void ReleasePicked(const POINT& point) {
  SetMenuActive2(StoredItemMenu);
  ReleaseSelected(point);
}

// The state stays for the area commands.
void ReleaseArea([[maybe_unused]] const POINT& point) {
  SetCursor(CursorPlain);
}

constexpr StateHandlers ReleaseHandlers = {
    nullptr,          // ModeIdle
    ReleaseCreating,  // ModeCreating
    ReleasePicked,    // ModePicked
    ReleaseSelected,  // ModeSelected
    ReleaseSelected,  // ModeDragging
    ReleaseArea,      // ModeArea
};

}  // namespace

void LButtonUp([[maybe_unused]] GtkWidget* widget, POINT* point) {
  if (PtrnFlag != 0 && MousePoint(point) != 0) RunState(ReleaseHandlers, *point);
}
