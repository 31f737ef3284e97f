#include <span>

#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "project/ProjectFiles.h"
#include "support/Profile.h"
#include "support/Resource.h"

namespace {

constexpr gchar Section[] = "PROJDATA";

// A profile key and the parameters that it fills, in the order of its fields.
struct DefaultKey {
  const gchar* Name;
  gsize Count;
  gint Slots[3];
};

constexpr DefaultKey GeneralKeys[] = {
    {"PTRNSIZE", 1, {ProjectSlot::DisplaySize}},
    {"LANGUAGE", 1, {ProjectSlot::Languages}},
    {"COLOR", 1, {ProjectSlot::ColourSystems}},
};
constexpr DefaultKey ParentKeys[] = {
    {"MAIN1", 3, {ParentSlot::TitleHeight, ParentSlot::TitleColour, ParentSlot::TitleAreaColour}},
    {"MAIN2", 2, {ParentSlot::TitleFont, ParentSlot::TitleCentred}},
    {"MAIN3", 2, {ParentSlot::LogoShown, ParentSlot::HardCopyShown}},
    {"MAIN4", 2, {ParentSlot::VersionScreen, ParentSlot::DebugScreen}},
    {"MAIN5", 2, {ParentSlot::DateFormat, ParentSlot::DateFont}},
    {"MAIN6", 1, {ParentSlot::WorkAreaColour}},
    {"MAIN7", 2, {ParentSlot::ButtonAreaHeight, ParentSlot::ButtonAreaColour}},
};
constexpr DefaultKey ChildKeys[] = {
    {"CHILD1", 3, {ChildSlot::TitleHeight, ChildSlot::TitleColour, ChildSlot::TitleAreaColour}},
    {"CHILD2", 2, {ChildSlot::TitleFont, ChildSlot::TitleCentred}},
    {"CHILD3", 1, {ChildSlot::WorkAreaColour}},
    {"CHILD4", 2, {ChildSlot::FrameWidth, ChildSlot::FrameColour}},
    {"CHILD5", 2, {ChildSlot::Width, ChildSlot::Height}},
};
constexpr DefaultKey CommonKeys[] = {
    {"MOUSE", 1, {CommonSlot::MouseCursor}},
    {"KEYCOLOR", 2, {CommonSlot::KeyColour, CommonSlot::KeyBackColour}},
    {"GRIDDATA", 3, {CommonSlot::GridX, CommonSlot::GridY, CommonSlot::GridColour}},
};

void ReadKeys(std::span<const DefaultKey> keys, gint* parm) {
  static constexpr const gchar* Formats[] = {"", "i", "ii", "iii"};
  for (const DefaultKey& key : keys) {
    ProfileRead1("", Section, key.Name, Formats[key.Count], parm + key.Slots[0],
                 parm + key.Slots[1], parm + key.Slots[2]);
  }
}

}  // namespace

void ProjSetDefault() {
  ProfileRead1("", Section, "PROG", "s", EditData.ProgPath);
  ReadKeys(GeneralKeys, EditData.Parm1);
  ReadKeys(ParentKeys, EditData.Parm2);
  ReadKeys(ChildKeys, EditData.Parm3);
  ReadKeys(CommonKeys, EditData.Parm4);
  EditData.LogoName[0] = '\0';
  for (gint no = 0; no < ColrCount; ++no) {
    COLRDATA& colour = ColrData[no];
    ProfileRead2("", Section, "COLOR", no, "iii", &colour.red, &colour.green, &colour.blue);
  }
}
