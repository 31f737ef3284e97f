// The main window: start and end of the program, the canvas and its events.
#pragma once

#include <gtk/gtk.h>

#include <memory>

#include "layout/Screen.h"
#include "render/Surface.h"

// The canvas, null while there is no main window.
extern GtkWidget* PtrnDraw;
// What the canvas shows at 100 %: the start-up picture or the open layout. Written by DrawRequest,
// SizeRequest and PtrnDraw_Configure.
extern std::unique_ptr<Drawable> PtrnPixmap;
// 0 start-up picture, 1 layout. Written by SizeRequest.
extern gint PtrnDraw_Mode;
// Size of the layout in dots and of the canvas in zoomed pixels. Written by SizeRequest.
extern SIZE PtrnDraw_Size1;
extern SIZE PtrnDraw_Size2;

// Keeps the executable's folder in PathName. `program` is argv[0]; without a "/" in it (started
// through PATH), or null, the running executable tells.
void SetProgramFolder(const gchar* program);
// Builds the main window, unshown, in its saved size.
void CreateMainWindow();
// Once after the main window is shown: drawing resources, last project.
void InitVarnixMaster();
// Once after the main loop: saves the window's size.
void ExitVarnixMaster();

// Main window signals.
gboolean Delete_Event(GtkWidget* widget, GdkEvent* event, gpointer data);
void Destroy_Event(GtkWidget* widget, gpointer data);

// Canvas signals.
gboolean PtrnDraw_Configure(GtkWidget* widget, GdkEventConfigure* event, gpointer data);
gboolean PtrnDraw_Expose(GtkWidget* widget, cairo_t* cairo, gpointer data);
gboolean PtrnDraw_Press(GtkWidget* widget, GdkEventButton* event, gpointer data);
gboolean PtrnDraw_Release(GtkWidget* widget, GdkEventButton* event, gpointer data);
gboolean PtrnDraw_Motion(GtkWidget* widget, GdkEventMotion* event, gpointer data);

// Paints the start-up picture over width x height pixels.
void MakeInitWindow(Drawable* window, gint width, gint height);
