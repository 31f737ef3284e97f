// The tool box as a window, for those who do without the toolkit's headers.
#pragma once

#include "Types.h"

// The panel, null while none is shown. Written by Dlg_ToolBox.
extern GtkWidget* ToolBox;
// Enables the panel's command buttons as the bits of `mode` say.
void SetToolBoxButton(gint mode);
