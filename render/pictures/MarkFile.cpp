#include "render/Marks.h"
#include "render/pictures/ResourceFile.h"

namespace {

ResourceFile Marks("PtrnMark", MarkData);

}  // namespace

void LoadMarkFile() {
  Marks.Load();
  SetDrawMark();
}

void SaveMarkFile() {
  SetDrawMark();
  Marks.Save();
}
