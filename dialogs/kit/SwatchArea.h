// A drawing area that is pressed like a button: by the mouse, by Space and Return (button 1) and
// the menu key (button 3) while it has the keyboard, and by assistive technology.
#pragma once

#include <gtk/gtk.h>

#include <string>

#include "Types.h"

using SwatchPaint = void (*)(GtkWidget* area, cairo_t* cairo, gpointer data);
using SwatchPress = void (*)(GtkWidget* area, guint button, gpointer data);

// A shown area that asks for this size. On a display set to much larger letters than 96 dpi means,
// swatches are as many whole times larger.
GtkWidget* NewSwatchArea(SIZE size, SwatchPaint paint, SwatchPress press, gpointer data);
// Asks for another size.
void ResizeSwatchArea(GtkWidget* area, SIZE size);
bool IsSwatchArea(GtkWidget* widget);
// Paints the swatches of all windows anew, as after a change of the colours or marks they show.
void RedrawSwatches();

// What assistive technology reads: what the swatch is for ("" in a picker) and what it shows.
void SetSwatchLabel(GtkWidget* area, const std::string& label);
void SetSwatchValue(GtkWidget* area, const std::string& value);
