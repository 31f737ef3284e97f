// Pop-up windows of any program on the display.
#pragma once

// How many windows stand outside the window manager's care, as menus do.
int ShownPopUps();
