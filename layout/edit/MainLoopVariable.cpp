// An object of its own, so that a test can bring its own variable: the main loop.
#include "layout/EditWindows.h"

GMainLoop* MainLoop;
