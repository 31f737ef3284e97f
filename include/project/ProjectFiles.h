// A project's file and folders: reading and saving, copying, known projects, renewal of its
// layouts.
#pragma once

#include <string_view>

#include "layout/ProjectRecord.h"

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
// Pushes the project's common look into every layout file of the folder.
void ProjFileRenew(const gchar* path);
void PtrnFileRenew(const gchar* path, const gchar* name);
// Records the project as the current one and in the list of known projects.
void ProfileRenew(const gchar* path, const gchar* name);
// The project of this folder and name becomes the open one: ProjFlag, ProjName, ProjPath and
// BmapPath. ProjData, the palette and the marks stay as they are.
void EnterProject(std::string_view folder, std::string_view name);
// Sets BmapPath from ProjPath.
void SetBmapPath();
