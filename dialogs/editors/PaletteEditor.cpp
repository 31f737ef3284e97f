// The palette: editor of all colours, and picker of one.
#include <algorithm>
#include <array>

#include "dialogs/Editors.h"
#include "dialogs/frame/TableDialog.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/RecentColours.h"
#include "dialogs/kit/SwatchArea.h"
#include "dialogs/kit/SwatchGrid.h"
#include "layout/EditWindows.h"
#include "layout/Mouse.h"
#include "render/Palette.h"
#include "render/Primitives.h"

namespace {

constexpr gint Side = 10;
constexpr gint NoChoice = -1;

using Palette = std::array<COLRBOX, ColrCount>;

constexpr const gchar* NumberKey = "varnix-colour";

gint SwatchNumber(GtkWidget* box) {
  return GPOINTER_TO_INT(g_object_get_data(G_OBJECT(box), NumberKey));
}

void PaintSwatch(GtkWidget* box, cairo_t* cairo, gpointer data) {
  const Palette& boxes = *static_cast<const Palette*>(data);
  const gint number = SwatchNumber(box);
  DrawColrData(box, cairo, number, boxes[static_cast<gsize>(number)].colr);
}

GtkWidget* NewSwatch(Palette* boxes, gint number, SwatchPress press) {
  GtkWidget* box = NewSwatchArea({62, 20}, PaintSwatch, press, boxes);
  g_object_set_data(G_OBJECT(box), NumberKey, GINT_TO_POINTER(number));
  TellColour(box, number);
  return box;
}

// An empty grid for swatches that the keyboard moves about in.
GtkWidget* NewSwatchGrid() {
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  gtk_grid_set_row_homogeneous(GTK_GRID(table), TRUE);
  gtk_grid_set_column_homogeneous(GTK_GRID(table), TRUE);
  gtk_grid_set_row_spacing(GTK_GRID(table), 5);
  gtk_grid_set_column_spacing(GTK_GRID(table), 10);
  MakeOneTabStop(table);
  return table;
}

// Adds the 10 x 10 swatches of working copies of the palette, numbered down the columns.
void AddPalette(const DialogWindow& window, Palette* boxes, SwatchPress press) {
  GtkWidget* table = NewSwatchGrid();
  for (gint number = 0; number < ColrCount; ++number) {
    COLRBOX& entry = (*boxes)[static_cast<gsize>(number)];
    entry = {NewSwatch(boxes, number, press), ColrData[number]};
    gtk_grid_attach(GTK_GRID(table), entry.box, number / Side, number % Side, 1, 1);
  }
  gtk_box_pack_start(GTK_BOX(window.Content), table, TRUE, TRUE, 0);
  gtk_widget_show_all(table);
}

void EditColrData_Event(GtkWidget* box, guint button, gpointer data) {
  if (button == GDK_BUTTON_PRIMARY &&
      MakeColrData(box, SwatchNumber(box), static_cast<Palette*>(data)->data()) == 1) {
    gtk_widget_queue_draw(box);
  }
}

void EditColrData_OK(const Palette& boxes) {
  std::transform(boxes.begin(), boxes.end(), ColrData,
                 [](const COLRBOX& entry) { return entry.colr; });
  SaveColrFile();
  RedrawLayout();
}

// A right click changes the colour in the palette itself, without choosing it.
void EditPickedColour(GtkWidget* box, gint number, Palette* boxes) {
  if (MakeColrData(box, number, boxes->data()) != 1) return;
  ColrData[number] = (*boxes)[static_cast<gsize>(number)].colr;
  SaveColrFile();
  RedrawLayout();
  gtk_widget_queue_draw(gtk_widget_get_toplevel(box));
}

void Dlg_ColrSelect_Event(GtkWidget* box, guint button, gpointer data) {
  const gint number = SwatchNumber(box);
  if (button == GDK_BUTTON_PRIMARY) {
    CloseDialog(box, number);
  } else if (button == GDK_BUTTON_SECONDARY) {
    EditPickedColour(box, number, static_cast<Palette*>(data));
  }
}

// The colours used lately once more below all of them.
void AddRecentColours(const DialogWindow& window, Palette* boxes) {
  if (RecentColours().empty()) return;
  GtkWidget* label = NewLabel("最近使った色");
  gtk_widget_set_margin_start(label, 10);
  GtkWidget* row = NewSwatchGrid();
  gint culm = 0;
  for (const gint number : RecentColours()) {
    gtk_grid_attach(GTK_GRID(row), NewSwatch(boxes, number, Dlg_ColrSelect_Event), culm++, 0, 1, 1);
  }
  // As wide a place for each as in the palette above.
  while (culm < Side) gtk_grid_attach(GTK_GRID(row), NewLabel(""), culm++, 0, 1, 1);
  gtk_box_pack_start(GTK_BOX(window.Content), label, FALSE, FALSE, 0);
  gtk_box_pack_start(GTK_BOX(window.Content), row, FALSE, FALSE, 0);
  gtk_widget_show(row);
}

}  // namespace

void EditColrData(GtkWidget* parent, gpointer data) {
  ClearToolBox();
  Palette boxes = {};
  RunTableDialog(data != nullptr ? parent : PtrnWnd,
                 {.Frame = {.Title = "表示色設定",
                            .Build =
                                [&boxes](const DialogWindow& window) {
                                  AddPalette(window, &boxes, EditColrData_Event);
                                }},
                  .ReturnPressesOk = false,
                  .Take = [&boxes] { EditColrData_OK(boxes); }});
}

gint Dlg_ColrSelect(GtkWidget* parent, gint current) {
  Palette boxes = {};
  return RunDialog(parent, {.Title = "表示色選択",
                            .Build =
                                [&boxes, current](const DialogWindow& window) {
                                  AddPalette(window, &boxes, Dlg_ColrSelect_Event);
                                  AddRecentColours(window, &boxes);
                                  if (current >= 0 && current < ColrCount) {
                                    gtk_widget_grab_focus(boxes[static_cast<gsize>(current)].box);
                                  }
                                },
                            .Otherwise = NoChoice});
}
