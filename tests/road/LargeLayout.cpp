#include <gtest/gtest.h>

#include "Constant.h"
#include "PtrnData.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"
#include "tests/window/Exposures.h"

namespace {

constexpr gint Width = 1600;
constexpr gint Height = 1200;

// A layout of the largest screen, filled with 1,000 items.
class LargeLayout : public RoadTest {
 protected:
  void PlayOnIt(const std::function<void()>& part) {
    Play([&] {
      NewLayout(Width, Height);
      Look([] {
        for (gint i = 0; i < 1000; i++) {
          const gint x = 16 + i % 40 * 39;
          const gint y = 16 + i / 40 * 47;
          const PTRNDATA item = BoxItem(x, y, x + 24, y + 24, 8 + i % 20);
          AddPtrnData(&item);
        }
        DrawRequest(1);
      });
      Settle();
      part();
    });
  }
};

bool SamePictures(GdkPixbuf* one, GdkPixbuf* other) {
  const gint width = gdk_pixbuf_get_width(one);
  const gint height = gdk_pixbuf_get_height(one);
  if (width != gdk_pixbuf_get_width(other) || height != gdk_pixbuf_get_height(other)) return false;
  for (gint y = 0; y < height; y++) {
    for (gint x = 0; x < width; x++) {
      if (PixelAt(one, x, y) != PixelAt(other, x, y)) return false;
    }
  }
  return true;
}

// Whether what stands on the screen is what a fresh painting of the whole canvas gives.
bool LeavesNoTrail() {
  return Look([] {
    const PixbufPtr before = CanvasShot();
    gtk_widget_queue_draw(PtrnDraw);
    const PixbufPtr fresh = CanvasShot();
    return SamePictures(before.get(), fresh.get());
  });
}

// Moves the pointer with the button held, and counts what each step repaints. The rendered layout
// carries a mark that a new rendering would wipe out.
void DragOverTheOverlayAlone(gdouble allowedPixels) {
  const auto rendered = Look([] {
    PtrnPixmap->Row(Height - 1)[0] = 0xff123456;
    return PtrnPixmap.get();
  });
  const auto exposures = Look([] { return std::make_unique<Exposures>(); });
  for (const POINT by : {POINT{60, 30}, POINT{-20, 90}, POINT{-150, -70}, POINT{220, 45}}) {
    Look([&] { exposures->Clear(); });
    PointBy(by.x, by.y);
    const gdouble pixels = Look([&] { return exposures->Pixels(); });
    EXPECT_GT(pixels, 0);
    EXPECT_LT(pixels, allowedPixels);
    EXPECT_TRUE(LeavesNoTrail()) << by.x << ", " << by.y;
  }
  EXPECT_EQ(Look([] { return PtrnPixmap.get(); }), rendered);
  EXPECT_EQ(Look([] { return PtrnPixmap->At(0, Height - 1); }), 0x123456u);
  Look([&exposures] { const_cast<std::unique_ptr<Exposures>&>(exposures).reset(); });
}

TEST_F(LargeLayout, DraggingAnItemRepaintsItsOutlineAlone) {
  PlayOnIt([] {
    // On an item's upper edge, beside the handles.
    ClickCanvas(334, 251);
    ASSERT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 208; }));
    ButtonDown(LeftButton);
    DragOverTheOverlayAlone(2 * 64 * 64);
    ButtonUp(LeftButton);
    EXPECT_TRUE(LeavesNoTrail());
    PressKey(GDK_KEY_Escape);
    EXPECT_TRUE(LeavesNoTrail());
  });
}

TEST_F(LargeLayout, DraggingOutANewItemRepaintsItsOutlineAlone) {
  PlayOnIt([] {
    ChooseMenu(MenuBar(), {"編集", "矩形"});
    PointAt(PtrnDraw, 300, 244);
    ButtonDown(LeftButton);
    DragOverTheOverlayAlone(2 * 4 * (200 + 200) * 14.0);
    ButtonUp(LeftButton);
    EXPECT_TRUE(LeavesNoTrail());
  });
}

TEST_F(LargeLayout, SpanningAnAreaRepaintsItsOutlineAlone) {
  PlayOnIt([] {
    PointAt(PtrnDraw, 300, 244);
    ButtonDown(LeftButton);
    DragOverTheOverlayAlone(2 * 4 * (200 + 200) * 14.0);
    // Back to a spot: no menu, no area.
    PointAt(PtrnDraw, 300, 244);
    ButtonUp(LeftButton);
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    EXPECT_TRUE(LeavesNoTrail());
  });
}

TEST_F(LargeLayout, AHoveringPointerRepaintsNothing) {
  PlayOnIt([] {
    PointAt(PtrnDraw, 300, 244);
    Settle();
    const auto exposures = Look([] { return std::make_shared<Exposures>(); });
    for (gint step = 0; step < 5; step++) PointBy(17, 9);
    EXPECT_EQ(Look([&] { return exposures->Pixels(); }), 0);
  });
}

}  // namespace
