#include "layout/Screen.h"

GtkWidget* ToolBox = nullptr;
