// A dialog or the tool box, used by what its rows and buttons say.
#pragma once

#include <gtk/gtk.h>

#include <string>
#include <vector>

// A control in a grid: `Below` rows under the label in the first column, in grid column `Column`.
// Of several labels with one text, `Which` counts from the top. Where no label of the first column
// has the text, the control whose caption it is.
struct Cell {
  std::string Label;
  gint Column = 1;
  gint Which = 0;
  gint Below = 0;
};

class Panel {
 public:
  // Waits for the window with this title; fails the test when none comes.
  explicit Panel(const std::string& title);
  GtkWidget* Window() const { return window_; }
  // A notebook page, once its tab has been clicked, and a frame with this title: panels for the
  // controls in them.
  Panel Page(const std::string& tab) const;
  Panel Frame(const std::string& title) const;
  // The widget of this kind in the cell; null = none.
  GtkWidget* Control(const Cell& cell, GType kind) const;

  // Types digits into a spin button.
  void Enter(const Cell& cell, gint number) const;
  // Pastes a text into an entry.
  void Enter(const Cell& cell, const std::string& text) const;
  // Chooses an entry of a drop-down list.
  void Choose(const Cell& cell, gint index) const;
  // Clicks a check or radio button.
  void Tick(const std::string& label) const;
  void Tick(const Cell& cell) const;
  // Clicks a swatch and a number in the picker that opens.
  void PickColour(const Cell& cell, gint number) const;
  void PickMark(const Cell& cell, gint number) const;
  // Presses a button with this label, or the one in the cell.
  void Press(const std::string& label) const;
  void Press(const Cell& cell) const;

 private:
  explicit Panel(GtkWidget* part) : window_(part) {}

  GtkWidget* window_;
};

// Replaces what stands in an entry by a text from the clipboard.
void EnterText(GtkWidget* entry, const std::string& text);
// Clicks the row of a list or tree that shows this text.
void ClickRow(GtkWidget* window, const std::string& text);

// Chooses an entry of the menu bar or of an open menu with the pointer, through all its submenus.
using Path = std::vector<std::string>;
void ChooseMenu(GtkWidget* menu, const Path& path);
