// Colour and mark swatches: their pictures and the choice of another number.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "dialogs/Kit.h"
#include "render/LayoutPicture.h"
#include "render/Palette.h"
#include "render/Primitives.h"
#include "render/Surface.h"
#include "support/Resource.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/GridWindow.h"

namespace {

constexpr const gchar* ColourPicker = "表示色選択";
constexpr const gchar* MarkPicker = "マーク選択";

// The swatch of a number in an open picker: colours run down the columns, marks along the rows.
GtkWidget* ColourIn(GtkWidget* picker, gint number) {
  return ControlAt(FindGrid(picker), number % 10, number / 10, GTK_TYPE_DRAWING_AREA);
}

GtkWidget* MarkIn(GtkWidget* picker, gint number) {
  return ControlAt(FindGrid(picker), number / 10, number % 10, GTK_TYPE_DRAWING_AREA);
}

// The last row of black in the columns left of `width`, -1 for none.
gint LowestInk(GtkWidget* area, gint width) {
  FinishFrame(area);
  const PixbufPtr shot(gdk_pixbuf_get_from_window(gtk_widget_get_window(area), 0, 0, width, 20));
  const guint8* pixels = gdk_pixbuf_read_pixels(shot.get());
  for (gint y = 19; y >= 0; y--) {
    for (gint x = 0; x < width; x++) {
      const guint8* pixel = pixels + y * gdk_pixbuf_get_rowstride(shot.get()) +
                            x * gdk_pixbuf_get_n_channels(shot.get());
      if (pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0) return y;
    }
  }
  return -1;
}

}  // namespace

class Swatches : public testing::Test {
 protected:
  Swatches() {
    ColrData[5] = {0x2000, 0x6000, 0xA000};
    ColrData[37] = {0xC000, 0x1000, 0x3000};
    MarkData[7] = {};
    MarkDataSet(7, &MarkData[7], 2, 3, 1);
    SetDrawColr();
  }
  ~Swatches() override {
    ColrData[5] = ColrData[37] = {};
    MarkData[7] = {};
    SetDrawColr();
  }
  GtkWidget* NewColour() {
    DLG_COLRDATA* rows = Colours;
    rows[0] = {0, 0, 0, &Number, "前景色"};
    rows[1] = {-1, 0, 0, nullptr, nullptr};
    Dlg_ColrData(Form.Window, Form.Grid, rows);
    Form.Show();
    return ControlAt(Form.Grid, 0, 0, GTK_TYPE_DRAWING_AREA);
  }
  GtkWidget* NewMark() {
    Marks[0] = {1, 0, 0, &Number};
    Marks[1] = {-1, 0, 0, nullptr};
    Dlg_MarkData(Form.Window, Form.Grid, Marks);
    Form.Show();
    return ControlAt(Form.Grid, 1, 0, GTK_TYPE_DRAWING_AREA);
  }

  gint Number = 5;
  DLG_COLRDATA Colours[2] = {};
  DLG_MARKDATA Marks[2] = {};
  GridWindow Form;
};

TEST_F(Swatches, AskForTheirSizeAtLeast) {
  gint width = 0;
  gint height = 0;
  gtk_widget_get_size_request(NewColour(), &width, &height);
  EXPECT_EQ(width, 62);
  EXPECT_EQ(height, 20);
  EXPECT_NE(FindLabel(Form.Grid, "前景色"), nullptr);
}

TEST_F(Swatches, OfMarksAskForTheirSizeAtLeast) {
  gint width = 0;
  gint height = 0;
  gtk_widget_get_size_request(NewMark(), &width, &height);
  EXPECT_EQ(width, 32);
  EXPECT_EQ(height, 36);
}

TEST_F(Swatches, ShowTheirColourInABlackFrame) {
  GtkWidget* swatch = NewColour();
  EXPECT_EQ(PixelOf(swatch, 40, 10), 0x2060A0U);
  EXPECT_EQ(PixelOf(swatch, 21, 3), 0x2060A0U);
  EXPECT_EQ(PixelOf(swatch, 20, 2), 0U);
  EXPECT_EQ(PixelOf(swatch, 60, 18), 0U);
}

// Digits have no descenders, so they end on row 14, the one above their baseline.
TEST_F(Swatches, ShowTheirNumberOnItsBaseline) {
  InitDrawData();
  EXPECT_EQ(LowestInk(NewColour(), 18), 14);
  EXPECT_EQ(LowestInk(NewMark(), 18), 14);
}

TEST_F(Swatches, ShowTheirMarkInABlackFrame) {
  Number = 7;
  GtkWidget* swatch = NewMark();
  EXPECT_EQ(PixelOf(swatch, 26 + 2, 1 + 3), 0U);
  EXPECT_EQ(PixelOf(swatch, 26 + 3, 1 + 3), 0xFFFFFFU);
  EXPECT_EQ(PixelOf(swatch, 25, 0), 0U);
}

TEST_F(Swatches, AreDrawnInTheThemesInkWhereThatIsLight) {
  GtkCssProvider* dark = gtk_css_provider_new();
  gtk_css_provider_load_from_data(dark, "* { color: #eeeeee; background: #303030; }", -1, nullptr);
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(dark),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  Number = 7;
  EXPECT_EQ(PixelOf(NewMark(), 25, 0), 0xEEEEEEU);
  Number = 5;
  EXPECT_EQ(PixelOf(NewColour(), 20, 2), 0xEEEEEEU);
  gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(dark));
  g_object_unref(dark);
}

TEST_F(Swatches, TellTheirRange) {
  for (const auto& [swatch, range] :
       {std::pair(NewColour(), "色番号 0 〜 99"), std::pair(NewMark(), "マーク 0 〜 349")}) {
    gchar* tooltip = gtk_widget_get_tooltip_text(swatch);
    EXPECT_STREQ(tooltip, range);
    g_free(tooltip);
  }
}

TEST_F(Swatches, TakeTheChosenColour) {
  GtkWidget* swatch = NewColour();
  {
    const DialogAnswer answer(ColourPicker,
                              [](GtkWidget* picker) { Press(ColourIn(picker, 37), 1); });
    Press(swatch, 1);
  }
  EXPECT_EQ(Number, 37);
  EXPECT_TRUE(WaitFor([swatch] { return PixelOf(swatch, 40, 10) == 0xC01030U; }));
}

TEST_F(Swatches, OpenThePickerOverTheirDialog) {
  GtkWidget* swatch = NewColour();
  const DialogAnswer answer(ColourPicker, [this](GtkWidget* picker) {
    EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(picker)), GTK_WINDOW(Form.Window));
    CloseByManager(picker);
  });
  Press(swatch, 1);
}

TEST_F(Swatches, KeepTheirNumberWhenThePickerIsClosed) {
  GtkWidget* swatch = NewColour();
  const DialogAnswer answer(ColourPicker, CloseByManager);
  Press(swatch, 1);
  EXPECT_EQ(Number, 5);
}

TEST_F(Swatches, OtherButtonsDoNothing) {
  GtkWidget* swatch = NewColour();
  // A picker would not come back from its loop by itself.
  Press(swatch, 2);
  Press(swatch, 3);
  EXPECT_EQ(Number, 5);
  EXPECT_EQ(FindWindow(ColourPicker), nullptr);
}

TEST_F(Swatches, TakeTheChosenMark) {
  GtkWidget* swatch = NewMark();
  {
    const DialogAnswer answer(MarkPicker, [](GtkWidget* picker) { Press(MarkIn(picker, 7), 1); });
    Press(swatch, 1);
  }
  EXPECT_EQ(Number, 7);
  {
    const DialogAnswer answer(MarkPicker, CloseByManager);
    Press(swatch, 1);
  }
  EXPECT_EQ(Number, 7);
}

TEST_F(Swatches, NumbersOutOfTheTablesAreShownAndKept) {
  for (const gint odd : {-1, 100, 102, 353, 2147483647}) {
    Number = odd;
    FinishFrame(NewColour());
    FinishFrame(NewMark());
    EXPECT_EQ(Number, odd);
  }
}
