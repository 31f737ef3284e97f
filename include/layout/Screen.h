// What the editing asks of the dialogs and of the main window. The program links the real
// functions, a test its own. No other call leads up from floor 4 (see scripts/check-floors).
#pragma once

#include "layout/EditWindows.h"
#include "layout/Records.h"

// Canvas.
void SetCursor(gint no);
// 0 repaints the overlay, any other mode renders the whole layout first.
void DrawRequest(gint mode);
// Mode 0: start-up picture. Mode 1: a layout of width x height dots at `zoom` percent.
void SizeRequest(gint mode, gint width, gint height, gint zoom);
// Names are record bytes.
void SetWindTitle(const gchar* projname, const gchar* ptrnname);

// Menus.
void SetMainMenu();
void SetMenuActive1();
void SetMenuActive2(gint flags);

// Tool box.
void Dlg_ToolBox(GtkWidget* parent, gint type);
void SaveToolBox();
void SetToolBoxPoint();
void SetToolBoxCursor();

// Dialogs. Texts are UTF-8.
gint Dlg_MessageBox(GtkWidget* parent, const gchar* title, const gchar* mesg1, const gchar* mesg2,
                    gint butn);
gint Dlg_Copy_Move(GtkWidget* parent, gint mode, const gchar* title, DLGPARM* parm);
// Over the working copies of the settings.
gint EditPtrnData(GtkWidget* parent);
gint EditProjData(GtkWidget* parent, const gchar* title);
gint PtrnFileOpen(GtkWidget* parent);
gint PtrnFileClose(GtkWidget* parent);
gint ProjFileOpen(GtkWidget* parent);
