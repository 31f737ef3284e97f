#include <algorithm>

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "app/ui/CanvasScroll.h"
#include "app/ui/Holders.h"
#include "app/ui/OverlayRegion.h"
#include "app/ui/StartPicture.h"
#include "dialogs/kit/SwatchArea.h"
#include "render/LayoutPicture.h"
#include "render/PaintedLayout.h"
#include "render/Primitives.h"

GtkWidget* PtrnDraw;
std::unique_ptr<Drawable> PtrnPixmap;
gint PtrnDraw_Mode;
SIZE PtrnDraw_Size1;
SIZE PtrnDraw_Size2;

namespace {

// The largest extent of a layout; a larger one comes from a damaged file.
constexpr gint LargestLayout = 9999;
constexpr gint LargestZoom = 500;
// Surrounds a layout that is smaller than the window.
constexpr guint32 DeskColour = 0xd6d6d6;

// What PtrnPixmap shows of the layout, null while it shows the start-up picture.
std::unique_ptr<PaintedLayout> LayoutPicture;
// Where the overlay may stand on the screen.
RegionPtr ShownOverlay;

RegionPtr CanvasOverlay() {
  return OverlayRegion(gtk_widget_get_allocated_width(PtrnDraw),
                       gtk_widget_get_allocated_height(PtrnDraw));
}

// Asks for a part of the picture to be shown. Scaling mixes neighbours, so it reaches some dots
// further.
void QueueZoomed(const DrawnBox& box) {
  constexpr gint64 reach = 3;
  const auto zoomed = [](gint64 dots, gint extent, gint zoomedExtent) {
    return static_cast<gint>(dots * zoomedExtent / extent);
  };
  const SIZE& from = PtrnDraw_Size1;
  const SIZE& to = PtrnDraw_Size2;
  const gint x1 = zoomed(box.x1 - reach, from.cx, to.cx);
  const gint y1 = zoomed(box.y1 - reach, from.cy, to.cy);
  const gint x2 = zoomed(box.x2 + reach, from.cx, to.cx);
  const gint y2 = zoomed(box.y2 + reach, from.cy, to.cy);
  gtk_widget_queue_draw_area(PtrnDraw, x1, y1, x2 - x1, y2 - y1);
}

void RenderStartPicture(gint width, gint height) {
  LayoutPicture.reset();
  PtrnPixmap.reset();
  PtrnPixmap = std::make_unique<Drawable>(width, height);
  MakeInitWindow(PtrnPixmap.get(), width, height);
}

// Brings the picture up to date and asks for what changed to be shown.
void RenderLayout() {
  if (!LayoutPicture || PtrnPixmap->Width() != PtrnDraw_Size1.cx ||
      PtrnPixmap->Height() != PtrnDraw_Size1.cy) {
    PtrnPixmap.reset();
    PtrnPixmap = std::make_unique<Drawable>(PtrnDraw_Size1.cx, PtrnDraw_Size1.cy);
    LayoutPicture = std::make_unique<PaintedLayout>();
  }
  for (const DrawnBox& box : LayoutPicture->Paint(*PtrnPixmap)) QueueZoomed(box);
}

void Show(cairo_t* cairo, Drawable& surface) {
  if (!surface.Valid()) return;
  cairo_surface_mark_dirty(surface.Cairo());
  cairo_set_source_surface(cairo, surface.Cairo(), surface.X(), surface.Y());
  // A screen of more dots shows each of ours as a block of its own.
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
  cairo_paint(cairo);
}

// Grid and overlay are drawn in zoomed pixels, only where they are looked at. The grid's lines
// reach one pixel past the layout; the ground beside it covers that.
void ShowLayout(cairo_t* cairo, gint x, gint y, gint width, gint height) {
  Drawable view(width, height, x, y);
  DrawGc gc;
  const SIZE shown = PtrnPixmap && PtrnPixmap->Valid() ? PtrnDraw_Size2 : SIZE{0, 0};
  if (shown.cx > 0) PaintZoomed(view, *PtrnPixmap, shown.cx, shown.cy);
  DrawGridData(&view, &gc);
  FillPixels(&view, shown.cx, y, x + width - shown.cx, height, DeskColour);
  FillPixels(&view, x, shown.cy, width, y + height - shown.cy, DeskColour);
  DrawWindow2(&view, &gc);
  Show(cairo, view);
}

void ShowExposed(cairo_t* cairo) {
  const ClipListPtr clip(cairo_copy_clip_rectangle_list(cairo));
  if (clip->status == CAIRO_STATUS_SUCCESS) {
    for (gint i = 0; i < clip->num_rectangles; i++) {
      const cairo_rectangle_t& part = clip->rectangles[i];
      ShowLayout(cairo, static_cast<gint>(part.x), static_cast<gint>(part.y),
                 static_cast<gint>(part.width), static_cast<gint>(part.height));
    }
    return;
  }
  GdkRectangle whole;
  if (gdk_cairo_get_clip_rectangle(cairo, &whole)) {
    ShowLayout(cairo, whole.x, whole.y, whole.width, whole.height);
  }
}

gint LayoutExtent(gint extent) {
  return std::clamp(extent, 1, LargestLayout);
}

}  // namespace

gboolean PtrnDraw_Configure(GtkWidget* /*widget*/, GdkEventConfigure* event, gpointer /*data*/) {
  if (PtrnDraw_Mode == 0) RenderStartPicture(event->width, event->height);
  return TRUE;
}

gboolean PtrnDraw_Expose(GtkWidget* /*widget*/, cairo_t* cairo, gpointer /*data*/) {
  if (PtrnDraw_Mode == 0) {
    if (PtrnPixmap) ShowStartPicture(cairo, *PtrnPixmap);
    return TRUE;
  }
  ShowExposed(cairo);
  // The item in hand may have changed since the last request: what stands now must go later.
  const RegionPtr painted = CanvasOverlay();
  if (ShownOverlay) cairo_region_union(ShownOverlay.get(), painted.get());
  return TRUE;
}

void DrawRequest(gint mode) {
  if (PtrnDraw == nullptr) return;
  if (PtrnDraw_Mode == 0) {
    gtk_widget_queue_draw(PtrnDraw);
    return;
  }
  RegionPtr overlay = CanvasOverlay();
  if (mode != 0) {
    RenderLayout();
    RedrawSwatches();
    // Every change of the layout ends here, and the first one makes it worth saving.
    SetMainMenu();
  }
  if (!ShownOverlay) {
    gtk_widget_queue_draw(PtrnDraw);
  } else {
    cairo_region_union(ShownOverlay.get(), overlay.get());
    gtk_widget_queue_draw_region(PtrnDraw, ShownOverlay.get());
  }
  ShownOverlay = std::move(overlay);
}

void SizeRequest(gint mode, gint width, gint height, gint zoom) {
  if (PtrnDraw == nullptr) return;
  KeepScrollPlace();
  PtrnDraw_Mode = mode;
  ShownOverlay.reset();
  if (mode == 0) {
    gtk_widget_set_size_request(PtrnDraw, 0, 0);
    RenderStartPicture(gtk_widget_get_allocated_width(PtrnDraw),
                       gtk_widget_get_allocated_height(PtrnDraw));
    DrawRequest(0);
  } else {
    const gint percent = std::clamp(zoom, 1, LargestZoom);
    PtrnDraw_Size1 = {LayoutExtent(width), LayoutExtent(height)};
    PtrnDraw_Size2 = {std::max(PtrnDraw_Size1.cx * percent / 100, 1),
                      std::max(PtrnDraw_Size1.cy * percent / 100, 1)};
    gtk_widget_set_size_request(PtrnDraw, PtrnDraw_Size2.cx, PtrnDraw_Size2.cy);
    RestoreScrollPlace();
    DrawRequest(1);
  }
  SetMainMenu();
  SetMenuActive1();
}
