#include "ProjData.h"
#include "PtrnMisc.h"

void LoadColrFile() {
  FileRead(ProjPath, "PtrnColr", "", ColrData, sizeof ColrData, 0);
  SetDrawColr();
}

void SaveColrFile() {
  SetDrawColr();
  // The settings of the first project show the palette editor before there is a folder.
  if (ProjPath[0] != '\0') {
    FileWrite(ProjPath, "PtrnColr", "", ColrData, sizeof ColrData, 0);
  }
}
