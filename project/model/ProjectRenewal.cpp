#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "layout/model/store/ProjectLook.h"
#include "project/ProjectFiles.h"
#include "project/ProjectRecord.h"
#include "project/model/LayoutNames.h"

namespace {

void CopyLook(PTRNHEDR& header) {
  switch (header.Parm1[HedrSlot::Kind]) {
    case 0:
      CopyParentLook(header, ProjData);
      break;
    case 1:
      CopyChildLook(header, ProjData);
      break;
    default:
      break;
  }
  CopyGridLook(header, ProjData);
}

}  // namespace

void PtrnFileRenew(const gchar* path, const gchar* name) {
  if (!KeepDamagedPtrnFile(path, name)) {
    return;
  }
  PtrnHedr = PTRNHEDR{};
  IntPtrnData();
  const LayoutReading reading = ReadPtrnFile(path, name);
  if (reading != LayoutReading::Failed && !PtrnHedr.Parm1[HedrSlot::KeepAsIs]) {
    CopyLook(PtrnHedr);
    PtrnFileWrite(path, name);
  }
  ExtPtrnData();
  PtrnHedr = PTRNHEDR{};
}

void ProjFileRenew(const gchar* path) {
  for (const std::string& name : LayoutNames(path)) {
    PtrnFileRenew(path, name.c_str());
  }
}
