#include "dialogs/ToolBoxWindow.h"

GtkWidget* ToolBox = nullptr;
