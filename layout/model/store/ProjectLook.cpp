#include "layout/model/store/ProjectLook.h"

#include <algorithm>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "support/Text.h"

namespace {

void CopyPointerAndKeys(PTRNHEDR& header, const PROJDATA& project) {
  header.Parm1[HedrSlot::MouseCursor] = project.Parm4[0];
  header.Parm1[HedrSlot::KeyColour] = project.Parm4[1];
  header.Parm1[HedrSlot::KeyBackColour] = project.Parm4[2];
}

}  // namespace

void CopyParentLook(PTRNHEDR& header, const PROJDATA& project) {
  const SIZE size = DisplaySize(project.Parm1[0]);
  header.Parm1[HedrSlot::Width] = size.cx;
  header.Parm1[HedrSlot::Height] = size.cy;
  header.Parm1[HedrSlot::DisplaySize] = project.Parm1[0];
  // Title height up to the colour of the work area lie in the same order in both records.
  std::copy_n(project.Parm2, 12, header.Parm1 + HedrSlot::TitleHeight);
  header.Parm1[HedrSlot::ButtonAreaHeight] = project.Parm2[12];
  header.Parm1[HedrSlot::ButtonAreaColour] = project.Parm2[13];
  CopyPointerAndKeys(header, project);
  CopyText(header.LogoName, FieldText(project.LogoName));
}

void CopyChildLook(PTRNHEDR& header, const PROJDATA& project) {
  std::copy_n(project.Parm3, 5, header.Parm1 + HedrSlot::TitleHeight);
  header.Parm1[HedrSlot::WorkAreaColour] = project.Parm3[5];
  header.Parm1[HedrSlot::FrameWidth] = project.Parm3[6];
  header.Parm1[HedrSlot::FrameColour] = project.Parm3[7];
  CopyPointerAndKeys(header, project);
}

void CopyGridLook(PTRNHEDR& header, const PROJDATA& project) {
  header.Parm2[ViewSlot::GridX] = project.Parm4[3];
  header.Parm2[ViewSlot::GridY] = project.Parm4[4];
  header.Parm2[ViewSlot::GridColour] = project.Parm4[5];
}
