// What the swatches of the kit ask of the editors: the number chosen, beginning at `current`, -1
// when closed without a choice. No other call leads up from the kit (see scripts/check-floors).
#pragma once

#include "Types.h"

gint Dlg_ColrSelect(GtkWidget* parent, gint current = 0);
gint Dlg_MarkSelect(GtkWidget* parent, gint current = 0);
