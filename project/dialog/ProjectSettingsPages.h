// Control tables of the project settings dialog, over the working copies EditData, EditName and
// EditPath.
#pragma once

#include <span>

#include "dialogs/kit/ControlTables.h"

// A frame of a page with the controls in it.
struct ProjectFrame {
  const gchar* Title;  // null = no frame around them
  ControlTables Tables;
};

struct ProjectPage {
  const gchar* Tab;
  std::span<const ProjectFrame> Frames;
};

std::span<const ProjectPage> ProjectPages();

// Rows that browse buttons fill: project name, project folder, program folder; logo.
extern DLG_EDITBOX ProjPage1_Edit[];
extern DLG_EDITBOX ProjPage21_Edit[];
