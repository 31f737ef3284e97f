// The dialogs that ask how far and how often items are copied or moved: 1 = `parm` holds the
// answer.
#pragma once

#include "layout/Records.h"

gint Dlg_ToolCopy(GtkWidget* parent, DLGPARM* parm);
gint Dlg_AreaCopy(GtkWidget* parent, DLGPARM* parm);
gint Dlg_AreaMove(GtkWidget* parent, DLGPARM* parm);
