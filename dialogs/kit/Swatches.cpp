// Colour and mark swatches: their pictures, and the choice of another number with a click.
#include <string>

#include "dialogs/Kit.h"
#include "dialogs/Pickers.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/RecentColours.h"
#include "dialogs/kit/SwatchArea.h"
#include "render/Primitives.h"
#include "render/Surface.h"

GtkWidget* Dlg_ColrData_Parent = nullptr;
GtkWidget* Dlg_MarkData_Parent = nullptr;

namespace {

constexpr gint Baseline = 15;
constexpr SIZE NumberArea = {24, 20};

// The number at the left of a swatch, through the glyphs that the layouts show; around them the
// background stays.
void PaintNumber(GtkWidget* box, cairo_t* cairo, gint number) {
  gchar text[16];
  g_snprintf(text, sizeof text, "%2d", number);
  Drawable picture(NumberArea.cx, NumberArea.cy);
  FillPixels(&picture, 0, 0, NumberArea.cx, NumberArea.cy, 0xffffff);
  DrawGc gc;
  DrawTextOnBaseline(&picture, &gc, 0, Baseline, SmallFont, ColourBlack, text);
  const GdkRGBA colour = Ink(box);
  gdk_cairo_set_source_rgba(cairo, &colour);
  for (gint y = 0; y < NumberArea.cy; ++y) {
    for (gint x = 0; x < NumberArea.cx; ++x) {
      if ((picture.Row(y)[x] & 0xffffff) == 0) cairo_rectangle(cairo, x, y, 1, 1);
    }
  }
  cairo_fill(cairo);
}

// Outline through the pixel centres: w + 1 x h + 1 pixels.
void PaintOutline(GtkWidget* box, cairo_t* cairo, gint x, gint y, gint width, gint height) {
  const GdkRGBA colour = Ink(box);
  gdk_cairo_set_source_rgba(cairo, &colour);
  cairo_set_line_width(cairo, 1);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_MITER);
  cairo_rectangle(cairo, x + 0.5, y + 0.5, width, height);
  cairo_stroke(cairo);
}

constexpr SIZE ColourSize = {62, 20};

void Dlg_ColrData_Draw(GtkWidget* area, cairo_t* cairo, gpointer row) {
  const gint number = LoadInt(static_cast<const DLG_COLRDATA*>(row)->colr);
  if (number >= 0 && number < ColrCount) {
    DrawColrData(area, cairo, number, ColrData[number]);
  } else {
    PaintNumber(area, cairo, number);
  }
}

void Dlg_ColrData_Slct(GtkWidget* area, guint button, gpointer data) {
  if (button != GDK_BUTTON_PRIMARY) return;
  const auto* row = static_cast<const DLG_COLRDATA*>(data);
  const gint number = Dlg_ColrSelect(Dlg_ColrData_Parent, LoadInt(row->colr));
  if (number == -1) return;
  NoteRecentColour(number);
  StoreInt(row->colr, number);
  TellColour(area, number);
  gtk_widget_queue_draw(area);
}

void Dlg_MarkData_Draw(GtkWidget* area, cairo_t* cairo, gpointer row) {
  const gint number = LoadInt(static_cast<const DLG_MARKDATA*>(row)->mark);
  if (number >= 0 && number < MarkCount) {
    DrawMarkData(area, cairo, number, MarkData[number]);
  } else {
    PaintNumber(area, cairo, number);
  }
}

// The cells beside it give room for a mark of 32 x 32; a larger one needs its own.
SIZE MarkSize(gint number) {
  const SIZE mark = number >= 0 && number < MarkCount ? MarkDataSize[number / 50] : SIZE{0, 0};
  return {mark.cx > 32 ? mark.cx + 28 : 32, mark.cy > 32 ? mark.cy + 4 : 36};
}

void Dlg_MarkData_Slct(GtkWidget* area, guint button, gpointer data) {
  if (button != GDK_BUTTON_PRIMARY) return;
  const auto* row = static_cast<const DLG_MARKDATA*>(data);
  const gint number = Dlg_MarkSelect(Dlg_MarkData_Parent, LoadInt(row->mark));
  if (number == -1) return;
  StoreInt(row->mark, number);
  ResizeSwatchArea(area, MarkSize(number));
  TellMark(area, number);
  gtk_widget_queue_draw(area);
}

}  // namespace

void DrawColrData(GtkWidget* colrbox, cairo_t* cairo, gint colrno, COLRDATA colrdata) {
  gtk_render_background(gtk_widget_get_style_context(colrbox), cairo, 0, 0, 60, 16);
  PaintNumber(colrbox, cairo, colrno);
  constexpr double Full = 65535.0;
  cairo_set_source_rgb(cairo, (colrdata.red & 0xffff) / Full, (colrdata.green & 0xffff) / Full,
                       (colrdata.blue & 0xffff) / Full);
  cairo_rectangle(cairo, 20, 2, 40, 16);
  cairo_fill(cairo);
  PaintOutline(colrbox, cairo, 20, 2, 40, 16);
}

void DrawMarkData(GtkWidget* markbox, cairo_t* cairo, gint markno, const MARKDATA& markdata) {
  PaintNumber(markbox, cairo, markno);
  if (markno < 0 || markno >= MarkCount) return;
  const SIZE size = MarkDataSize[markno / 50];
  Drawable picture(size.cx, size.cy);
  FillPixels(&picture, 0, 0, size.cx, size.cy, 0xffffff);
  for (gint y = 0; y < size.cy; ++y) {
    for (gint x = 0; x < size.cx; ++x) {
      if (MarkDataGet(markno, &markdata, x, y) != 0) FillPixels(&picture, x, y, 1, 1, 0);
    }
  }
  cairo_set_source_surface(cairo, picture.Cairo(), 26, 1);
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
  cairo_rectangle(cairo, 26, 1, size.cx, size.cy);
  cairo_fill(cairo);
  PaintOutline(markbox, cairo, 25, 0, size.cx + 1, size.cy + 1);
}

void TellColour(GtkWidget* swatch, gint colrno) {
  SetSwatchValue(swatch, "色番号 " + std::to_string(colrno));
}

void TellMark(GtkWidget* swatch, gint markno) {
  SetSwatchValue(swatch, "マーク " + std::to_string(markno));
}

void Dlg_ColrData(GtkWidget* parent, GtkWidget* table, DLG_COLRDATA* rows) {
  Dlg_ColrData_Parent = parent;
  ForEachRow(rows, [table](DLG_COLRDATA& row) {
    GtkWidget* box = NewCaptionBox(row.text, 5, 0);
    GtkWidget* swatch = NewSwatchArea(ColourSize, Dlg_ColrData_Draw, Dlg_ColrData_Slct, &row);
    // In line with the caption beside it where the cell is higher.
    gtk_widget_set_valign(swatch, GTK_ALIGN_CENTER);
    TellColour(swatch, LoadInt(row.colr));
    ShowRange(swatch, "色番号", 0, ColrCount - 1);
    gtk_box_pack_start(GTK_BOX(box), swatch, TRUE, TRUE, 0);
    PlaceControl(table, box, row);
  });
}

void Dlg_MarkData(GtkWidget* parent, GtkWidget* table, DLG_MARKDATA* rows) {
  Dlg_MarkData_Parent = parent;
  ForEachRow(rows, [table](DLG_MARKDATA& row) {
    const gint number = LoadInt(row.mark);
    GtkWidget* swatch = NewSwatchArea(MarkSize(number), Dlg_MarkData_Draw, Dlg_MarkData_Slct, &row);
    TellMark(swatch, number);
    ShowRange(swatch, "マーク", 0, MarkCount - 1);
    PlaceControl(table, swatch, row);
  });
}
