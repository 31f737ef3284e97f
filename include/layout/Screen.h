// What the editing asks of the screen. The program links the real functions, a test its own.
#pragma once

#include "layout/Records.h"

extern GtkWidget* PtrnWnd;
extern GtkWidget* ToolBox;
// The settings dialogs of a layout and of the project while they are open, null else: parents of
// the messages about what was entered. Written by the dialogs.
extern GtkWidget* EditLayoutWindow;
extern GtkWidget* EditProj;
// The program's main loop while it runs, else null. Written by main.
extern GMainLoop* MainLoop;

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
void SetToolBoxButton(gint mode);

// Dialogs. Texts are UTF-8.
gint Dlg_MessageBox(GtkWidget* parent, const gchar* title, const gchar* mesg1, const gchar* mesg2,
                    gint butn);
gint Dlg_ToolCopy(GtkWidget* parent, DLGPARM* parm);
gint Dlg_AreaCopy(GtkWidget* parent, DLGPARM* parm);
gint Dlg_AreaMove(GtkWidget* parent, DLGPARM* parm);
gint Dlg_Copy_Move(GtkWidget* parent, gint mode, const gchar* title, DLGPARM* parm);
gint EditPtrnData(GtkWidget* parent);
gint EditPtrnData_Check();
gint EditPtrnData_Renew();
gint PtrnFileOpen(GtkWidget* parent);
gint PtrnFileClose(GtkWidget* parent);
