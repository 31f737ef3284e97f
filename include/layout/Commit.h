// Committing the item in hand: validating, snapping, storing, registering.
#pragma once

#include "layout/Records.h"

// The tool box's buttons: 0 register, 1 delete, 2 cancel, 3 copy, 4 redraw.
void ToolBoxButn(GtkWidget* widget, gpointer data);
gint ToolButn_OK();
void ToolButn_Delt();
void ToolButn_Copy();
// 1 = valid, PtrnData is then replaced by its snapped copy; 0 after a message.
gint TestPtrnData();
// Shows message k; always 0.
gint DispErrorMesg(gint k);
