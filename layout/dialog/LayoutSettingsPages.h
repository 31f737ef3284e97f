// Control tables of the layout settings dialog.
#pragma once

#include "dialogs/Kit.h"

struct LayoutPage {
  const gchar* Title;
  DLG_STRING* String;
  DLG_EDITBOX* Edit;
  DLG_NUMRBOX* Numr;
  DLG_COMBOBOX* Combo;
  DLG_RADIOBUTN* Radio;
  DLG_CHECKBUTN* Check;
  DLG_COLRDATA* Colr;
  DLG_EDITBOX* Bitmap;  // row with a browse button, null for none
};

// Page of a layout kind (0 parent, 1 child, else other) with as many titles as languages are shown.
LayoutPage PageOfKind(gint kind);

// The dialog that is open, null else: parent of its messages.
extern GtkWidget* EditLayoutWindow;
