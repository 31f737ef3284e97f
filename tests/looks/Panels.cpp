#include <gtest/gtest.h>

#include <set>

#include "Constant.h"
#include "PtrnData.h"
#include "app/Window.h"
#include "render/Surface.h"
#include "support/Resource.h"
#include "tests/looks/Looks.h"

namespace {

class Panels : public LooksTest {
 protected:
  void ShowPanels(const std::string& prefix, std::initializer_list<gint> types) {
    for (const gint type : types) {
      Show(prefix + std::to_string(type), PickSample(type));
      Panel(PtrnTypeList[type - 1]).Press(" 再表示 ");
      EXPECT_TRUE(SeeGone(PtrnTypeList[type - 1]));
    }
  }
  static void TwoColourSystems() {
    const std::string settings = "プロジェクトの新規作成";
    ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの修正"});
    Panel(settings).Tick("２系統");
    Panel(settings).Press(" 登録 ");
    EXPECT_TRUE(SeeGone(settings));
  }
};

TEST_F(Panels, EachType) {
  Play([this] {
    OpenSamples();
    ShowPanels("panel-", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  });
}

// The bytes of a part of the canvas as the display shows it.
std::string Shown(const GdkRectangle& part) {
  return Look([&] {
    const PixbufPtr shot(gdk_pixbuf_get_from_window(gtk_widget_get_window(PtrnDraw), part.x, part.y,
                                                    part.width, part.height));
    return std::string(reinterpret_cast<const char*>(gdk_pixbuf_read_pixels(shot.get())),
                       gdk_pixbuf_get_byte_length(shot.get()));
  });
}

// The samples themselves, each in its cell of the layout: none is missing or like another.
TEST_F(Panels, Items) {
  Play([this] {
    OpenSamples();
    // Between two columns of cells nothing lies.
    const std::string ground = Shown({200, 0, 1, 1});
    std::set<std::string> looks;
    for (gint no = 0; no < 15; ++no) {
      const GdkRectangle cell{no % 3 * 220, no / 3 * 128, 200, 120};
      ShowCanvas("item-" + std::to_string(no + 1), cell);
      const std::string look = Shown(cell);
      EXPECT_TRUE(looks.insert(look).second) << PtrnTypeList[no] << " looks like another";
      std::string empty;
      while (empty.size() < look.size()) empty += ground;
      EXPECT_NE(look, empty) << PtrnTypeList[no] << " shows nothing";
    }
  });
}

TEST_F(Panels, InTwoColourSystems) {
  Play([this] {
    TwoColourSystems();
    OpenSamples();
    ShowPanels("panel-two-colours-", {1, 2, 3, 5, 6, 13});
  });
}

TEST_F(Panels, InTwoLanguages) {
  Play([this] {
    OpenSamples();
    PressKey(GDK_KEY_F2, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return Language == 1; }));
    ShowPanels("panel-two-languages-", {6, 9, 10, 11});
  });
}

TEST_F(Panels, InThreeLanguages) {
  Play([this] {
    OpenSamples();
    PressKey(GDK_KEY_F3, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return Language == 2; }));
    ShowPanels("panel-three-languages-", {6, 9, 10, 11});
  });
}

TEST_F(Panels, ListPickers) {
  Play([this] {
    OpenSamples();
    PickSample(6);
    const Panel panel("固定文字列");
    const struct {
      Cell Where;
      const char* Title;
      const char* Name;
    } lists[] = {{{"文字列", 4}, "固定文字列 (言語１) 選択", "list-texts"},
                 {{"画面名称", 4}, "画面名称選択", "list-screens"},
                 {{"識別コード", 4}, "識別コード選択", "list-codes"}};
    for (const auto& list : lists) {
      Click(panel.Control(list.Where, GTK_TYPE_BUTTON));
      ShowAndLeave(list.Name, list.Title);
    }
  });
}

TEST_F(Panels, PictureChooser) {
  Play([this] {
    OpenSamples();
    PickSample(12);
    Click(Panel("ビットマップ").Control({"ビットマップ名", 4}, GTK_TYPE_BUTTON));
    ClickRow(SeeWindow("画像ファイル選択"), "Pictures");
    ClickRow(SeeWindow("画像ファイル選択"), "logo.png");
    ShowAndLeave("picture-chooser", "画像ファイル選択");
  });
}

}  // namespace
