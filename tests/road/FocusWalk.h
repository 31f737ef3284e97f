// A window as a user without a mouse goes through it.
#pragma once

#include <gtk/gtk.h>

#include <initializer_list>
#include <string>

#include "tests/road/Panel.h"

// Presses a key once the window has the keyboard.
void KeyTo(GtkWidget* window, guint key, std::initializer_list<guint> held = {});
// Goes with Tab to the control that assistive technology calls so; fails the test when there is
// none.
GtkWidget* TabTo(GtkWidget* window, const std::string& name);
// Goes with the arrow keys to the row with this text in the list that has the keyboard.
void GoToRow(GtkWidget* window, const std::string& text);
// Opens one of the main menus with Alt and its letter, pressed in any window of the program.
GtkWidget* OpenMenu(GtkWidget* window, guint letter, const std::string& label);
// Waits until the submenu of the entry that the keys have come to, if it has one, has opened by
// itself: GTK leaks what it notes for that when the next key comes first.
void LetSubmenuOpen(GtkWidget* menu);
// Chooses an entry of an open menu, through all its submenus.
void ChooseByKeys(GtkWidget* menu, const Path& path);

// Goes once around with Tab, once with Shift + Tab, through each list and group with the arrow
// keys, and all that on each page of a notebook. Fails the test unless every usable control gets
// the keyboard, in the order of reading.
void WalkWindow(GtkWidget* window);
