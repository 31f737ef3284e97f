// Control tables of the project settings dialog, over the working copies EditData, EditName and
// EditPath.
#pragma once

#include <span>

#include "dialogs/Kit.h"

// A frame of a page with the tables in it; tables that it does not have are null.
struct ProjectFrame {
  const gchar* Title;  // null = no frame around it
  DLG_STRING* String = nullptr;
  DLG_EDITBOX* Edit = nullptr;
  DLG_NUMRBOX* Numr = nullptr;
  DLG_COMBOBOX* Combo = nullptr;
  DLG_RADIOBUTN* Radio = nullptr;
  DLG_CHECKBUTN* Check = nullptr;
  DLG_COLRDATA* Colr = nullptr;
};

struct ProjectPage {
  const gchar* Tab;
  std::span<const ProjectFrame> Frames;
};

std::span<const ProjectPage> ProjectPages();

// Rows that browse buttons fill: project name, project folder, program folder; logo.
extern DLG_EDITBOX ProjPage1_Edit[];
extern DLG_EDITBOX ProjPage21_Edit[];
