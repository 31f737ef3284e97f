// What assistive technology reads of a control.
#pragma once

#include <gtk/gtk.h>

#include <string>

// Names the control. A swatch keeps naming its number beside it.
void SetAccessibleName(GtkWidget* control, const std::string& name);
// Says more about a control that has a name, its row for a radio button for example.
void SetAccessibleDescription(GtkWidget* control, const std::string& text);
// Names both scroll bars of a scrolled window.
void NameScrollBars(GtkWidget* scrolled);

// Names every control in a grid of dialog controls: by its caption or the label at the left of it
// in its row, counted from the left where a row has several of a kind, and after `heading`, unless
// that is empty. Controls that say their own text get the row's label as description. Called when
// the grid is complete.
void NameControls(GtkWidget* grid, const std::string& heading = "");
