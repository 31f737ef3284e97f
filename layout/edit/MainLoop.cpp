#include "layout/Screen.h"

GMainLoop* MainLoop;
