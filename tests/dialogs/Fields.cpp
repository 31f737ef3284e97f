#include "tests/dialogs/Fields.h"

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <cstring>

#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

GType TypeOf(FieldKind kind) {
  switch (kind) {
    case FieldKind::Number:
      return GTK_TYPE_SPIN_BUTTON;
    case FieldKind::Check:
      return GTK_TYPE_CHECK_BUTTON;
    case FieldKind::Radio:
      return GTK_TYPE_RADIO_BUTTON;
    case FieldKind::Choice:
      return GTK_TYPE_COMBO_BOX_TEXT;
    case FieldKind::Colour:
      return GTK_TYPE_DRAWING_AREA;
    case FieldKind::Text:
      break;
  }
  return GTK_TYPE_ENTRY;
}

void PickColour(GtkWidget* swatch, gint number) {
  const DialogAnswer answer("表示色選択", [number](GtkWidget* picker) {
    Press(ControlAt(FindGrid(picker), number % 10, number / 10, GTK_TYPE_DRAWING_AREA), 1);
  });
  Press(swatch, 1);
}

void Use(GtkWidget* control, const Field& field) {
  switch (field.Kind) {
    case FieldKind::Number:
      gtk_spin_button_set_value(GTK_SPIN_BUTTON(control), field.Value);
      break;
    case FieldKind::Check:
    case FieldKind::Radio:
      gtk_button_clicked(GTK_BUTTON(control));
      break;
    case FieldKind::Choice:
      gtk_combo_box_set_active(GTK_COMBO_BOX(control), field.Value);
      break;
    case FieldKind::Colour:
      PickColour(control, field.Value);
      break;
    case FieldKind::Text:
      gtk_entry_set_text(GTK_ENTRY(control), TypedText);
      break;
  }
}

// The record as it is to be afterwards.
std::vector<char> Expected(const Field& field, const void* record, gsize size) {
  const auto* begin = static_cast<const char*>(record);
  std::vector<char> bytes(begin, begin + size);
  const auto at = [&](const void* place) {
    return bytes.data() + (static_cast<const char*>(place) - begin);
  };
  if (field.Kind == FieldKind::Text) {
    g_strlcpy(at(field.Text), StoredText, std::strlen(StoredText) + 1);
  } else {
    std::memcpy(at(field.Bound), &field.Value, sizeof field.Value);
  }
  return bytes;
}

}  // namespace

Field NumberField(gint line, gint column, gint* bound, gint value) {
  return {FieldKind::Number, line, column, bound, value};
}

Field CheckField(gint line, gint column, gint* bound) {
  return {FieldKind::Check, line, column, bound, 1};
}

Field RadioField(gint line, gint column, gint* bound, gint value) {
  return {FieldKind::Radio, line, column, bound, value};
}

Field ChoiceField(gint line, gint column, gint* bound, gint value) {
  return {FieldKind::Choice, line, column, bound, value};
}

Field ColourField(gint line, gint column, gint* bound, gint value) {
  return {FieldKind::Colour, line, column, bound, value};
}

Field TextField(gint line, gint column, gchar* text) {
  return {FieldKind::Text, line, column, nullptr, 0, text};
}

std::vector<GtkWidget*> GridsOf(GtkWidget* root) {
  std::vector<GtkWidget*> grids;
  FindWidget(root, [&grids](GtkWidget* widget) {
    if (GTK_IS_GRID(widget)) grids.push_back(widget);
    return false;
  });
  return grids;
}

void ExpectBound(GtkWidget* grid, const std::vector<Field>& fields, void* record, gsize size) {
  for (const Field& field : fields) {
    SCOPED_TRACE("line " + std::to_string(field.Line) + ", column " + std::to_string(field.Column));
    GtkWidget* control = ControlAt(grid, field.Line, field.Column, TypeOf(field.Kind));
    ASSERT_NE(control, nullptr);
    const std::vector<char> expected = Expected(field, record, size);
    ASSERT_NE(std::memcmp(record, expected.data(), size), 0) << "set to what it was";
    Use(control, field);
    EXPECT_EQ(std::memcmp(record, expected.data(), size), 0);
  }
}
