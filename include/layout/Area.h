// Operations on everything inside the area selection.
#pragma once

#include "layout/Records.h"

// 0 cancel, 1 delete, 2 move, 3 copy.
void AreaBoxButn(GtkWidget* widget, gpointer data);
// 1 when the item lies wholly inside the (ordered) area, bounds included.
gint AreaButnCheck(const PTRNDATA* item);
void AreaButn_Delt();
void AreaButn_Move();
void AreaButn_Copy();
