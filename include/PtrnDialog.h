// Dialogs: table-driven kit, message box, choosers, editors, tool box.
#pragma once

#include "dialogs/Choosers.h"
#include "dialogs/Editors.h"
#include "dialogs/Kit.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/CopyDialogs.h"
#include "layout/LayoutSettings.h"
#include "layout/Screen.h"
#include "render/FontTable.h"
#include "render/Marks.h"
#include "render/Palette.h"
