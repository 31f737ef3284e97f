#include "ProjData.h"
#include "PtrnMisc.h"

void LoadColrFile() {
  FileRead(ProjPath, "PtrnColr", "", ColrData, sizeof ColrData, 0);
  SetDrawColr();
}

void SaveColrFile() {
  SetDrawColr();
  FileWrite(ProjPath, "PtrnColr", "", ColrData, sizeof ColrData, 0);
}
