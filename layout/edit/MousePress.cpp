#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"

namespace {

void PickItem() {
  GetPtrnData(PtrnNo, &PtrnData);
  PtrnMode = ModePicked;
  PtrnType = PtrnData.Type;
  DrawRequest(0);
  DispToolBox(1, PtrnType);
}

void BeginArea(const POINT& point) {
  PtrnMode = ModeArea;
  AreaPoint1 = point;
  AreaPoint2 = point;
  DrawRequest(0);
  SetCursor(CursorOverItem);
}

void BeginItem(const POINT& point) {
  PtrnMode = ModeCreating;
  PtrnData.Point1 = point;
  PtrnData.Point2 = point;
  SetToolBoxPoint();
  DrawRequest(0);
}

// Picking wins over creating, creating over spanning an area.
void PressIdle(const POINT& point) {
  PtrnNo = SearchPtrnData1(&point);
  if (PtrnNo >= 0) {
    PickItem();
  } else if (PtrnType == 0) {
    BeginArea(point);
  } else {
    BeginItem(point);
  }
}

// A press beside the item lets it go; the tool box stays open, with nothing to register or delete.
void PressSelected(const POINT& point) {
  PtrnPost = SearchPtrnData2(&point);
  if (PtrnPost < 1) {
    PtrnMode = ModeIdle;
    SetCursor(CursorPlain);
    SetMenuActive2(RedrawOnlyMenu);
    DrawRequest(0);
    return;
  }
  PtrnMode = ModeDragging;
  PtrnPoint1 = PtrnData.Point1;
  PtrnPoint2 = PtrnData.Point2;
  PtrnPoint3 = point;
  SetCursor(CursorOfHit(PtrnPost));
  SetToolBoxPoint();
  DrawRequest(0);
}

constexpr StateHandlers PressHandlers = {
    PressIdle,      // ModeIdle
    nullptr,        // ModeCreating
    nullptr,        // ModePicked
    PressSelected,  // ModeSelected
    nullptr,        // ModeDragging
    nullptr,        // ModeArea
};

}  // namespace

void LButtonDown([[maybe_unused]] GtkWidget* widget, POINT* point) {
  if (PtrnFlag != 0 && MousePoint(point) != 0) RunState(PressHandlers, *point);
}
