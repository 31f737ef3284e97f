#include <gtest/gtest.h>

#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

class Views : public RoadTest {
 protected:
  void PlayWithBoxes(const std::function<void()>& part) {
    Play([&] {
      NewLayout(200, 120);
      Look([] {
        const PTRNDATA box = BoxItem(20, 20, 60, 60, 8);
        AddPtrnData(&box);
        PTRNDATA line = BoxItem(100, 20, 180, 100, 9);
        line.Type = TypeLine;
        line.Parm[LineSlot::Colour + 1] = 27;
        AddPtrnData(&line);
        DrawRequest(1);
      });
      Settle();
      part();
    });
  }
};

bool CanvasIs(gint width, gint height) {
  return See([=] { return PtrnDraw_Size2.cx == width && PtrnDraw_Size2.cy == height; }) &&
         See([=] { return gtk_widget_get_allocated_width(PtrnDraw) >= width; });
}

guint32 Pixel(gint x, gint y) {
  return Look([=] { return PixelAt(CanvasShot().get(), x, y); });
}

TEST_F(Views, ItemsArePickedAndMovedAtEveryZoom) {
  PlayWithBoxes([this] {
    constexpr struct {
      const char* Label;
      gint Percent;
    } Zooms[] = {{"500%", 500}, {"200%", 200}, {" 75%", 75}, {" 50%", 50}, {"100%", 100}};
    for (const auto& zoom : Zooms) {
      ChooseMenu(MenuBar(), {"表示", "ズーム", zoom.Label});
      ASSERT_TRUE(CanvasIs(200 * zoom.Percent / 100, 120 * zoom.Percent / 100)) << zoom.Label;
      // A spot on the upper edge beside the handles, moved by 8 dots and back.
      const auto at = [&](gint dots) { return dots * zoom.Percent / 100; };
      ClickCanvas(at(28), at(20));
      ASSERT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 0; })) << zoom.Label;
      DragOnCanvas(at(28), at(20), at(36), at(28));
      EXPECT_EQ(Look([] { return gint{PtrnData.Point1.x}; }), 28) << zoom.Label;
      DragOnCanvas(at(36), at(28), at(28), at(20));
      EXPECT_EQ(Look([] { return gint{PtrnData.Point1.x}; }), 20) << zoom.Label;
      Panel("矩形").Press(" 登録 ");
      EXPECT_TRUE(See([] { return PtrnMode == ModeIdle; }));
    }
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Parm"][0], 20);
  });
}

TEST_F(Views, TheGridComesAndGoesInItsColourAndSteps) {
  PlayWithBoxes([this] {
    const guint32 ground = Pixel(80, 8);
    ChooseMenu(MenuBar(), {"表示", "方眼設定"});
    const Panel grid("方眼設定");
    grid.Choose({"横"}, 11);  // 40 dots
    grid.Choose({"縱"}, 9);   // 24 dots
    grid.PickColour({"表示色"}, 9);
    grid.Press(" 設定 ");
    EXPECT_TRUE(SeeGone("方眼設定"));
    Settle();
    EXPECT_EQ(Pixel(80, 72), ground);
    ChooseMenu(MenuBar(), {"表示", "方眼表示"});
    EXPECT_TRUE(See([] { return PtrnHedr.Parm2[ViewSlot::GridShown] == 1; }));
    EXPECT_NE(Pixel(80, 72), ground);
    PressKey(GDK_KEY_g, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return PtrnHedr.Parm2[ViewSlot::GridShown] == 0; }));
    EXPECT_EQ(Pixel(80, 72), ground);
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Parm2"], nlohmann::json::parse("[2,0,11,9,0,0,9,0,0,0]"));
  });
}

TEST_F(Views, TheColourSystemChangesWhatIsShown) {
  PlayWithBoxes([] {
    const guint32 first = Pixel(140, 60);
    ChooseMenu(MenuBar(), {"表示", "表示色", "表示色２"});
    EXPECT_TRUE(See([] { return ColorCode == 1; }));
    EXPECT_NE(Pixel(140, 60), first);
    PressKey(GDK_KEY_1, {GDK_KEY_Alt_L});
    EXPECT_TRUE(See([] { return ColorCode == 0; }));
    EXPECT_EQ(Pixel(140, 60), first);
  });
}

TEST_F(Views, TheLanguageChangesThePanelAndTheText) {
  PlayWithBoxes([this] {
    ChooseMenu(MenuBar(), {"表示", "言語", "言語３"});
    EXPECT_TRUE(See([] { return Language == 2; }));
    ChooseMenu(MenuBar(), {"編集", "固定文字列"});
    ClickCanvas(24, 80);
    const Panel panel("固定文字列");
    panel.Enter(Cell{"文字列"}, "運転");
    panel.Enter(Cell{"フォント１"}, "Run");
    panel.Enter(Cell{"フォント２"}, "Betrieb");
    panel.Tick("文字列一覧へ登録");
    panel.Press(" 登録 ");
    EXPECT_TRUE(See([] { return GetPtrnCount() == 3; }));
    ChooseMenu(MenuBar(), {"表示", "言語", "言語１"});
    EXPECT_TRUE(See([] { return Language == 0; }));
    SaveByKey();
    const nlohmann::json item = Saved(LayoutName)["Items"][2];
    EXPECT_EQ(item["Text1"], "運転");
    EXPECT_EQ(item["Text2"], "Run");
    EXPECT_EQ(item["Text3"], "Betrieb");
    EXPECT_EQ(item["Parm"][16], 7);
  });
}

TEST_F(Views, UnpickableTypesLetThePressThrough) {
  PlayWithBoxes([] {
    ChooseMenu(MenuBar(), {"表示", "非検出", "矩形"});
    EXPECT_TRUE(See([] { return PtrnUnSlct[2] == 1; }));
    ClickCanvas(28, 20);
    EXPECT_TRUE(See([] { return PtrnMode == ModeIdle && ToolBox == nullptr; }));
    ClickCanvas(140, 60);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 1; }));
    ChooseMenu(MenuBar(), {"表示", "非検出", "矩形"});
    EXPECT_TRUE(See([] { return PtrnUnSlct[2] == 0 && PtrnMode == ModeIdle; }));
    ClickCanvas(28, 20);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 0; }));
  });
}

}  // namespace
