// The project: record, file, folders, known projects, renewal of its layouts, logic generation.
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

// Project commands (menu callbacks) and the reopening of the last project at start-up.
void ProjDataInit();
void ProjDataNew(GtkWidget* widget, gpointer data);
void ProjDataOpen(GtkWidget* widget, gpointer data);
void ProjDataEdit(GtkWidget* widget, gpointer data);

// Fills `EditData` and the palette from the designer profile; keys that are missing give 0.
void ProjSetDefault();
// Loads "<path>/<name>.prj" into ProjData and records it as current. 0 = missing or short, ProjData
// is then unchanged.
gint ProjFileRead(const gchar* path, const gchar* name);
// Saves ProjData, renews the folder's layouts and the profile. 0 = the file could not be written.
gint ProjFileWrite(const gchar* path, const gchar* name);
// Copies the templates beside the program into a new project's folder.
void ProjFileCopy1(const gchar* path);
// Copies project folder and program folder when they were moved.
void ProjFileCopy2(const gchar* path1, const gchar* path2);
void ProjFileCopy3(const gchar* path1, const gchar* path2);
// Pushes the project's common look into every layout file of the folder. Only while none is open.
void ProjFileRenew(const gchar* path);
void PtrnFileRenew(const gchar* path, const gchar* name);
// Records the project as the current one and in the list of known projects.
void ProfileRenew(const gchar* path, const gchar* name);
// False when the key of the designer profile that names a project by name and folder gives one of
// them cut, too long or at a ",": what is left may lead to another project.
bool IsKnownProjectWhole(const gchar* section, const gchar* key);
// Sets BmapPath from ProjPath.
void SetBmapPath();

// Logic generation: the menu command, its four steps and what they are made of.
void LogicDataEdit(GtkWidget* widget, gpointer data);
void LogicDataEdit1();
void LogicDataEdit2();
void LogicDataEdit3();
void LogicDataEdit4();
void SetPtrnCode(const gchar* ptrnfile);
void SetPtrnName(const gchar* name);
// 1 when `text` occurs in `buff`; the very last position is not examined.
gint CompareText(const gchar* buff, const gchar* text);
void InitProjIni(const gchar* path, const gchar* name);

// Dialogs over the working copies (see PtrnDialog.h for the kit).
gint EditProjData(GtkWidget* parent, const gchar* title);
gint ProjFileOpen(GtkWidget* parent);
// Checks the working copies and tells the first thing that is wrong; 1 when all is well.
gint CheckProjData();
