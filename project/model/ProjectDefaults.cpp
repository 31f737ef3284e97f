#include "ProjData.h"
#include "PtrnMisc.h"

namespace {

constexpr gchar Section[] = "PROJDATA";

// A profile key and the fields that it fills, unused ones null.
struct DefaultKey {
  const gchar* Name;
  const gchar* Format;
  gint* Fields[3];
};

const DefaultKey DefaultKeys[] = {
    {"PTRNSIZE", "i", {&EditData.Parm1[0]}},
    {"LANGUAGE", "i", {&EditData.Parm1[1]}},
    {"COLOR", "i", {&EditData.Parm1[2]}},
    {"MAIN1", "iii", {&EditData.Parm2[0], &EditData.Parm2[1], &EditData.Parm2[2]}},
    {"MAIN2", "ii", {&EditData.Parm2[3], &EditData.Parm2[4]}},
    {"MAIN3", "ii", {&EditData.Parm2[5], &EditData.Parm2[6]}},
    {"MAIN4", "ii", {&EditData.Parm2[7], &EditData.Parm2[8]}},
    {"MAIN5", "ii", {&EditData.Parm2[9], &EditData.Parm2[10]}},
    {"MAIN6", "i", {&EditData.Parm2[11]}},
    {"MAIN7", "ii", {&EditData.Parm2[12], &EditData.Parm2[13]}},
    {"CHILD1", "iii", {&EditData.Parm3[0], &EditData.Parm3[1], &EditData.Parm3[2]}},
    {"CHILD2", "ii", {&EditData.Parm3[3], &EditData.Parm3[4]}},
    {"CHILD3", "i", {&EditData.Parm3[5]}},
    {"CHILD4", "ii", {&EditData.Parm3[6], &EditData.Parm3[7]}},
    {"CHILD5", "ii", {&EditData.Parm3[8], &EditData.Parm3[9]}},
    {"MOUSE", "i", {&EditData.Parm4[0]}},
    {"KEYCOLOR", "ii", {&EditData.Parm4[1], &EditData.Parm4[2]}},
    {"GRIDDATA", "iii", {&EditData.Parm4[3], &EditData.Parm4[4], &EditData.Parm4[5]}},
};

}  // namespace

void ProjSetDefault() {
  ProfileRead1("", Section, "PROG", "s", EditData.ProgPath);
  for (const DefaultKey& key : DefaultKeys) {
    ProfileRead1("", Section, key.Name, key.Format, key.Fields[0], key.Fields[1], key.Fields[2]);
  }
  EditData.LogoName[0] = '\0';
  for (gint no = 0; no < ColrCount; ++no) {
    COLRDATA& colour = ColrData[no];
    ProfileRead2("", Section, "COLOR", no, "iii", &colour.red, &colour.green, &colour.blue);
  }
}
