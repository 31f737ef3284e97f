#include "dialogs/editors/MarkSet.h"

#include <memory>

#include "dialogs/choosers/ChooserWindow.h"
#include "dialogs/kit/SwatchArea.h"
#include "dialogs/kit/SwatchGrid.h"

namespace {

constexpr gint Columns = 10;
// What a swatch of the set shows and does.
struct MarkSwatch {
  const MARKBOX* Marks;
  gint Number;
  MarkPress Press;
};

void PaintSwatch(GtkWidget* area, cairo_t* cairo, gpointer data) {
  const auto* swatch = static_cast<const MarkSwatch*>(data);
  DrawMarkData(area, cairo, swatch->Number, swatch->Marks[swatch->Number].mark);
}

void PressSwatch(GtkWidget* area, guint button, gpointer data) {
  const auto* swatch = static_cast<const MarkSwatch*>(data);
  const MarkPress press = swatch->Press;  // the swatch may go with what is pressed
  press(area, swatch->Number, button);
}

GtkWidget* NewSwatch(const MARKBOX* marks, gint number, const MarkPress& press) {
  const SIZE size = MarkDataSize[number / 50];
  auto swatch = std::make_unique<MarkSwatch>(MarkSwatch{marks, number, press});
  GtkWidget* area =
      NewSwatchArea({size.cx + 32, size.cy + 8}, PaintSwatch, PressSwatch, swatch.get());
  g_object_set_data_full(G_OBJECT(area), "varnix-mark", swatch.release(),
                         [](gpointer data) { delete static_cast<MarkSwatch*>(data); });
  TellMark(area, number);
  return area;
}

}  // namespace

void CopyMarks(MarkBoxes* boxes) {
  for (gsize number = 0; number < boxes->size(); ++number) {
    (*boxes)[number] = {nullptr, MarkData[number]};
  }
}

void AddMarkSet(const DialogWindow& window, const MARKBOX* marks, const MarkPress& press,
                gint first) {
  gtk_window_set_default_size(GTK_WINDOW(window.Window), 600, 400);
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  for (gint number = 0; number < MarkCount; ++number) {
    GtkWidget* swatch = NewSwatch(marks, number, press);
    gtk_grid_attach(GTK_GRID(table), swatch, number % Columns, number / Columns, 1, 1);
    // Once all have their places, so that it comes into view.
    if (number == first) {
      g_signal_connect_object(window.Window, "map", G_CALLBACK(gtk_widget_grab_focus), swatch,
                              G_CONNECT_SWAPPED);
    }
  }
  MakeOneTabStop(table);
  GtkWidget* scrolled = NewScrolled(table, GTK_POLICY_AUTOMATIC);
  gtk_box_pack_start(GTK_BOX(window.Content), scrolled, TRUE, TRUE, 0);
  gtk_widget_show_all(table);
}
