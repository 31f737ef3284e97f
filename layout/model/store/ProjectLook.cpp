#include "layout/model/store/ProjectLook.h"

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/ProjectSlots.h"
#include "support/Text.h"

namespace {

// A header's parameter and the project's that it follows.
struct FollowedSlot {
  gint Header;
  gint Project;
};

constexpr FollowedSlot ParentLook[] = {
    {HedrSlot::TitleHeight, ParentSlot::TitleHeight},
    {HedrSlot::TitleColour, ParentSlot::TitleColour},
    {HedrSlot::TitleAreaColour, ParentSlot::TitleAreaColour},
    {HedrSlot::TitleFont, ParentSlot::TitleFont},
    {HedrSlot::TitleCentred, ParentSlot::TitleCentred},
    {HedrSlot::LogoShown, ParentSlot::LogoShown},
    {HedrSlot::HardCopyShown, ParentSlot::HardCopyShown},
    {HedrSlot::VersionScreen, ParentSlot::VersionScreen},
    {HedrSlot::DebugScreen, ParentSlot::DebugScreen},
    {HedrSlot::DateFormat, ParentSlot::DateFormat},
    {HedrSlot::DateFont, ParentSlot::DateFont},
    {HedrSlot::WorkAreaColour, ParentSlot::WorkAreaColour},
    {HedrSlot::ButtonAreaHeight, ParentSlot::ButtonAreaHeight},
    {HedrSlot::ButtonAreaColour, ParentSlot::ButtonAreaColour},
};

constexpr FollowedSlot ChildLook[] = {
    {HedrSlot::TitleHeight, ChildSlot::TitleHeight},
    {HedrSlot::TitleColour, ChildSlot::TitleColour},
    {HedrSlot::TitleAreaColour, ChildSlot::TitleAreaColour},
    {HedrSlot::TitleFont, ChildSlot::TitleFont},
    {HedrSlot::TitleCentred, ChildSlot::TitleCentred},
    {HedrSlot::WorkAreaColour, ChildSlot::WorkAreaColour},
    {HedrSlot::FrameWidth, ChildSlot::FrameWidth},
    {HedrSlot::FrameColour, ChildSlot::FrameColour},
};

constexpr FollowedSlot PointerAndKeys[] = {
    {HedrSlot::MouseCursor, CommonSlot::MouseCursor},
    {HedrSlot::KeyColour, CommonSlot::KeyColour},
    {HedrSlot::KeyBackColour, CommonSlot::KeyBackColour},
};

// Of PTRNHEDR.Parm2.
constexpr FollowedSlot GridLook[] = {
    {ViewSlot::GridX, CommonSlot::GridX},
    {ViewSlot::GridY, CommonSlot::GridY},
    {ViewSlot::GridColour, CommonSlot::GridColour},
};

}  // namespace

void CopyParentLook(PTRNHEDR& header, const PROJDATA& project) {
  const SIZE size = DisplaySize(project.Parm1[ProjectSlot::DisplaySize]);
  header.Parm1[HedrSlot::Width] = size.cx;
  header.Parm1[HedrSlot::Height] = size.cy;
  header.Parm1[HedrSlot::DisplaySize] = project.Parm1[ProjectSlot::DisplaySize];
  for (const FollowedSlot& slot : ParentLook) {
    header.Parm1[slot.Header] = project.Parm2[slot.Project];
  }
  for (const FollowedSlot& slot : PointerAndKeys) {
    header.Parm1[slot.Header] = project.Parm4[slot.Project];
  }
  CopyText(header.LogoName, FieldText(project.LogoName));
}

void CopyChildLook(PTRNHEDR& header, const PROJDATA& project) {
  for (const FollowedSlot& slot : ChildLook) {
    header.Parm1[slot.Header] = project.Parm3[slot.Project];
  }
  for (const FollowedSlot& slot : PointerAndKeys) {
    header.Parm1[slot.Header] = project.Parm4[slot.Project];
  }
}

void CopyGridLook(PTRNHEDR& header, const PROJDATA& project) {
  for (const FollowedSlot& slot : GridLook) header.Parm2[slot.Header] = project.Parm4[slot.Project];
}
