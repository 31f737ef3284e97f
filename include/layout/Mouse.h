// Editing with the left button, and the view commands.
#pragma once

#include "layout/Records.h"

// Canvas to layout dots, in place. 0 = outside the layout, the point is then unchanged.
gint MousePoint(POINT* point);
// Index of the first item that a press at the layout point picks, -1 = none.
gint SearchPtrnData1(const POINT* point);
// Hit code of the item in hand, 0 when its type cannot be picked.
gint SearchPtrnData2(const POINT* point);
void DispToolBox(gint existing, gint type);
// Ends editing: no type, idle, tool box closed.
void ClearToolBox();
// Canvas events, the point in zoomed pixels (converted in place).
void LButtonDown(GtkWidget* widget, POINT* point);
void LButtonUp(GtkWidget* widget, POINT* point);
void MouseMove(GtkWidget* widget, POINT* point);
// Moves the item in hand by steps of the lines that its points snap to, never off the layout.
// 0 = there is no item in hand.
gint MoveItemInHand(gint columns, gint rows);

// View commands (menu callbacks).
void PtrnSelct(GtkWidget* widget, gpointer data);
void PtrnUnSelct(GtkWidget* widget, gpointer data);
void PtrnRedraw(GtkWidget* widget, gpointer data);
void PtrnZoom(GtkWidget* widget, gpointer data);
void PtrnGrid(GtkWidget* widget, gpointer data);
void PtrnColrSet(GtkWidget* widget, gpointer data);
void PtrnLangSet(GtkWidget* widget, gpointer data);
