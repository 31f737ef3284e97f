// The palette: editor of all colours, and picker of one.
#include <algorithm>
#include <array>

#include "dialogs/Editors.h"
#include "dialogs/frame/DialogWindow.h"
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

using Palette = std::array<COLRBOX, ColrCount>;
// The dialog that is open: the palette editor, or a picker, which can lie over nothing that uses
// the palette editor's copies.
struct PaletteDialog {
  GtkWidget* Window = nullptr;
  Palette Boxes = {};
  gint Result = 0;
};
PaletteDialog EditColr;
PaletteDialog ColrSlct;

constexpr const gchar* NumberKey = "varnix-colour";

gint SwatchNumber(GtkWidget* box) {
  return GPOINTER_TO_INT(g_object_get_data(G_OBJECT(box), NumberKey));
}

void PaintSwatch(GtkWidget* box, cairo_t* cairo, gpointer data) {
  const Palette& boxes = static_cast<const PaletteDialog*>(data)->Boxes;
  const gint number = SwatchNumber(box);
  DrawColrData(box, cairo, number, boxes[static_cast<gsize>(number)].colr);
}

GtkWidget* NewSwatch(PaletteDialog* dialog, gint number, SwatchPress press) {
  GtkWidget* box = NewSwatchArea({62, 20}, PaintSwatch, press, dialog);
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

// A window with the 10 x 10 swatches of working copies of the palette, numbered down the columns.
DialogWindow NewPaletteWindow(PaletteDialog* dialog, const gchar* title, SwatchPress press) {
  const DialogWindow window = NewDialogWindow(title);
  dialog->Window = window.Window;
  gtk_window_set_resizable(GTK_WINDOW(window.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(window.Window), GTK_WIN_POS_CENTER);
  GtkWidget* table = NewSwatchGrid();
  for (gint number = 0; number < ColrCount; ++number) {
    COLRBOX& entry = dialog->Boxes[static_cast<gsize>(number)];
    entry = {NewSwatch(dialog, number, press), ColrData[number]};
    gtk_grid_attach(GTK_GRID(table), entry.box, number / Side, number % Side, 1, 1);
  }
  gtk_box_pack_start(GTK_BOX(window.Content), table, TRUE, TRUE, 0);
  gtk_widget_show_all(table);
  return window;
}

void EditColrData_Event(GtkWidget* box, guint button, gpointer /*data*/) {
  const gint number = SwatchNumber(box);
  if (button == GDK_BUTTON_PRIMARY &&
      MakeColrData(EditColr.Window, number, EditColr.Boxes.data()) == 1)
    gtk_widget_queue_draw(box);
}

void EditColrData_OK(GtkWidget* /*button*/, GtkWidget* window) {
  EditColr.Result = 1;
  gtk_widget_destroy(window);
}

void EditColrData_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  gtk_widget_destroy(window);
}

// A right click changes the colour in the palette itself, without choosing it.
void EditPickedColour(gint number) {
  if (MakeColrData(ColrSlct.Window, number, ColrSlct.Boxes.data()) != 1) return;
  ColrData[number] = ColrSlct.Boxes[static_cast<gsize>(number)].colr;
  SaveColrFile();
  RedrawLayout();
  gtk_widget_queue_draw(ColrSlct.Window);
}

void Dlg_ColrSelect_Event(GtkWidget* box, guint button, gpointer /*data*/) {
  const gint number = SwatchNumber(box);
  if (button == GDK_BUTTON_PRIMARY) {
    ColrSlct.Result = number;
    gtk_widget_destroy(ColrSlct.Window);
  } else if (button == GDK_BUTTON_SECONDARY) {
    EditPickedColour(number);
  }
}

// The colours used lately once more below all of them.
void AddRecentColours(const DialogWindow& window) {
  if (RecentColours().empty()) return;
  GtkWidget* label = NewLabel("最近使った色");
  gtk_widget_set_margin_start(label, 10);
  GtkWidget* row = NewSwatchGrid();
  gint culm = 0;
  for (const gint number : RecentColours())
    gtk_grid_attach(GTK_GRID(row), NewSwatch(&ColrSlct, number, Dlg_ColrSelect_Event), culm++, 0, 1,
                    1);
  // As wide a place for each as in the palette above.
  while (culm < Side) gtk_grid_attach(GTK_GRID(row), NewLabel(""), culm++, 0, 1, 1);
  gtk_box_pack_start(GTK_BOX(window.Content), label, FALSE, FALSE, 0);
  gtk_box_pack_start(GTK_BOX(window.Content), row, FALSE, FALSE, 0);
  gtk_widget_show(row);
}

}  // namespace

void EditColrData(GtkWidget* parent, gpointer data) {
  ClearToolBox();
  EditColr.Result = 0;
  const DialogWindow window = NewPaletteWindow(&EditColr, "表示色設定", EditColrData_Event);
  AddDialogButton(window, " 設定 ", G_CALLBACK(EditColrData_OK), window.Window);
  AddDialogButton(window, " 取消 ", G_CALLBACK(EditColrData_CAN), window.Window);
  RunModal(window.Window, data != nullptr ? parent : PtrnWnd);
  if (EditColr.Result != 1) return;
  std::transform(EditColr.Boxes.begin(), EditColr.Boxes.end(), ColrData,
                 [](const COLRBOX& entry) { return entry.colr; });
  SaveColrFile();
  RedrawLayout();
}

gint Dlg_ColrSelect(GtkWidget* parent, gint current) {
  ColrSlct.Result = -1;
  const DialogWindow window = NewPaletteWindow(&ColrSlct, "表示色選択", Dlg_ColrSelect_Event);
  LeaveOutActions(window);
  AddRecentColours(window);
  if (current >= 0 && current < ColrCount)
    gtk_widget_grab_focus(ColrSlct.Boxes[static_cast<gsize>(current)].box);
  RunModal(window.Window, parent);
  return ColrSlct.Result;
}
