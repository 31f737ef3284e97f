#include "dialogs/MarkSet.h"

#include "dialogs/ChooserWindow.h"

namespace {

constexpr gint Columns = 10;
constexpr const gchar* NumberKey = "varnix-mark";

gint SwatchNumber(GtkWidget* swatch) {
  return GPOINTER_TO_INT(g_object_get_data(G_OBJECT(swatch), NumberKey));
}

gboolean PaintSwatch(GtkWidget* swatch, cairo_t* cairo, const MARKBOX* marks) {
  const gint number = SwatchNumber(swatch);
  DrawMarkData(swatch, cairo, number, marks[number].mark);
  return TRUE;
}

gboolean PressSwatch(GtkWidget* swatch, const GdkEventButton* event, MarkPress press) {
  if (event->type == GDK_BUTTON_PRESS) press(swatch, SwatchNumber(swatch), event->button);
  return TRUE;
}

GtkWidget* NewSwatch(const MARKBOX* marks, gint number, MarkPress press) {
  const SIZE size = MarkDataSize[number / 50];
  GtkWidget* swatch = gtk_drawing_area_new();
  gtk_widget_set_size_request(swatch, size.cx + 32, size.cy + 8);
  gtk_widget_add_events(swatch, GDK_BUTTON_PRESS_MASK);
  g_object_set_data(G_OBJECT(swatch), NumberKey, GINT_TO_POINTER(number));
  g_signal_connect(swatch, "draw", G_CALLBACK(PaintSwatch), const_cast<MARKBOX*>(marks));
  g_signal_connect(swatch, "button-press-event", G_CALLBACK(PressSwatch),
                   reinterpret_cast<gpointer>(press));
  return swatch;
}

}  // namespace

void CopyMarks(MarkBoxes* boxes) {
  for (gsize number = 0; number < boxes->size(); ++number)
    (*boxes)[number] = {nullptr, MarkData[number]};
}

DialogWindow NewMarkSetWindow(const gchar* title, const MARKBOX* marks, MarkPress press) {
  const DialogWindow window = NewDialogWindow(title);
  gtk_window_set_default_size(GTK_WINDOW(window.Window), 600, 400);
  gtk_window_set_position(GTK_WINDOW(window.Window), GTK_WIN_POS_CENTER);
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  for (gint number = 0; number < MarkCount; ++number)
    gtk_grid_attach(GTK_GRID(table), NewSwatch(marks, number, press), number % Columns,
                    number / Columns, 1, 1);
  GtkWidget* scrolled = NewScrolled(table, GTK_POLICY_AUTOMATIC);
  gtk_box_pack_start(GTK_BOX(window.Content), scrolled, TRUE, TRUE, 0);
  gtk_widget_show_all(table);
  return window;
}
