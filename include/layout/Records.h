// Records of a layout, in memory and on disk. Texts are EUC-JP, always terminated.
#pragma once

#include "Types.h"

#pragma pack(push, 1)

// Header of a layout, in memory and on disk alike.
struct PTRNHEDR {
  gint Version;
  gint Parm1[30];       // settings, see HedrSlot
  gint Parm2[10];       // view and options, see ViewSlot
  gchar PtrnName1[82];  // title in language 1, also the layout's name
  gchar PtrnName2[82];
  gchar PtrnName3[82];
  gchar LogoName[22];
  gchar BmapName[22];  // background of the work area
  gint DataCount;
  gint TextSize;  // bytes of the text block
  gint UndfFlag;  // number of incomplete items
};

// An item in memory. The meaning of Parm depends on Type, see ItemSlots.h.
struct PTRNDATA {
  gint Type;
  gint Parm[30];
  gchar Text1[102];
  gchar Text2[102];
  gchar Text3[102];
  gint ID_Type;
  gchar ID_Name[82];
  gchar ID_Code[22];
  gint ID_No;
  POINT Point1;
  POINT Point2;
  SIZE Size;  // extent of a one-point item, known once it has been painted
  gint UndfFlag;
  gint RegstFlag;
  gint CheckFlag;
};

// An item as stored; its five texts stand in the file's text block.
struct PTRNFILE {
  gint Type;
  gint Parm[30];
  gint ID_Type;
  gint ID_No;
  gint UndfFlag;
};

// One entry of the code registry.
struct PTRNCODE {
  gchar ID_Code[22];
  gint DataCount;
  gint DataNo;
  gint DispNo;
};

// One entry of a string list.
struct PTRNTEXT {
  gchar text[102];
};

// Parameters of the copy and move dialogs.
struct DLGPARM {
  gint cont;
  gint xdot;
  gint ydot;
  gint code;
};

#pragma pack(pop)

static_assert(sizeof(PTRNHEDR) == 466);
static_assert(sizeof(PTRNDATA) == 578);
static_assert(sizeof(PTRNFILE) == 136);
static_assert(sizeof(PTRNCODE) == 34);
static_assert(sizeof(PTRNTEXT) == 102);
