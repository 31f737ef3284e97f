// What a user does in the choosers and editors that open over the project's dialogs.
#pragma once

#include <gtk/gtk.h>

#include <string>

#include "Types.h"
#include "tests/road/Panel.h"

// Types the path of a folder that does not exist yet, and has it made.
void TypeNewFolder(const std::string& title, const std::string& path);
// Chooses a folder of the home folder in the tree.
void PickFolder(const std::string& title, const std::string& folder);
// Chooses a file in a folder of the home folder.
void PickFile(const std::string& title, const std::string& folder, const std::string& file);
void PickFileIn(GtkWidget* chooser, const std::string& folder, const std::string& file);
// Waits for a second window with this title.
GtkWidget* SeeOther(const std::string& title, GtkWidget* first);

// The swatch of a colour in the palette editor or picker.
GtkWidget* SwatchOf(const Panel& palette, gint number);
// The swatch of a mark in the mark settings or picker.
GtkWidget* MarkSwatchOf(const Panel& marks, gint number);
// Clicks a swatch and types the colour into the dialog that opens.
void MakeColour(const Panel& palette, gint number, const std::string& colour);
// Confirms the colour that the open dialog shows.
void ConfirmColour();
// The enlarged view of the mark editor, for marks of this size; null = none.
GtkWidget* EnlargedMark(GtkWidget* editor, SIZE mark);

// Expects the input error with this text, and confirms it.
void RefuseInput(const std::string& message);
