#include <gtest/gtest.h>

#include "Constant.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "render/LayoutPicture.h"
#include "tests/window/Exposures.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

enum { Zoom500, Zoom200, Zoom100, Zoom75, Zoom50 };

// The layout as it must look, made as one whole picture.
std::unique_ptr<Drawable> WholePicture(gint width, gint height, gint percent) {
  Drawable plain(width, height);
  DrawGc gc;
  DrawWindow1(&plain, &gc);
  const gint zoomedWidth = width * percent / 100;
  const gint zoomedHeight = height * percent / 100;
  const PixbufPtr picture = PixbufFromSurface(plain);
  const PixbufPtr scaled(
      gdk_pixbuf_scale_simple(picture.get(), zoomedWidth, zoomedHeight, GDK_INTERP_TILES));
  auto whole = std::make_unique<Drawable>(zoomedWidth, zoomedHeight);
  for (gint y = 0; y < zoomedHeight; y++) {
    for (gint x = 0; x < zoomedWidth; x++) whole->Row(y)[x] = PixelAt(scaled.get(), x, y);
  }
  DrawGridData(whole.get(), &gc);
  DrawWindow2(whole.get(), &gc);
  return whole;
}

class Canvas : public WindowTest {};

TEST_F(Canvas, ShowsTheStartPictureInEverySize) {
  Program.Write("VarnixMaster.bmp", [] {
    // 1 x 1, 24 bits: blue.
    const gchar bytes[] =
        "BM\x3a\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\4\0\0\0"
        "\x13\x0b\0\0\x13\x0b\0\0\0\0\0\0\0\0\0\0\xff\x20\x10\0";
    return std::string(bytes, 58);
  }());
  OpenWindow();
  for (const SIZE size : {SIZE{800, 600}, SIZE{1001, 703}}) {
    gtk_window_resize(GTK_WINDOW(PtrnWnd), size.cx, size.cy);
    ASSERT_TRUE(WaitFor([&] { return gtk_widget_get_allocated_width(PtrnDraw) == size.cx; }));
    const PixbufPtr shot = CanvasShot();
    const gint width = gdk_pixbuf_get_width(shot.get());
    const gint height = gdk_pixbuf_get_height(shot.get());
    const gint left = width * 10 / 100;
    const gint top = height * 10 / 100;
    const gint right = left + width * 70 / 100 - 1;
    const gint bottom = top + height * 20 / 100 - 1;
    constexpr guint32 Blue = 0x1020ff;
    EXPECT_EQ(PixelAt(shot.get(), left, top), Blue);
    EXPECT_EQ(PixelAt(shot.get(), right, bottom), Blue);
    EXPECT_EQ(PixelAt(shot.get(), left - 1, top), 0xffffffu);
    EXPECT_EQ(PixelAt(shot.get(), left, top - 1), 0xffffffu);
    EXPECT_EQ(PixelAt(shot.get(), right + 1, bottom), 0xffffffu);
    EXPECT_EQ(PixelAt(shot.get(), right, bottom + 1), 0xffffffu);
    // The second picture's file is missing.
    EXPECT_EQ(PixelAt(shot.get(), width * 80 / 100, height * 82 / 100), 0xffffffu);
  }
}

TEST_F(Canvas, OnAScreenOfMoreDotsEachIsABlock) {
  OpenWindow();
  const PTRNDATA box = BoxItem(10, 10, 60, 40, 1);
  AddPtrnData(&box);
  ShowLayout(80, 50, Zoom100);
  const std::unique_ptr<Drawable> whole = WholePicture(80, 50, 100);
  constexpr gint Scale = 2;
  Drawable screen(80 * Scale, 50 * Scale);
  cairo_surface_set_device_scale(screen.Cairo(), Scale, Scale);
  cairo_t* cairo = cairo_create(screen.Cairo());
  PtrnDraw_Expose(PtrnDraw, cairo, nullptr);
  cairo_destroy(cairo);
  cairo_surface_flush(screen.Cairo());
  for (gint y = 0; y < 50 * Scale; y++) {
    for (gint x = 0; x < 80 * Scale; x++) {
      ASSERT_EQ(screen.Row(y)[x] & 0xffffff, whole->Row(y / Scale)[x / Scale] & 0xffffff)
          << x << ", " << y;
    }
  }
}

TEST_F(Canvas, SizesTruncate) {
  OpenWindow();
  ShowLayout(641, 481, Zoom50);
  EXPECT_EQ(PtrnDraw_Mode, 1);
  EXPECT_EQ(gint{PtrnDraw_Size1.cx}, 641);
  EXPECT_EQ(gint{PtrnDraw_Size1.cy}, 481);
  EXPECT_EQ(gint{PtrnDraw_Size2.cx}, 320);
  EXPECT_EQ(gint{PtrnDraw_Size2.cy}, 240);
  gint width = 0;
  gint height = 0;
  gtk_widget_get_size_request(PtrnDraw, &width, &height);
  EXPECT_EQ(width, 320);
  EXPECT_EQ(height, 240);
}

TEST_F(Canvas, ALayoutWithoutSizeHasOnePixel) {
  OpenWindow();
  ShowLayout(0, 0, Zoom100);
  EXPECT_EQ(PtrnPixmap->Width(), 1);
  EXPECT_EQ(PtrnPixmap->Height(), 1);
  EXPECT_NE(CanvasShot(), nullptr);
}

TEST_F(Canvas, ADamagedSizeIsBounded) {
  OpenWindow();
  SizeRequest(1, -20, 2000000000, 500);
  EXPECT_EQ(gint{PtrnDraw_Size1.cx}, 1);
  EXPECT_EQ(gint{PtrnDraw_Size1.cy}, 9999);
  EXPECT_EQ(gint{PtrnDraw_Size2.cy}, 49995);
}

TEST_F(Canvas, ShowsTheLayoutAtEveryZoomWithAndWithoutGrid) {
  OpenWindow();
  IntPtrnData();
  const PTRNDATA box = BoxItem(33, 21, 260, 190, 1);
  AddPtrnData(&box);
  for (const gint grid : {0, 1}) {
    for (gint zoom = Zoom500; zoom <= Zoom50; zoom++) {
      PtrnHedr.Parm2[ViewSlot::GridShown] = grid;
      PtrnHedr.Parm2[ViewSlot::GridX] = 5;
      PtrnHedr.Parm2[ViewSlot::GridY] = 7;
      ShowLayout(321, 243, zoom);
      const PixbufPtr shot = CanvasShot();
      EXPECT_TRUE(Shows(shot.get(), 0, 0, *WholePicture(321, 243, ZoomFactorData[zoom])))
          << "zoom " << ZoomFactorData[zoom] << " grid " << grid;
    }
  }
}

TEST_F(Canvas, TheGridEndsWhereTheLayoutDoes) {
  OpenWindow();
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 10 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 7;  // 16 dots
  for (gint zoom = Zoom500; zoom <= Zoom50; zoom++) {
    ShowLayout(110, 90, zoom);
    const PixbufPtr shot = CanvasShot();
    const gint right = 110 * ZoomFactorData[zoom] / 100;
    const gint bottom = 90 * ZoomFactorData[zoom] / 100;
    for (gint x = 0; x < right + 5; x++) {
      ASSERT_EQ(PixelAt(shot.get(), x, bottom), 0xd6d6d6u) << x << " zoom " << zoom;
    }
    for (gint y = 0; y < bottom + 5; y++) {
      ASSERT_EQ(PixelAt(shot.get(), right, y), 0xd6d6d6u) << y << " zoom " << zoom;
    }
  }
}

TEST_F(Canvas, ScrollingShowsTheSamePicture) {
  OpenWindow();
  IntPtrnData();
  const PTRNDATA box = BoxItem(40, 40, 390, 280, 1);
  AddPtrnData(&box);
  ShowLayout(400, 300, Zoom500);
  FinishFrame(PtrnDraw);
  GtkWidget* scrolled = gtk_widget_get_ancestor(PtrnDraw, GTK_TYPE_SCROLLED_WINDOW);
  gtk_adjustment_set_value(gtk_scrolled_window_get_hadjustment(GTK_SCROLLED_WINDOW(scrolled)), 611);
  gtk_adjustment_set_value(gtk_scrolled_window_get_vadjustment(GTK_SCROLLED_WINDOW(scrolled)), 417);
  FinishFrame(PtrnDraw);
  GdkWindow* window = gtk_widget_get_window(PtrnDraw);
  const PixbufPtr shot(gdk_pixbuf_get_from_window(window, 611, 417, 700, 500));
  const std::unique_ptr<Drawable> whole = WholePicture(400, 300, 500);
  Drawable part(700, 500);
  for (gint y = 0; y < 500; y++) {
    for (gint x = 0; x < 700; x++) part.Row(y)[x] = whole->Row(y + 417)[x + 611];
  }
  EXPECT_TRUE(Shows(shot.get(), 0, 0, part));
}

TEST_F(Canvas, RendersAgainOnRequestOnly) {
  OpenWindow();
  IntPtrnData();
  ShowLayout(300, 200, Zoom100);
  const PTRNDATA box = BoxItem(10, 10, 60, 50, 1);
  AddPtrnData(&box);
  DrawRequest(0);
  EXPECT_EQ(PixelAt(CanvasShot().get(), 30, 30), 0xf0f0e0u);
  DrawRequest(1);
  EXPECT_EQ(PixelAt(CanvasShot().get(), 30, 30), 0x2060a0u);
}

TEST_F(Canvas, ReturnsToTheStartPicture) {
  OpenWindow();
  ShowLayout(300, 200, Zoom500);
  SizeRequest(0, 0, 0, 0);
  EXPECT_EQ(PtrnDraw_Mode, 0);
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_allocated_width(PtrnDraw) == 800; }));
  const PixbufPtr shot = CanvasShot();
  EXPECT_EQ(PixelAt(shot.get(), 5, 5), 0xffffffu);
  EXPECT_EQ(PixelAt(shot.get(), 790, 560), 0xffffffu);
}

TEST_F(Canvas, TheOverlayFollowsWithoutATrace) {
  OpenWindow();
  IntPtrnData();
  ShowLayout(700, 500, Zoom100);
  for (const gint type : {TypeRectangle, TypeLine, TypeEllipse, TypeFixedString}) {
    PtrnData = BoxItem(100, 100, 300, 220, 1);
    PtrnData.Type = type;
    PtrnData.Size = {80, 16};
    PtrnMode = ModeSelected;
    DrawRequest(0);
    FinishFrame(PtrnDraw);
    for (const POINT by : {POINT{7, 5}, POINT{-60, 33}, POINT{240, 120}, POINT{-280, -250}}) {
      PtrnData.Point1.x += by.x;
      PtrnData.Point1.y += by.y;
      PtrnData.Point2.x += by.x;
      PtrnData.Point2.y += by.y;
      DrawRequest(0);
      EXPECT_TRUE(Shows(CanvasShot().get(), 0, 0, *WholePicture(700, 500, 100))) << type;
    }
    PtrnMode = ModeIdle;
    DrawRequest(0);
    EXPECT_TRUE(Shows(CanvasShot().get(), 0, 0, *WholePicture(700, 500, 100))) << type;
  }
}

TEST_F(Canvas, AnOverlayThatChangedUnaskedLeavesNoTrace) {
  OpenWindow();
  IntPtrnData();
  ShowLayout(700, 500, Zoom100);
  PtrnData = BoxItem(20, 20, 60, 60, 1);
  PtrnMode = ModeSelected;
  DrawRequest(0);
  FinishFrame(PtrnDraw);
  PtrnData = BoxItem(400, 300, 500, 400, 1);
  gtk_widget_queue_draw(PtrnDraw);
  FinishFrame(PtrnDraw);
  PtrnMode = ModeIdle;
  DrawRequest(0);
  EXPECT_TRUE(Shows(CanvasShot().get(), 0, 0, *WholePicture(700, 500, 100)));
}

TEST_F(Canvas, DraggingRepaintsTheOutlineAlone) {
  OpenWindow();
  IntPtrnData();
  ShowLayout(780, 560, Zoom100);
  PtrnMode = ModeArea;
  AreaPoint1 = {10, 10};
  AreaPoint2 = {700, 500};
  DrawRequest(0);
  FinishFrame(PtrnDraw);
  Exposures exposures;
  FinishFrame(PtrnDraw);
  exposures.Clear();
  AreaPoint2 = {705, 505};
  DrawRequest(0);
  FinishFrame(PtrnDraw);
  EXPECT_GT(exposures.Pixels(), 0);
  EXPECT_LT(exposures.Pixels(), 2 * (695 + 495) * 24.0);
}

// At 75 and 500 %, where scaling mixes neighbours.
TEST_F(Canvas, ACommitRepaintsWhatItChangedAlone) {
  OpenWindow();
  for (const gint zoom : {Zoom100, Zoom75, Zoom500}) {
    IntPtrnData();
    for (const PTRNDATA& box : {BoxItem(5, 5, 400, 300, 1), BoxItem(30, 30, 60, 50, 2)}) {
      AddPtrnData(&box);
    }
    ShowLayout(700, 500, zoom);
    FinishFrame(PtrnDraw);
    Exposures exposures;
    FinishFrame(PtrnDraw);
    for (const PTRNDATA& box : {BoxItem(40, 33, 71, 52, 2), BoxItem(40, 40, 52, 49, 3)}) {
      exposures.Clear();
      SetPtrnData(1, &box);
      DrawRequest(1);
      FinishFrame(PtrnDraw);
      const gdouble scale = ZoomFactorData[zoom] / 100.0;
      EXPECT_GT(exposures.Pixels(), 0);
      EXPECT_LT(exposures.Pixels(), 2 * 60 * 45 * scale * scale);
      EXPECT_TRUE(Shows(CanvasShot().get(), 0, 0, *WholePicture(700, 500, ZoomFactorData[zoom])))
          << ZoomFactorData[zoom];
    }
  }
}

}  // namespace
