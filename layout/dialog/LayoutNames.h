#pragma once

#include "Types.h"

// Name chosen or typed in the open and close dialogs, EUC-JP.
extern gchar PtrnFileName[82];
