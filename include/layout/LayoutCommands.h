// Layout commands of the menus, the save guard and the undo history.
#pragma once

#include "layout/Records.h"

// Undo folder, slot file names and number of snapshots held. Written by the functions below.
extern gchar PtrnSavePath[258];
extern gchar PtrnSaveName[10][82];
extern gint PtrnSaveCount;

void PtrnDataNew(GtkWidget* widget, gpointer data);
void PtrnDataOpen(GtkWidget* widget, gpointer data);
void PtrnDataClose(GtkWidget* widget, gpointer data);
void PtrnDataSave(GtkWidget* widget, gpointer data);
void PtrnDataEdit(GtkWidget* widget, gpointer data);
void PtrnDataPrint(GtkWidget* widget, gpointer data);
void PtrnEditBack(GtkWidget* widget, gpointer data);
void PtrnExit(GtkWidget* widget, gpointer data);

// Offers to save a changed layout. 1 = go on, the layout is released; 0 = the user cancelled.
gint SavePtrnData();
// Writes the open layout to its file. A file that it neither came from nor went to last, a damaged
// one, and items that it would replace by none or by what an undo past the last save has left are
// kept as "<name>.ptn.bak" first. False when it could not be written or what stood there could not
// be kept; the old file stands then.
bool SaveLayout();
// Begin and end the editing of a layout.
void PtrnDataInit();
void PtrnDataExit();
// Snapshot before a change, and back to the newest one.
void PushPtrnData();
void PopPtrnData();
// Prepare the undo folder; delete the slot files.
void PtrnSaveInit();
void PtrnSaveExit();
