#include "layout/Screen.h"

GtkWidget* PtrnWnd;
