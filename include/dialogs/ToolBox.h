// The tool box: the floating panel that shows and edits the item in hand. See layout/Screen.h for
// what the editing calls.
#pragma once

#include <gtk/gtk.h>

#include "dialogs/Kit.h"
#include "layout/ItemTypes.h"

// Type of the panel shown.
extern gint ToolBox_Type;
// 0 until the first panel opens, then 1.
extern gint ToolBox_PointFlag;
// Where the panel of each type (index type - 1) stood last, screen dots; (0, 0) = nowhere yet.
extern POINT ToolBox_PointData[ItemTypeCount];
// Read-outs of the start point (or position) and the end point; null while not shown.
extern GtkWidget* ToolBox_Label1;
extern GtkWidget* ToolBox_Label2;
// Command buttons by code: 0 register, 1 delete, 2 cancel, 3 copy, 4 redisplay.
extern GtkWidget* ToolBoxButton[5];
// Keys that leave an input item: 1 = this cursor key does. Bound to the check buttons.
extern gint CusrUp;
extern gint CusrDown;
extern gint CusrLeft;
extern gint CusrRight;
// Takes their state from the item in hand.
void GetToolBoxCursor();
// Result of the list picker, EUC-JP; "" when nothing was chosen.
extern gchar SelectList[256];

// Titles the window and adds a grid for `line` rows and `culm` columns to it.
GtkWidget* ToolBox_Title(GtkWidget* window, const gchar* title, gint line, gint culm);
// Adds the section that all types share, from row `line` on. flag1: one-point type; flag2: the text
// can be registered.
void ToolBox_Comn(GtkWidget* table, gint line, gint flag1, gint flag2);
// Adds a command button to a box: from the right for codes 3 and 4.
GtkWidget* ToolBox_Button(GtkWidget* box, const gchar* label, gint no, gint start);

// Pickers behind the browse buttons; the choice goes into the row's text and entry.
void ToolBox_Page(GtkWidget* widget, DLG_EDITBOX* edit);
void ToolBox_Code(GtkWidget* widget, DLG_EDITBOX* edit);
void ToolBox_Text1(GtkWidget* widget, DLG_EDITBOX* edit);
void ToolBox_Text2(GtkWidget* widget, DLG_EDITBOX* edit);
void ToolBox_Text3(GtkWidget* widget, DLG_EDITBOX* edit);
void ToolBox_Name(GtkWidget* widget, DLG_EDITBOX* edit);
