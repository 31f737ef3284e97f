#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "layout/Store.h"
#include "layout/model/store/ProjectLook.h"
#include "support/Files.h"
#include "support/Profile.h"
#include "support/Text.h"

namespace {

constexpr gint TitleCentred = 1;

void InitParentWindow(PTRNHEDR& header) {
  header.Parm1[HedrSlot::Kind] = 0;
  CopyParentLook(header, ProjData);
}

void InitChildWindow(PTRNHEDR& header) {
  header.Parm1[HedrSlot::Kind] = 1;
  header.Parm1[HedrSlot::Width] = ProjData.Parm3[ChildSlot::Width];
  header.Parm1[HedrSlot::Height] = ProjData.Parm3[ChildSlot::Height];
  header.Parm1[HedrSlot::TitlePosition] = TitleCentred;
  CopyChildLook(header, ProjData);
}

void InitTitles(PTRNHEDR& header) {
  // A profile field may be longer than a title.
  gchar titles[3][PathSize] = {};
  ProfileRead1("", "PTRNDATA", "TITLE", "sss", titles[0], titles[1], titles[2]);
  CopyText(header.PtrnName1, titles[0]);
  CopyText(header.PtrnName2, titles[1]);
  CopyText(header.PtrnName3, titles[2]);
}

}  // namespace

void PtrnFileInit(gint type) {
  EditHedr = PTRNHEDR{};
  switch (type) {
    case 0:
      InitParentWindow(EditHedr);
      break;
    case 1:
      InitChildWindow(EditHedr);
      break;
    default:
      EditHedr.Parm1[HedrSlot::Kind] = 2;
  }
  EditHedr.Parm2[ViewSlot::Zoom] = ProfileReadInt1("", "PTRNDATA", "ZOOM");
  CopyGridLook(EditHedr, ProjData);
  InitTitles(EditHedr);
}
