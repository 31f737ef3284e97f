// An object of its own, so that a test can bring its own variable: the tool box.
#include "dialogs/ToolBoxWindow.h"

GtkWidget* ToolBox = nullptr;
