// The record of a project and the open one.
#pragma once

#include "Types.h"

#pragma pack(push, 1)

// Settings of a project.
struct PROJDATA {
  gint Parm1[20];       // general, see ProjectSlot
  gint Parm2[30];       // look of parent windows, see ParentSlot
  gint Parm3[20];       // look of child windows, see ChildSlot
  gint Parm4[20];       // cursor, key input, grid, see CommonSlot
  gchar ProgPath[258];  // program folder, target of logic generation
  gchar LogoName[22];   // logo file in the bitmap folder
  gchar PtrnStart[82];  // layout shown when the runtime program starts
  gchar PtrnStop[82];   // layout shown when it stops
};

// A project file.
struct PROJFILE {
  gint Version;
  PROJDATA Data;
};

#pragma pack(pop)

static_assert(sizeof(PROJFILE) == 808);

// 1 while a project is open.
extern gint ProjFlag;
// Name, folder and bitmap folder ("<folder>/Bitmap") of the open project, and its settings.
extern gchar ProjName[82];
extern gchar ProjPath[258];
extern gchar BmapPath[258];
extern PROJDATA ProjData;
// Working copies of the settings and open dialogs.
extern PROJDATA EditData;
extern gchar EditName[82];
extern gchar EditPath[258];
