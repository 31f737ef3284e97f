#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/Offset.h"

namespace {

// Which coordinates follow the pointer, by the hit code under the press.
struct Grip {
  bool X1, Y1, X2, Y2;
};
constexpr std::array<Grip, 9> Grips = {{
    {false, false, false, false},  // 0 nothing
    {true, true, false, false},    // 1 Point1
    {false, false, true, true},    // 2 Point2
    {true, false, false, true},    // 3 corner (x1, y2)
    {false, true, true, false},    // 4 corner (x2, y1)
    {false, true, false, false},   // 5 top edge
    {false, false, false, true},   // 6 bottom edge
    {true, false, false, false},   // 7 left edge
    {false, false, true, false},   // 8 right edge
}};
constexpr gint BodyHit = 9;

void ShowInHand() {
  SetToolBoxPoint();
  DrawRequest(0);
}

void DragHandle(const Grip& grip, const POINT& point) {
  if (grip.X1) PtrnData.Point1.x = point.x;
  if (grip.Y1) PtrnData.Point1.y = point.y;
  if (grip.X2) PtrnData.Point2.x = point.x;
  if (grip.Y2) PtrnData.Point2.y = point.y;
}

POINT Moved(const POINT& from, gint64 xdot, gint64 ydot) {
  return {AddOffset(from.x, xdot), AddOffset(from.y, ydot)};
}

void DragBody(const POINT& point) {
  const gint64 xdot = gint64{point.x} - PtrnPoint3.x;
  const gint64 ydot = gint64{point.y} - PtrnPoint3.y;
  PtrnData.Point1 = Moved(PtrnPoint1, xdot, ydot);
  PtrnData.Point2 = Moved(PtrnPoint2, xdot, ydot);
}

// With a type chosen, the tool box follows the pointer before the first press.
void MoveIdle(const POINT& point) {
  SetCursor(SearchPtrnData1(&point) >= 0 ? CursorOverItem : CursorPlain);
  if (PtrnType != 0) {
    PtrnData.Point1 = point;
    PtrnData.Point2 = point;
    SetToolBoxPoint();
  }
}

void MoveCreating(const POINT& point) {
  PlaceFreeEnd(point);
  ShowInHand();
}

void MoveSelected(const POINT& point) {
  SetCursor(CursorOfHit(SearchPtrnData2(&point)));
}

void MoveDragging(const POINT& point) {
  if (PtrnPost == BodyHit) {
    DragBody(point);
  } else if (PtrnPost > 0 && PtrnPost < BodyHit) {
    DragHandle(Grips[static_cast<gsize>(PtrnPost)], point);
  }
  ShowInHand();
}

void MoveArea(const POINT& point) {
  AreaPoint2 = point;
  DrawRequest(0);
}

constexpr StateHandlers MoveHandlers = {
    MoveIdle,      // ModeIdle
    MoveCreating,  // ModeCreating
    nullptr,       // ModePicked
    MoveSelected,  // ModeSelected
    MoveDragging,  // ModeDragging
    MoveArea,      // ModeArea
};

}  // namespace

void MouseMove([[maybe_unused]] GtkWidget* widget, POINT* point) {
  if (PtrnFlag != 0 && MousePoint(point) != 0) RunState(MoveHandlers, *point);
}
