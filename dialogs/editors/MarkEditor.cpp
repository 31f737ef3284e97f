// The pixel editor of one mark.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>

#include "dialogs/Editors.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/ScreenRoom.h"
#include "dialogs/frame/TableDialog.h"

namespace {

constexpr gint Cell = 8;  // screen dots per mark pixel

struct MarkEdit {
  GtkWidget* ActualSize;
  GtkWidget* Enlarged;
  MARKBOX* Marks;
  gint Number;
  SIZE Size;
  MARKDATA Data;
  std::optional<POINT> Last;  // where the line of this drag has come to; nothing before its start
  POINT Cursor;               // mark pixel that the keyboard draws
};

// As large as in a layout, whatever the size of letters.
gboolean MakeMarkData_Expose1(GtkWidget* view, cairo_t* cairo, const MarkEdit* edit) {
  DrawMarkData(view, cairo, edit->Number, edit->Data);
  return TRUE;
}

void PaintGridLine(cairo_t* cairo, gint index, double x1, double y1, double x2, double y2) {
  constexpr double Dashes[] = {1, 1};
  const bool solid = index % Cell == 0;
  cairo_set_dash(cairo, Dashes, solid ? 0 : 2, 0);
  cairo_set_line_cap(cairo, solid ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT);
  cairo_move_to(cairo, x1 + 0.5, y1 + 0.5);
  cairo_line_to(cairo, x2 + 0.5, y2 + 0.5);
  cairo_stroke(cairo);
}

// Around its pixel, in a colour that is neither of the mark's.
void PaintCursor(cairo_t* cairo, const MarkEdit* edit) {
  cairo_set_dash(cairo, nullptr, 0, 0);
  cairo_set_source_rgb(cairo, 0.9, 0.1, 0.1);
  cairo_set_line_width(cairo, 2);
  cairo_rectangle(cairo, edit->Cursor.x * Cell, edit->Cursor.y * Cell, Cell, Cell);
  cairo_stroke(cairo);
}

gboolean MakeMarkData_Expose2(GtkWidget* /*view*/, cairo_t* cairo, const MarkEdit* edit) {
  const gint width = edit->Size.cx;
  const gint height = edit->Size.cy;
  cairo_set_antialias(cairo, CAIRO_ANTIALIAS_NONE);
  // A dark theme's own ground would swallow the black lines.
  cairo_set_source_rgb(cairo, 0.9, 0.9, 0.9);
  cairo_paint(cairo);
  cairo_set_line_width(cairo, 1);
  cairo_set_source_rgb(cairo, 0, 0, 0);
  for (gint i = 0; i <= width; ++i) PaintGridLine(cairo, i, i * Cell, 0, i * Cell, height * Cell);
  for (gint j = 0; j <= height; ++j) PaintGridLine(cairo, j, 0, j * Cell, width * Cell, j * Cell);
  for (gint y = 0; y < height; ++y) {
    for (gint x = 0; x < width; ++x) {
      const double shade = MarkDataGet(edit->Number, &edit->Data, x, y) != 0 ? 0.0 : 1.0;
      cairo_set_source_rgb(cairo, shade, shade, shade);
      cairo_rectangle(cairo, Cell * x + 1, Cell * y + 1, 6, 6);
      cairo_fill(cairo);
    }
  }
  if (gtk_widget_has_visible_focus(edit->Enlarged)) PaintCursor(cairo, edit);
  return TRUE;
}

// The mark pixel at a place of the enlarged view, beyond the mark's edges as well.
gint PixelAt(double place) {
  constexpr double Far = 10000;  // further than any screen
  return static_cast<gint>(std::floor(std::clamp(place, -Far, Far) / Cell));
}

void TellCursor(const MarkEdit* edit) {
  const POINT& at = edit->Cursor;
  const bool set = MarkDataGet(edit->Number, &edit->Data, at.x, at.y) != 0;
  SetAccessibleName(edit->Enlarged, "マーク " + std::to_string(edit->Number) + " の拡大図 " +
                                        std::to_string(at.x) + " / " + std::to_string(at.y) +
                                        (set ? " 黒" : " 白"));
}

void SetPixel(MarkEdit* edit, gint x, gint y, gint data) {
  if (x < 0 || x >= edit->Size.cx || y < 0 || y >= edit->Size.cy) return;
  MarkDataSet(edit->Number, &edit->Data, x, y, data);
  gtk_widget_queue_draw_area(edit->Enlarged, x * Cell, y * Cell, Cell, Cell);
  gtk_widget_queue_draw(edit->ActualSize);
}

// Every pixel from the latest one to (x, y), so that a fast drag leaves no gaps. What of the line
// lies outside the mark addresses no pixel.
void SetPixelsTo(MarkEdit* edit, const POINT& to, gint data) {
  const POINT from = edit->Last.value_or(to);
  const gint dx = to.x - from.x;
  const gint dy = to.y - from.y;
  const gint steps = std::max({std::abs(dx), std::abs(dy), 1});
  for (gint step = 0; step <= steps; ++step) {
    SetPixel(edit, from.x + dx * step / steps, from.y + dy * step / steps, data);
  }
}

// A press on the right or bottom border passes, a motion there does not; the pixel beyond the mark
// that such a press addresses does not exist.
gboolean MakeMarkData_Button(GtkWidget* /*view*/, const GdkEventButton* event, MarkEdit* edit) {
  if (event->type != GDK_BUTTON_PRESS || (event->button != 1 && event->button != 3)) return TRUE;
  const gint px = static_cast<gint>(std::lround(event->x));
  const gint py = static_cast<gint>(std::lround(event->y));
  edit->Last.reset();
  if (px >= 0 && px <= edit->Size.cx * Cell && py >= 0 && py <= edit->Size.cy * Cell) {
    edit->Last = POINT{px / Cell, py / Cell};
    SetPixel(edit, px / Cell, py / Cell, event->button == 1 ? 1 : 0);
  }
  return TRUE;
}

// The line ends with the last button that draws.
gboolean MakeMarkData_Release(GtkWidget* /*view*/, const GdkEventButton* event, MarkEdit* edit) {
  if (event->button != 1 && event->button != 3) return TRUE;
  const guint other = event->button == 1 ? GDK_BUTTON3_MASK : GDK_BUTTON1_MASK;
  if ((event->state & other) == 0) edit->Last.reset();
  return TRUE;
}

gboolean MakeMarkData_Motion(GtkWidget* /*view*/, const GdkEventMotion* event, MarkEdit* edit) {
  gdk_event_request_motions(event);
  const bool draw = (event->state & GDK_BUTTON1_MASK) != 0;
  const bool erase = (event->state & GDK_BUTTON3_MASK) != 0;
  if (!draw && !erase) {
    edit->Last.reset();
    return TRUE;
  }
  // Outside the mark, too: a fast drag over its edge draws up to the edge, as a slow one does.
  const POINT to = {PixelAt(event->x), PixelAt(event->y)};
  SetPixelsTo(edit, to, draw ? 1 : 0);
  edit->Last = to;
  return TRUE;
}

// Where a key moves the cursor to; nothing when it is no such key.
std::optional<POINT> Moved(const MarkEdit* edit, guint key) {
  const POINT at = edit->Cursor;
  const SIZE size = edit->Size;
  switch (key) {
    case GDK_KEY_Left:
    case GDK_KEY_KP_Left:
      return POINT{std::max(at.x - 1, 0), at.y};
    case GDK_KEY_Right:
    case GDK_KEY_KP_Right:
      return POINT{std::min(at.x + 1, size.cx - 1), at.y};
    case GDK_KEY_Up:
    case GDK_KEY_KP_Up:
      return POINT{at.x, std::max(at.y - 1, 0)};
    case GDK_KEY_Down:
    case GDK_KEY_KP_Down:
      return POINT{at.x, std::min(at.y + 1, size.cy - 1)};
    default:
      return std::nullopt;
  }
}

// Where the screen is too low for all of a mark.
void ScrollToCursor(const MarkEdit* edit) {
  constexpr gint Frame = 1;  // of the cursor, around the pixel
  ScrollTo(edit->Enlarged, {edit->Cursor.x * Cell - Frame, edit->Cursor.y * Cell - Frame,
                            Cell + 2 * Frame, Cell + 2 * Frame});
}

gboolean MakeMarkData_Focus(GtkWidget* /*view*/, GdkEvent* /*event*/, const MarkEdit* edit) {
  ScrollToCursor(edit);
  return FALSE;
}

// The arrow keys move from pixel to pixel, Space turns one over.
gboolean MakeMarkData_Key(GtkWidget* view, const GdkEventKey* event, MarkEdit* edit) {
  const POINT at = edit->Cursor;
  if (const std::optional<POINT> to = Moved(edit, event->keyval)) {
    edit->Cursor = *to;
  } else if (event->keyval == GDK_KEY_space || event->keyval == GDK_KEY_KP_Space) {
    SetPixel(edit, at.x, at.y, 1 - MarkDataGet(edit->Number, &edit->Data, at.x, at.y));
  } else {
    return FALSE;
  }
  TellCursor(edit);
  ScrollToCursor(edit);
  gtk_widget_queue_draw(view);
  return TRUE;
}

// Takes another mark over from the top-left corner; what does not fit is cut.
void MakeMarkData_Search(GtkWidget* button, MarkEdit* edit) {
  edit->Last.reset();
  const gint source = Dlg_MarkSearch(button, edit->Marks);
  if (source == -1) return;
  const MARKDATA from = edit->Marks[source].mark;
  edit->Data = {};
  for (gint y = 0; y < edit->Size.cy; ++y) {
    for (gint x = 0; x < edit->Size.cx; ++x) {
      MarkDataSet(edit->Number, &edit->Data, x, y, MarkDataGet(source, &from, x, y));
    }
  }
  gtk_widget_queue_draw(edit->ActualSize);
  gtk_widget_queue_draw(edit->Enlarged);
}

GtkWidget* NewView(gint width, gint height, GCallback draw, MarkEdit* edit) {
  GtkWidget* view = gtk_drawing_area_new();
  gtk_widget_set_size_request(view, width, height);
  gtk_widget_set_halign(view, GTK_ALIGN_START);
  gtk_widget_set_valign(view, GTK_ALIGN_START);
  g_signal_connect(view, "draw", draw, edit);
  return view;
}

void AddViews(GtkWidget* content, MarkEdit* edit) {
  const SIZE size = edit->Size;
  edit->ActualSize = NewView(size.cx + 32, size.cy + 8, G_CALLBACK(MakeMarkData_Expose1), edit);
  edit->Enlarged =
      NewView(size.cx * Cell + 2, size.cy * Cell + 2, G_CALLBACK(MakeMarkData_Expose2), edit);
  gtk_widget_add_events(edit->Enlarged, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK |
                                            GDK_BUTTON_MOTION_MASK | GDK_POINTER_MOTION_HINT_MASK);
  g_signal_connect(edit->Enlarged, "button-press-event", G_CALLBACK(MakeMarkData_Button), edit);
  g_signal_connect(edit->Enlarged, "button-release-event", G_CALLBACK(MakeMarkData_Release), edit);
  g_signal_connect(edit->Enlarged, "motion-notify-event", G_CALLBACK(MakeMarkData_Motion), edit);
  g_signal_connect(edit->Enlarged, "key-press-event", G_CALLBACK(MakeMarkData_Key), edit);
  g_signal_connect(edit->Enlarged, "focus-in-event", G_CALLBACK(MakeMarkData_Focus), edit);
  gtk_widget_set_can_focus(edit->Enlarged, TRUE);
  TellCursor(edit);
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 10);
  gtk_container_set_border_width(GTK_CONTAINER(box), 10);
  gtk_box_pack_start(GTK_BOX(box), edit->ActualSize, FALSE, FALSE, 0);
  gtk_box_pack_start(GTK_BOX(box), edit->Enlarged, FALSE, FALSE, 0);
  gtk_box_pack_start(GTK_BOX(content), box, TRUE, TRUE, 0);
  gtk_widget_show_all(box);
}

}  // namespace

gint MakeMarkData(GtkWidget* parent, gint markno, MARKBOX* markbox) {
  MarkEdit edit = {.ActualSize = nullptr,
                   .Enlarged = nullptr,
                   .Marks = markbox,
                   .Number = markno,
                   .Size = MarkDataSize[markno / 50],
                   .Data = markbox[markno].mark,
                   .Last = std::nullopt,
                   .Cursor = {0, 0}};
  const auto search = [&edit](GtkWidget* button) { MakeMarkData_Search(button, &edit); };
  return RunTableDialog(
      parent,
      {.Frame = {.Title = "マーク作成",
                 .Build = [&edit](const DialogWindow& window) { AddViews(window.Content, &edit); }},
       .Ok = "設定",
       .ReturnPressesOk = false,
       .More = {{.Label = "参照", .Pressed = search}},
       .Cancel = "取消",
       .Take = [&edit] { edit.Marks[edit.Number].mark = edit.Data; }});
}
