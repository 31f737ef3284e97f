// What the builders share: walking a table's rows, cells of the grid, captions, bound integers.
#pragma once

#include <gtk/gtk.h>

#include <cstring>
#include <string>

#include "Types.h"
#include "dialogs/Kit.h"

// Calls `build` for each row that shows a control.
template <class Row, class Build>
void ForEachRow(Row* rows, Build build) {
  for (Row* row = rows; row != nullptr && row->line >= 0; ++row) {
    if (row->culm1 != -1) build(*row);
  }
}

// Places and shows a control in columns culm1..culm2 of row `line`.
void PlaceControl(GtkWidget* table, GtkWidget* control, gint line, gint culm1, gint culm2);
template <class Row>
void PlaceControl(GtkWidget* table, GtkWidget* control, const Row& row) {
  PlaceControl(table, control, row.line, row.culm1, row.culm2);
}

// A shown, left- or right-aligned label.
GtkWidget* NewLabel(const gchar* text, bool right = false);
// A shown horizontal box, begun with the caption unless that is empty; `padding` stands on both
// sides of the caption.
GtkWidget* NewCaptionBox(const gchar* caption, gint spacing, guint padding);
// Tells the range of a number in a control's tooltip.
void ShowRange(GtkWidget* control, const gchar* what, gint min, gint max);
// For lines and figures that a drawing area paints on the theme's background: black, unless the
// theme writes in a light colour because that background is dark.
GdkRGBA Ink(GtkWidget* area);
// Keeps `*slot` pointing at the widget for as long as the widget lives, then null.
void KeepWidget(GtkWidget** slot, GtkWidget* widget);
// Shows record bytes in the entry of a text row without writing them back.
void ShowRecordText(GtkWidget* entry, const gchar* text);
// Stores a text that was chosen, not typed, in the row's field as it is and shows it.
void ShowChoice(DLG_EDITBOX* row, const std::string& text);
// Has every check button below `root` show what its bound flag holds, which stays as it is.
void ShowChecks(GtkWidget* root);
// Renders an open layout anew, and the swatches of all windows, after colours or marks changed.
void RedrawLayout();

// Bound integers may lie at odd addresses of a packed record.
inline gint LoadInt(const gint* bound) {
  gint value;
  std::memcpy(&value, static_cast<const void*>(bound), sizeof value);
  return value;
}

inline void StoreInt(gint* bound, gint value) {
  std::memcpy(static_cast<void*>(bound), &value, sizeof value);
}
