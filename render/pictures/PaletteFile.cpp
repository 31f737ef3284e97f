#include "render/Palette.h"
#include "render/pictures/ResourceFile.h"

namespace {

ResourceFile Palette("PtrnColr", ColrData);

}  // namespace

void LoadColrFile() {
  Palette.Load();
  SetDrawColr();
}

void SaveColrFile() {
  SetDrawColr();
  if (Palette.Save()) KeepSavedPalette();
}
