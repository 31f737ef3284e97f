// What a tool box page is made of.
#pragma once

#include "dialogs/ToolBox.h"
#include "dialogs/kit/ControlTables.h"

using Picker = void (*)(GtkWidget* widget, DLG_EDITBOX* edit);

// A browse button: the picker it opens and the row that takes the choice.
struct BrowseButton {
  gint Line;
  gint Culm;
  Picker Open;
  DLG_EDITBOX* Edit;
};

struct ToolBoxPage {
  const gchar* Title;
  gint Lines;
  gint Culms;
  gint CommonLine;
  gint OnePoint;
  gint Registers;  // its text can go to the string list
  ControlTables Tables;
  DLG_COLRDATA* MoreColours = nullptr;
  BrowseButton Browse = {0, 0, nullptr, nullptr};
  bool SystemColours = false;  // columns 3 and 4 of the colours belong to colour systems 2 and 3
};

// The page of a type 1..15 for the display language and the project's colour systems.
ToolBoxPage PageOfType(gint type);
// Builds the page into the window's content box.
void BuildToolBoxPage(GtkWidget* window, const ToolBoxPage& page);
// Attaches a "参照" button.
void AddBrowseButton(GtkWidget* table, const BrowseButton& browse);
// The box under a tool box window that takes the page.
GtkWidget* ToolBoxContent(GtkWidget* window);
void SetToolBoxContent(GtkWidget* window, GtkWidget* content);
