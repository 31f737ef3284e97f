// The palette: editor of all colours, picker of one, editor of one.
#include <algorithm>
#include <array>

#include "dialogs/Cells.h"
#include "dialogs/DialogWindow.h"
#include "dialogs/Editors.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "render/Primitives.h"

namespace {

constexpr gint Side = 10;
constexpr double Full = 65535.0;

using Palette = std::array<COLRBOX, ColrCount>;
using SwatchPress = gboolean (*)(GtkWidget*, const GdkEventButton*, gpointer);

// The dialog that is open: the palette editor, or a picker, which can lie over nothing that uses
// the palette editor's copies.
struct PaletteDialog {
  GtkWidget* Window = nullptr;
  Palette Boxes = {};
  gint Result = 0;
};
PaletteDialog EditColr;
PaletteDialog ColrSlct;

gint SwatchNumber(const Palette& boxes, GtkWidget* box) {
  const auto found = std::find_if(boxes.begin(), boxes.end(),
                                  [box](const COLRBOX& entry) { return entry.box == box; });
  return found == boxes.end() ? -1 : static_cast<gint>(found - boxes.begin());
}

gboolean PaintSwatch(GtkWidget* box, cairo_t* cairo, const PaletteDialog* dialog) {
  if (const gint number = SwatchNumber(dialog->Boxes, box); number >= 0)
    DrawColrData(box, cairo, number, dialog->Boxes[static_cast<gsize>(number)].colr);
  return TRUE;
}

GtkWidget* NewSwatch(PaletteDialog* dialog, SwatchPress press) {
  GtkWidget* box = gtk_drawing_area_new();
  gtk_widget_set_size_request(box, 62, 20);
  gtk_widget_add_events(box, GDK_BUTTON_PRESS_MASK);
  g_signal_connect(box, "draw", G_CALLBACK(PaintSwatch), dialog);
  g_signal_connect(box, "button-press-event", G_CALLBACK(press), dialog);
  return box;
}

// A window with the 10 x 10 swatches of working copies of the palette, numbered down the columns.
DialogWindow NewPaletteWindow(PaletteDialog* dialog, const gchar* title, SwatchPress press) {
  const DialogWindow window = NewDialogWindow(title);
  dialog->Window = window.Window;
  gtk_window_set_resizable(GTK_WINDOW(window.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(window.Window), GTK_WIN_POS_CENTER);
  GtkWidget* table = gtk_grid_new();
  gtk_container_set_border_width(GTK_CONTAINER(table), 10);
  gtk_grid_set_row_homogeneous(GTK_GRID(table), TRUE);
  gtk_grid_set_column_homogeneous(GTK_GRID(table), TRUE);
  gtk_grid_set_row_spacing(GTK_GRID(table), 5);
  gtk_grid_set_column_spacing(GTK_GRID(table), 10);
  for (gint number = 0; number < ColrCount; ++number) {
    COLRBOX& entry = dialog->Boxes[static_cast<gsize>(number)];
    entry = {NewSwatch(dialog, press), ColrData[number]};
    gtk_grid_attach(GTK_GRID(table), entry.box, number / Side, number % Side, 1, 1);
  }
  gtk_box_pack_start(GTK_BOX(window.Content), table, TRUE, TRUE, 0);
  gtk_widget_show_all(table);
  return window;
}

gboolean EditColrData_Event(GtkWidget* box, const GdkEventButton* event, gpointer /*data*/) {
  const gint number = SwatchNumber(EditColr.Boxes, box);
  if (event->type == GDK_BUTTON_PRESS && event->button == 1 && number >= 0 &&
      MakeColrData(EditColr.Window, number, EditColr.Boxes.data()) == 1)
    gtk_widget_queue_draw(box);
  return TRUE;
}

void EditColrData_OK(GtkWidget* /*button*/, GtkWidget* window) {
  EditColr.Result = 1;
  gtk_widget_destroy(window);
}

void EditColrData_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  gtk_widget_destroy(window);
}

// A right click changes the colour in the palette itself, without choosing it.
void EditPickedColour(GtkWidget* box, gint number) {
  if (MakeColrData(ColrSlct.Window, number, ColrSlct.Boxes.data()) != 1) return;
  ColrData[number] = ColrSlct.Boxes[static_cast<gsize>(number)].colr;
  SaveColrFile();
  RedrawLayout();
  gtk_widget_queue_draw(box);
}

gboolean Dlg_ColrSelect_Event(GtkWidget* box, const GdkEventButton* event, gpointer /*data*/) {
  const gint number = SwatchNumber(ColrSlct.Boxes, box);
  if (event->type != GDK_BUTTON_PRESS || number < 0) return TRUE;
  if (event->button == 1) {
    ColrSlct.Result = number;
    gtk_widget_destroy(ColrSlct.Window);
  } else if (event->button == 3) {
    EditPickedColour(box, number);
  }
  return TRUE;
}

// Cut, not rounded. The dialog computes with hue, saturation and value; the small addition makes up
// for what the way there and back loses, so that an untouched colour comes back as it was.
gint Channel(double value) {
  constexpr double Lost = 1e-6;
  return static_cast<gint>(value * Full + Lost);
}

COLRDATA MakeColr_Data;
gint MakeColr_Result = 0;

void MakeColrData_Response(GtkDialog* dialog, gint response, gpointer /*data*/) {
  if (response == GTK_RESPONSE_OK) {
    GdkRGBA colour;
    gtk_color_chooser_get_rgba(GTK_COLOR_CHOOSER(dialog), &colour);
    MakeColr_Data = {Channel(colour.red), Channel(colour.green), Channel(colour.blue)};
    MakeColr_Result = 1;
  }
  gtk_widget_destroy(GTK_WIDGET(dialog));
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

gint Dlg_ColrSelect(GtkWidget* parent) {
  ColrSlct.Result = -1;
  const DialogWindow window = NewPaletteWindow(&ColrSlct, "表示色選択", Dlg_ColrSelect_Event);
  RunModal(window.Window, parent);
  return ColrSlct.Result;
}

gint MakeColrData(GtkWidget* parent, gint colrno, COLRBOX* colrbox) {
  MakeColr_Result = 0;
  const COLRDATA& colour = colrbox[colrno].colr;
  GtkWidget* dialog = gtk_color_chooser_dialog_new("表示色作成", nullptr);
  gtk_window_set_resizable(GTK_WINDOW(dialog), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog), GTK_WIN_POS_CENTER);
  gtk_color_chooser_set_use_alpha(GTK_COLOR_CHOOSER(dialog), FALSE);
  const GdkRGBA start = {colour.red / Full, colour.green / Full, colour.blue / Full, 1.0};
  gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(dialog), &start);
  g_object_set(dialog, "show-editor", TRUE, nullptr);
  g_signal_connect(dialog, "response", G_CALLBACK(MakeColrData_Response), nullptr);
  RunModal(dialog, parent);
  if (MakeColr_Result == 1) colrbox[colrno].colr = MakeColr_Data;
  return MakeColr_Result;
}
