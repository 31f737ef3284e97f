// What a user sees: checked by the rules of a good look, and kept as a picture on request.
#pragma once

#include <gtk/gtk.h>

#include <initializer_list>
#include <string>

// Once the window has painted: checks it, and where VARNIX_PICTURES names a folder, puts its
// picture there as NAME.png. Called from a part that is played.
void Show(const std::string& name, GtkWidget* window);
// The same for the window with this title; fails the test when none comes.
void Show(const std::string& name, const std::string& title);
// Leaves the window with this title by Escape; fails the test when that does not close it.
void EscapeFrom(const std::string& title);
// Shows a dialog and leaves it by Escape.
void ShowAndLeave(const std::string& name, const std::string& title);
// Keeps the part of the screen that the window takes, menus and windows over it included.
void ShowScreen(const std::string& name, GtkWidget* window);
// Keeps windows that stand beside each other, with their frames, on a plain ground.
void ShowBeside(const std::string& name, std::initializer_list<GtkWidget*> windows);
// Keeps a part of the canvas.
void ShowCanvas(const std::string& name, const GdkRectangle& part);
// Whether pictures are kept.
bool KeepsPictures();
