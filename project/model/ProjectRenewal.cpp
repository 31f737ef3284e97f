#include "layout/ItemSlots.h"
#include "layout/LayoutFile.h"
#include "layout/ProjectRecord.h"
#include "layout/model/store/ProjectLook.h"
#include "project/ProjectFiles.h"
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
  if (!KeepDamagedPtrnFile(path, name)) return;
  Layout layout;
  const LayoutReading reading = ReadLayoutFile(path, name, layout);
  if (reading != LayoutReading::Failed && !layout.Header.Parm1[HedrSlot::KeepAsIs]) {
    CopyLook(layout.Header);
    WriteLayoutFile(path, name, layout.Header, layout.Items);
  }
}

void ProjFileRenew(const gchar* path) {
  for (const std::string& name : LayoutNames(path)) PtrnFileRenew(path, name.c_str());
}
