#include "ProjData.h"
#include "PtrnMisc.h"

void LoadMarkFile() {
  FileRead(ProjPath, "PtrnMark", "", MarkData, sizeof MarkData, 0);
  SetDrawMark();
}

void SaveMarkFile() {
  SetDrawMark();
  FileWrite(ProjPath, "PtrnMark", "", MarkData, sizeof MarkData, 0);
}
