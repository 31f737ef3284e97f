// Committing the item in hand: validating, snapping, storing, registering.
#pragma once

#include "layout/Records.h"

// The tool box's buttons, and the entries of the item's pop-up menu.
namespace ButtonCode {
enum { Register = 0, Delete = 1, Cancel = 2, Copy = 3, Redraw = 4 };
}
// Does what a button stands for; `data` is its code.
void ToolBoxButn(GtkWidget* widget, gpointer data);
gint ToolButn_OK();
void ToolButn_Delt();
void ToolButn_Copy();
// 1 = valid, PtrnData is then replaced by its snapped copy; 0 after a message.
gint TestPtrnData();
// Shows message k; always 0.
gint DispErrorMesg(gint k);
