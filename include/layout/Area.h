// Operations on everything inside the area selection.
#pragma once

#include "layout/Records.h"

// The entries of the area's pop-up menu.
namespace AreaCode {
enum { Cancel = 0, Delete = 1, Move = 2, Copy = 3 };
}
// Does what an entry stands for; `data` is its code.
void AreaBoxButn(GtkWidget* widget, gpointer data);
// 1 when the item lies wholly inside the (ordered) area, bounds included.
gint AreaButnCheck(const PTRNDATA* item);
void AreaButn_Delt();
void AreaButn_Move();
void AreaButn_Copy();
