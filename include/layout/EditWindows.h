// The windows that the editing knows of, and the main loop.
#pragma once

#include "Types.h"

// The main window, null before it is built. Written by it.
extern GtkWidget* PtrnWnd;
// The settings dialogs of a layout and of the project while they are open, null else: parents of
// the messages about what was entered. Written by the dialogs.
extern GtkWidget* EditLayoutWindow;
extern GtkWidget* EditProj;
// The program's main loop while it runs, else null. Written by main.
extern GMainLoop* MainLoop;
