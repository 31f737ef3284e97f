#include "layout/edit/MouseStates.h"

#include "layout/Store.h"
#include "support/ConstantLists.h"

void RunState(const StateHandlers& handlers, const POINT& point) {
  if (PtrnMode < ModeIdle || PtrnMode > ModeArea) return;
  const StateHandler handler = handlers[static_cast<gsize>(PtrnMode)];
  if (handler != nullptr) handler(point);
}

void PlaceFreeEnd(const POINT& point) {
  if (HasTwoPoints(PtrnType)) {
    PtrnData.Point2 = point;
  } else {
    PtrnData.Point1 = point;
  }
}

gint CursorOfHit(gint hit) {
  constexpr gint LastHit = 9;
  return PtrnCusrType[hit >= 0 && hit <= LastHit ? hit : 0];
}
