#include "layout/EditWindows.h"

GtkWidget* PtrnWnd;
