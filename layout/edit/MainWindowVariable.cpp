// An object of its own, so that a test can bring its own variable: the main window.
#include "layout/EditWindows.h"

GtkWidget* PtrnWnd;
