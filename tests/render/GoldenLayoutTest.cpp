// Whole layouts: frame options, languages, layers, zooms with grid.
#include <gtest/gtest.h>

#include "tests/render/Golden.h"
#include "tests/render/SampleLayout.h"

namespace {

class GoldenLayout : public testing::Test {
 protected:
  GoldenLayout() {
    DrawSceneMarks();
    Scene::FixClock();
  }

 private:
  Scene scene_;
  SceneBitmaps bitmaps_;
};

TEST_F(GoldenLayout, WithEverythingInItsTitleArea) {
  SetHeader(500, 120);
  SetTitleArea(32, "中央監視 MONITOR");
  SetButtonArea(24);
  SetFrame(4);
  CopyText(PtrnHedr.LogoName, "house.png");
  PtrnHedr.Parm1[HedrSlot::TitleCentred] = 1;
  PtrnHedr.Parm1[HedrSlot::LogoShown] = 1;
  PtrnHedr.Parm1[HedrSlot::HardCopyShown] = 1;
  PtrnHedr.Parm1[HedrSlot::DateFormat] = 2;
  ExpectGolden(*PaintLayout(), "page-full");
}

TEST_F(GoldenLayout, WithATitleAtTheLeft) {
  SetHeader(420, 100);
  SetTitleArea(28, "左寄せ LEFT");
  SetButtonArea(10);
  CopyText(PtrnHedr.LogoName, "house.png");
  PtrnHedr.Parm1[HedrSlot::LogoShown] = 1;
  PtrnHedr.Parm1[HedrSlot::DateFormat] = 4;
  ExpectGolden(*PaintLayout(), "page-left");
}

TEST_F(GoldenLayout, WithEveryCalendarFormatOneBelowTheOther) {
  Drawable sheet(360, 7 * 24);
  for (gint format = 0; format < 7; ++format) {
    SetHeader(360, 24);
    SetTitleArea(24, std::to_string(format));
    PtrnHedr.Parm1[HedrSlot::DateFormat] = format;
    PtrnHedr.Parm1[HedrSlot::HardCopyShown] = format % 2;
    const auto strip = PaintLayout();
    for (gint y = 0; y < 24; ++y) std::copy_n(strip->Row(y), 360, sheet.Row(format * 24 + y));
  }
  ExpectGolden(sheet, "page-calendar");
}

TEST_F(GoldenLayout, WithGradation) {
  SetHeader(200, 160);
  SetTitleArea(24, "階調");
  SetButtonArea(20);
  PtrnHedr.Parm1[HedrSlot::WorkAreaColour] = Ink::Sky;
  PtrnHedr.Parm1[HedrSlot::Gradation] = 1;
  ExpectGolden(*PaintLayout(), "page-gradation");
}

TEST_F(GoldenLayout, WithABackgroundPictureBeforeGradation) {
  SetHeader(200, 160);
  SetTitleArea(24, "背景");
  SetButtonArea(20);
  SetFrame(1);
  PtrnHedr.Parm1[HedrSlot::Gradation] = 1;
  CopyText(PtrnHedr.BmapName, "house.png");
  ExpectGolden(*PaintLayout(), "page-background");
}

TEST_F(GoldenLayout, InEveryLanguage) {
  SetHeader(300, 60);
  SetTitleArea(24, "日本語");
  CopyText(PtrnHedr.PtrnName2, Euc("English"));
  CopyText(PtrnHedr.PtrnName3, Euc("Русский"));
  PTRNDATA texts[] = {TextItem(TypeFixedString, 6, 32, Font16, {}, "温度"),
                      ButtonItem(100, 30, 190, 54, Font16, 2, "開始"),
                      ChoiceItem(TypeCheckBox, 206, 32, Font16, 0, "手動")};
  const char* const english[] = {"Heat", "Start", "Manual"};
  const char* const russian[] = {"Тепло", "Пуск", "Ручн"};
  for (std::size_t no = 0; no < 3; ++no) {
    CopyText(texts[no].Text2, Euc(english[no]));
    CopyText(texts[no].Text3, Euc(russian[no]));
    AddPtrnData(&texts[no]);
  }
  Drawable sheet(300, 180);
  for (Language = 0; Language < 3; ++Language) {
    const auto picture = PaintLayout();
    for (gint y = 0; y < 60; ++y) std::copy_n(picture->Row(y), 300, sheet.Row(Language * 60 + y));
  }
  ExpectGolden(sheet, "languages");
}

// Every type lies over the one before it in painting order; the last two items are one type apart
// but the frame, otherwise lowest of all, is in the top layer.
TEST_F(GoldenLayout, InPaintingOrderAndLayers) {
  SetHeader(300, 90);
  PTRNDATA top = FrameItem(240, 40, 270, 80, 4);
  top.Parm[ItemSlot::TopLayer] = 1;
  AddItems(
      {TextItem(TypeNumeric, 250, 30, Font16, {{TextSlot::Length, 4}, {TextSlot::BackEnabled, 1}}),
       TextItem(TypeVariableString, 234, 24, Font16,
                {{TextSlot::Length, 4}, {TextSlot::BackEnabled, 1}}),
       TextItem(TypeFixedString, 218, 18, Font16, {{TextSlot::BackEnabled, 1}}, "文字列"),
       ChoiceItem(TypeCheckBox, 202, 14, Font16, 1, "甲乙"),
       ChoiceItem(TypeRadioButton, 186, 10, Font16, 1, "甲乙"),
       ButtonItem(162, 10, 200, 50, Font16, 2, "OK"), MakeItem(TypeSpinButton, 146, 14, 180, 60),
       ScrollItem(130, 10, 154, 64, 1, 1, 1, 0),
       MarkItem(110, 20, 140, 60, SceneMark::Ring64x64, 1), BitmapItem(90, 16, 120, 70, 0),
       LineItem(70, 40, 110, 40, 0, 6), BarItem(56, 10, 80, 70, 1, 0, 2),
       ShapeItem(TypeEllipse, 36, 14, 66, 74, 1, 3, 1),
       ShapeItem(TypeRectangle, 22, 10, 50, 70, 1, 3, 1), FrameItem(6, 14, 36, 74, 4), top});
  ExpectGolden(*PaintLayout(), "layers");
}

TEST_F(GoldenLayout, AtEveryZoomWithGrid) {
  MakeSampleLayout();
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 4;  // 8 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;  // 10 dots
  ExpectGolden(*PaintZoomedLayout(4, 0, 0, 80, 60), "zoom-050");
  ExpectGolden(*PaintZoomedLayout(3, 0, 0, 120, 90), "zoom-075");
  ExpectGolden(*PaintZoomedLayout(2, 0, 0, 160, 120), "zoom-100");
  ExpectGolden(*PaintZoomedLayout(1, 0, 0, 320, 240), "zoom-200");
  ExpectGolden(*PaintZoomedLayout(0, 300, 200, 400, 300), "zoom-500");
}

// A part of the view shows what the whole view shows there.
TEST_F(GoldenLayout, InPartsEqualsTheWhole) {
  MakeSampleLayout();
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  PtrnHedr.Parm2[ViewSlot::GridX] = 2;
  PtrnHedr.Parm2[ViewSlot::GridY] = 0;
  PtrnMode = ModeSelected;
  PtrnData = ShapeItem(TypeEllipse, 30, 30, 90, 80, 0, 1);
  for (gint zoom = 0; zoom < 5; ++zoom) {
    constexpr gint percent[5] = {500, 200, 100, 75, 50};
    const gint width = 160 * percent[zoom] / 100;
    const gint height = 120 * percent[zoom] / 100;
    const auto whole = PaintZoomedLayout(zoom, 0, 0, width, height);
    for (gint y = 0; y < height; y += 47) {
      for (gint x = 0; x < width; x += 61) {
        const auto part =
            PaintZoomedLayout(zoom, x, y, std::min(61, width - x), std::min(47, height - y));
        for (gint row = 0; row < part->Height(); ++row) {
          for (gint column = 0; column < part->Width(); ++column) {
            ASSERT_EQ(part->At(x + column, y + row), whole->At(x + column, y + row))
                << "zoom " << percent[zoom] << " at " << x + column << ", " << y + row;
          }
        }
      }
    }
  }
}

}  // namespace
