#include "layout/EditWindows.h"

GMainLoop* MainLoop;
