// Control tables of the layout settings dialog.
#pragma once

#include "dialogs/kit/ControlTables.h"

struct LayoutPage {
  const gchar* Title;
  ControlTables Tables;
  DLG_EDITBOX* Bitmap;  // row with a browse button, null for none
};

// Page of a layout kind (0 parent, 1 child, else other) with as many titles as languages are shown.
LayoutPage PageOfKind(gint kind);
