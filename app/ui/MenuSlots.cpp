#include "app/Menus.h"

GtkWidget* FileMenu[12];
GtkWidget* EditMenu[4];
GtkWidget* DispMenu[4];
GtkWidget* PtrnZoom1[5];
GtkWidget* PtrnZoom2[5];
GtkWidget* PtrnSetColr[4];
GtkWidget* PtrnSetLang[3];
GtkWidget* PtrnSlct[3][ItemTypeCount];
GtkWidget* ToolBoxMenu[5];
GtkWidget* PopupMenu[3];
