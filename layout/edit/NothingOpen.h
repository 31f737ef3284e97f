// Commands of an open layout that are given without one.
#pragma once

// True when no layout is open; ends the editing then, which is all that such a command does. Menus
// that were not brought up to date and panels that stayed still offer it.
bool EndedWithNothingOpen();
