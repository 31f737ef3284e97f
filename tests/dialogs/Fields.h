// The controls of a settings dialog as a table: where each stands, what it is bound to, and what
// it is set to.
#pragma once

#include <glib.h>

#include <string>
#include <vector>

#include "Types.h"

enum class FieldKind { Number, Check, Radio, Choice, Colour, Text };

struct Field {
  FieldKind Kind;
  gint Line;
  gint Column;
  gint* Bound = nullptr;  // number that the control edits
  gint Value = 0;
  gchar* Text = nullptr;  // or text that it edits
};

// Short forms in the order line, column, bound, value.
Field NumberField(gint line, gint column, gint* bound, gint value);
Field CheckField(gint line, gint column, gint* bound);
Field RadioField(gint line, gint column, gint* bound, gint value);
Field ChoiceField(gint line, gint column, gint* bound, gint value);
Field ColourField(gint line, gint column, gint* bound, gint value);
Field TextField(gint line, gint column, gchar* text);

// What a text control is given, as it is typed and as the record holds it.
inline constexpr const gchar* TypedText = "日本語";
inline constexpr const gchar* StoredText = "\xC6\xFC\xCB\xDC\xB8\xEC";

// The grids below `root`, in their order.
std::vector<GtkWidget*> GridsOf(GtkWidget* root);

// Uses each control of the grid and expects that the record changes at once, and nowhere but in the
// field that the control is bound to.
void ExpectBound(GtkWidget* grid, const std::vector<Field>& fields, void* record, gsize size);
