// The controls of a settings dialog, found by the cell they stand in, and used as a user does.
#pragma once

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <string>
#include <vector>

// Place of a child of a grid.
struct CellPlace {
  gint Line;
  gint Culm1;
  gint Culm2;
  bool operator==(const CellPlace&) const = default;
};

// The first grid below `root`.
GtkWidget* FindGrid(GtkWidget* root);
// The children of a grid whose first cell is (line, culm), oldest first. Controls may share cells.
std::vector<GtkWidget*> ControlsAt(GtkWidget* grid, gint line, gint culm);
// The one of them with this kind of widget in it (itself included); null = none.
GtkWidget* ControlAt(GtkWidget* grid, gint line, gint culm, GType kind);
CellPlace PlaceOf(GtkWidget* grid, GtkWidget* child);
// Number of widgets of a kind below `root`, itself included.
gint CountOf(GtkWidget* root, GType kind);

// What a label says, "" for anything else.
std::string LabelText(GtkWidget* label);
std::string EntryText(GtkWidget* entry);
// What a drop-down list shows.
std::string ComboText(GtkWidget* combo);

// Types a text at the entry's cursor as a keyboard would.
void Type(GtkWidget* entry, const std::string& text);
// Presses a mouse button on a swatch or another drawing area.
void Press(GtkWidget* area, guint button, gint x = 5, gint y = 5);
// Lets a button go there; `held` = the buttons that were down, this one included.
void Release(GtkWidget* area, guint button, guint held, gint x = 5, gint y = 5);
// Moves the pointer over it with the buttons of `state` held.
void Move(GtkWidget* area, gint x, gint y, guint state);
// Turns the wheel one step over a control.
void TurnWheel(GtkWidget* over, GdkScrollDirection direction);
// Presses a key in a window while modifiers are held.
void PressKey(GtkWidget* window, guint key, GdkModifierType held = {});
// Asks a window to close as the window manager does.
void CloseByManager(GtkWidget* window);
// Selects a row of the first list or tree below `root`; "0" = first, "0:2" = third below the first.
void SelectRow(GtkWidget* root, const std::string& path);
// Selects the row of the list that shows this text; fails the test when there is none.
void SelectText(GtkWidget* list, const std::string& text);
// Presses the row that shows this text twice, as a user does to take it at once.
void ActivateText(GtkWidget* list, const std::string& text);
// Fails the test unless the row that shows this text is greyed, gives the reason in its tooltip and
// is neither selected nor taken.
void ExpectUnusable(GtkWidget* list, const std::string& text, const std::string& reason);
// What the rows of a list show.
std::vector<std::string> RowTexts(GtkWidget* list);
// Takes the first file of the first folder in a file chooser.
void ChooseFirstFile(GtkWidget* chooser);
// 0xRRGGBB of what a drawing area shows there once it has painted what is queued.
guint32 PixelOf(GtkWidget* area, gint x, gint y);
