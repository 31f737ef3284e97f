// Menu bar and pop-up menus of the canvas.
#pragma once

#include <gtk/gtk.h>

#include "layout/ItemTypes.h"

// The entries whose state changes; null while there is no menu. Written by the Create functions.
extern GtkWidget* FileMenu[12];
extern GtkWidget* EditMenu[4];
// 1 and 3: the grid's check entries of menu bar and pop-up menu.
extern GtkWidget* DispMenu[4];
// Zoom entries of menu bar and pop-up menu.
extern GtkWidget* PtrnZoom1[5];
extern GtkWidget* PtrnZoom2[5];
extern GtkWidget* PtrnSetColr[4];
extern GtkWidget* PtrnSetLang[3];
// Item types: 0 edit menu, 1 pop-up menu, 2 types that cannot be picked.
extern GtkWidget* PtrnSlct[3][ItemTypeCount];
// The item commands of pop-up menu 2.
extern GtkWidget* ToolBoxMenu[5];

using MenuCallback = void (*)(GtkWidget* widget, gpointer data);

// Building blocks; each appends to `bar` or `menu` and shows what it made. Labels are taken
// literally. The first two return the new menu.
GtkWidget* CreateTopMenu(GtkWidget* bar, const gchar* label);
GtkWidget* CreateSubMenu(GtkWidget* menu, const gchar* label);
GtkWidget* CreateMenuItem(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data);
// A check entry; the callback runs on every change of its mark.
GtkWidget* CreateCheckMenu(GtkWidget* menu, const gchar* label, MenuCallback callback, gint data);
void CreateSeparator(GtkWidget* menu);

// The menu bar. Its keys work in a window that has the group of MainMenuKeys.
GtkWidget* CreateMainMenu();
GtkAccelGroup* MainMenuKeys();
// Builds the pop-up menus and attaches them to the canvas.
void CreatePopupMenu(GtkWidget* canvas);
// Closes whichever is open, without a choice.
void LeavePopupMenus();
// Pop-up menus 1 to 3 of the canvas.
extern GtkWidget* PopupMenu[3];

// Opens `menu` when event and editing state call for it; TRUE when it was opened. The third drops
// an area that is too small.
gboolean EventPopupMenu1(GtkWidget* menu, GdkEvent* event);
gboolean EventPopupMenu2(GtkWidget* menu, GdkEvent* event);
gboolean EventPopupMenu3(GtkWidget* menu, GdkEvent* event);
// The one that belongs to the editing state, null = none does.
GtkWidget* PopupMenuOfState();
