#include "layout/edit/NothingOpen.h"

#include "layout/Mouse.h"
#include "layout/Store.h"

bool EndedWithNothingOpen() {
  if (PtrnFlag != 0) return false;
  ClearToolBox();
  return true;
}
