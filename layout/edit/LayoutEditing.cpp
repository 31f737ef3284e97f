// Begin and end of the editing of a layout.
#include <algorithm>
#include <iterator>

#include "layout/EditState.h"
#include "layout/LayoutCommands.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/OwnFile.h"

void PtrnDataInit() {
  PtrnType = 0;
  PtrnMode = ModeIdle;
  ColorCode = 0;
  std::fill(std::begin(PtrnUnSlct), std::end(PtrnUnSlct), 0);
  IntPtrnData();
  ForgetOwnFile();
  PtrnSaveInit();
  SetCursor(CursorPlain);
}

void PtrnDataExit() {
  ExtPtrnData();
  PtrnSaveExit();
  PtrnHedr = PTRNHEDR{};
  PtrnFlag = 0;
  SetWindTitle(ProjName, "");
  SizeRequest(0, 0, 0, 0);
}
