// The palette editor, the picker of a colour and the editor of one.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "dialogs/Editors.h"
#include "dialogs/Kit.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/GridWindow.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* EditorTitle = "表示色設定";
constexpr const gchar* PickerTitle = "表示色選択";
constexpr const gchar* ColourTitle = "表示色作成";

GtkWidget* SwatchAt(GtkWidget* dialog, gint line, gint culm) {
  return ControlAt(FindGrid(dialog), line, culm, GTK_TYPE_DRAWING_AREA);
}

// Answers the colour dialog with a colour of these 16-bit channels.
std::function<void(GtkWidget*)> Choose(COLRDATA colour) {
  return [colour](GtkWidget* dialog) {
    const GdkRGBA rgba = {colour.red / 65535.0, colour.green / 65535.0, colour.blue / 65535.0, 1};
    gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(dialog), &rgba);
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_OK);
  };
}

void CancelColour(GtkWidget* dialog) {
  gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
}

bool Same(const COLRDATA& one, const COLRDATA& other) {
  return one.red == other.red && one.green == other.green && one.blue == other.blue;
}

constexpr COLRDATA Old = {1, 2, 3};
constexpr COLRDATA New = {32767, 65535, 257};

}  // namespace

class Palette : public WindowTest {
 protected:
  Palette() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    for (COLRDATA& colour : ColrData) colour = Old;
    SaveColrFile();
  }
  ~Palette() override {
    for (COLRDATA& colour : ColrData) colour = {};
  }
  // Whether entry 37 of the palette file is this colour.
  bool FileHolds(const COLRDATA& colour) const {
    const std::string bytes = Project.Read("PtrnColr");
    COLRDATA stored;
    std::memcpy(&stored, bytes.data() + 37 * sizeof stored, sizeof stored);
    return Same(stored, colour);
  }

  TempFolder Project;
};

TEST_F(Palette, NumbersRunDownTheColumns) {
  const DialogAnswer answer(PickerTitle, [](GtkWidget* picker) {
    EXPECT_EQ(CountOf(FindGrid(picker), GTK_TYPE_DRAWING_AREA), 100);
    EXPECT_EQ(CountOf(picker, GTK_TYPE_BUTTON), 0);
    Press(SwatchAt(picker, 7, 3), 1);
  });
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), 37);
}

TEST_F(Palette, ThePickerClosedAnswersNothing) {
  const DialogAnswer answer(PickerTitle, CloseByManager);
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), -1);
}

TEST_F(Palette, TheMiddleButtonChoosesNothing) {
  const DialogAnswer answer(PickerTitle, [](GtkWidget* picker) {
    Press(SwatchAt(picker, 7, 3), 2);
    EXPECT_EQ(FindWindow(PickerTitle), picker);
    CloseByManager(picker);
  });
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), -1);
}

TEST_F(Palette, ARightClickInThePickerChangesThePaletteAtOnce) {
  const DialogAnswer answer(PickerTitle, [this](GtkWidget* picker) {
    {
      const DialogAnswer colour(ColourTitle, Choose(New));
      Press(SwatchAt(picker, 7, 3), 3);
    }
    EXPECT_TRUE(Same(ColrData[37], New));
    EXPECT_TRUE(FileHolds(New));
    EXPECT_EQ(FindWindow(PickerTitle), picker);
    CloseByManager(picker);
  });
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), -1);
  EXPECT_TRUE(Same(ColrData[37], New));
}

TEST_F(Palette, ARightClickThatIsCancelledChangesNothing) {
  const DialogAnswer answer(PickerTitle, [](GtkWidget* picker) {
    {
      const DialogAnswer colour(ColourTitle, CancelColour);
      Press(SwatchAt(picker, 7, 3), 3);
    }
    CloseByManager(picker);
  });
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), -1);
  EXPECT_TRUE(Same(ColrData[37], Old));
}

TEST_F(Palette, TheEditorKeepsItsChangesOnlyWhenSet) {
  const DialogAnswer answer(EditorTitle, [this](GtkWidget* editor) {
    {
      const DialogAnswer colour(ColourTitle, Choose(New));
      Press(SwatchAt(editor, 7, 3), 1);
    }
    EXPECT_TRUE(Same(ColrData[37], Old));
    EXPECT_TRUE(FileHolds(Old));
    PressButton(" 設定 ")(editor);
  });
  EditColrData(nullptr, nullptr);
  EXPECT_TRUE(Same(ColrData[37], New));
  EXPECT_TRUE(Same(ColrData[36], Old));
  EXPECT_TRUE(FileHolds(New));
}

TEST_F(Palette, TheEditorCancelledChangesNothing) {
  for (const std::function<void(GtkWidget*)>& leave :
       {PressButton(" 取消 "), std::function<void(GtkWidget*)>(CloseByManager)}) {
    const DialogAnswer answer(EditorTitle, [&](GtkWidget* editor) {
      {
        const DialogAnswer colour(ColourTitle, Choose(New));
        Press(SwatchAt(editor, 7, 3), 1);
      }
      leave(editor);
    });
    EditColrData(nullptr, nullptr);
    EXPECT_TRUE(Same(ColrData[37], Old));
    EXPECT_TRUE(FileHolds(Old));
  }
}

TEST_F(Palette, OtherButtonsEditNothing) {
  const DialogAnswer answer(EditorTitle, [](GtkWidget* editor) {
    Press(SwatchAt(editor, 7, 3), 3);
    Press(SwatchAt(editor, 7, 3), 2);
    EXPECT_EQ(FindWindow(ColourTitle), nullptr);
    CloseByManager(editor);
  });
  EditColrData(nullptr, nullptr);
}

TEST_F(Palette, TheEditorClosesTheToolBox) {
  Dlg_ToolBox(PtrnWnd, 2);
  const DialogAnswer answer(EditorTitle, CloseByManager);
  EditColrData(nullptr, nullptr);
  EXPECT_EQ(ToolBox, nullptr);
}

TEST_F(Palette, TheParentIsTheMainWindowUnlessAnotherIsMeant) {
  GtkWidget* other = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_widget_show(other);
  {
    const DialogAnswer answer(EditorTitle, [](GtkWidget* editor) {
      EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(editor)), GTK_WINDOW(PtrnWnd));
      CloseByManager(editor);
    });
    EditColrData(other, nullptr);
  }
  {
    const DialogAnswer answer(EditorTitle, [other](GtkWidget* editor) {
      EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(editor)), GTK_WINDOW(other));
      CloseByManager(editor);
    });
    EditColrData(other, GINT_TO_POINTER(1));
  }
  gtk_widget_destroy(other);
}

TEST_F(Palette, ChannelsComeBackAsTheyWentIn) {
  constexpr gint Channels[] = {0, 1, 257, 32767, 32768, 43690, 65534, 65535};
  for (const gint red : Channels) {
    for (const gint other : {Channels[1], Channels[3], red}) {
      COLRBOX box = {nullptr, {red, other, 65535 - red}};
      const DialogAnswer answer(ColourTitle, [](GtkWidget* dialog) {
        gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_OK);
      });
      EXPECT_EQ(MakeColrData(PtrnWnd, 0, &box), 1);
      EXPECT_EQ(box.colr.red, red);
      EXPECT_EQ(box.colr.green, other);
      EXPECT_EQ(box.colr.blue, 65535 - red);
    }
  }
}

TEST_F(Palette, AChosenColourIsCutNotRounded) {
  COLRBOX box = {nullptr, Old};
  const DialogAnswer answer(ColourTitle, [](GtkWidget* dialog) {
    const GdkRGBA rgba = {0.49999, 1.0, 0.99999, 1};
    gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(dialog), &rgba);
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_OK);
  });
  EXPECT_EQ(MakeColrData(PtrnWnd, 0, &box), 1);
  EXPECT_EQ(box.colr.red, 32766);
  EXPECT_EQ(box.colr.green, 65535);
  EXPECT_EQ(box.colr.blue, 65534);
}

// Colour 2 is that of the work area.

TEST_F(Palette, TheOpenLayoutShowsANewPaletteAtOnce) {
  ShowLayout(320, 240, 2);
  DrawRequest(1);
  EXPECT_EQ(PixelAt(CanvasShot().get(), 100, 100), 0xF0F0E0U);
  const DialogAnswer answer(EditorTitle, [](GtkWidget* editor) {
    {
      const DialogAnswer colour(ColourTitle, Choose({0x1200, 0x3400, 0x5600}));
      Press(SwatchAt(editor, 2, 0), 1);
    }
    PressButton(" 設定 ")(editor);
  });
  EditColrData(nullptr, nullptr);
  // The window manager takes its time to take the editor away from over it.
  EXPECT_TRUE(WaitFor([] { return PixelAt(CanvasShot().get(), 100, 100) == 0x123456U; }));
  EXPECT_EQ(PtrnFlag, 1);
}

TEST_F(Palette, TheOpenLayoutShowsARightClicksColourAtOnce) {
  ShowLayout(320, 240, 2);
  DrawRequest(1);
  const DialogAnswer answer(PickerTitle, [](GtkWidget* picker) {
    {
      const DialogAnswer colour(ColourTitle, Choose({0x1200, 0x3400, 0x5600}));
      Press(SwatchAt(picker, 2, 0), 3);
    }
    EXPECT_EQ(PixelAt(CanvasShot().get(), 10, 10), 0x123456U);
    CloseByManager(picker);
  });
  Dlg_ColrSelect(PtrnWnd);
}

// Swatches of colour 37 in the panel and in a dialog, at the screen's corners, where no dialog in
// the middle hides them.
struct ShownSwatches {
  ShownSwatches() {
    constexpr gint SpinButton = 15;
    ToolBox_PointFlag = 1;
    ToolBox_PointData[SpinButton - 1] = {20, 20};
    PtrnData.Parm[ItemSlot::EraseColour] = 37;
    Dlg_ToolBox(PtrnWnd, SpinButton);
    EXPECT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
    InPanel = ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA);
    Dlg_ColrData(Form.Window, Form.Grid, Rows);
    InDialog = ControlAt(Form.Grid, 0, 0, GTK_TYPE_DRAWING_AREA);
    gtk_window_move(GTK_WINDOW(Form.Window), 1300, 20);
    Form.Show();
  }
  ~ShownSwatches() { ToolBox_PointData[14] = {0, 0}; }
  ShownSwatches(const ShownSwatches&) = delete;
  ShownSwatches& operator=(const ShownSwatches&) = delete;

  gint Number = 37;
  DLG_COLRDATA Rows[2] = {{0, 0, 0, &Number, ""}, {-1, 0, 0, nullptr, nullptr}};
  GridWindow Form;
  GtkWidget* InPanel = nullptr;
  GtkWidget* InDialog = nullptr;
};

TEST_F(Palette, ARightClickIsShownAtOnceInTheWindowsBeneath) {
  const ShownSwatches shown;
  EXPECT_EQ(PixelOf(shown.InPanel, 40, 10), 0U);
  EXPECT_EQ(PixelOf(shown.InDialog, 40, 10), 0U);
  const DialogAnswer answer(PickerTitle, [&shown](GtkWidget* picker) {
    {
      const DialogAnswer colour(ColourTitle, Choose({0x1200, 0x3400, 0x5600}));
      Press(SwatchAt(picker, 7, 3), 3);
    }
    EXPECT_EQ(PixelOf(shown.InPanel, 40, 10), 0x123456U);
    EXPECT_EQ(PixelOf(shown.InDialog, 40, 10), 0x123456U);
    CloseByManager(picker);
  });
  Dlg_ColrSelect(PtrnWnd);
}

// As when the settings of a project are cancelled, which brings back the palette beneath a panel.
TEST_F(Palette, ThePanelShowsWhatTheCanvasIsPaintedWith) {
  ShowLayout(320, 240, 2);
  const ShownSwatches shown;
  EXPECT_EQ(PixelOf(shown.InPanel, 40, 10), 0U);
  ColrData[37] = {0x1200, 0x3400, 0x5600};
  DrawRequest(0);
  EXPECT_EQ(PixelOf(shown.InPanel, 40, 10), 0U);
  DrawRequest(1);
  EXPECT_TRUE(WaitFor([&shown] { return PixelOf(shown.InPanel, 40, 10) == 0x123456U; }));
}

TEST_F(Palette, TheEditorsColoursAreShownAtOnceInTheWindowsBeneath) {
  const ShownSwatches shown;
  EXPECT_EQ(PixelOf(shown.InDialog, 40, 10), 0U);
  const DialogAnswer answer(EditorTitle, [](GtkWidget* editor) {
    {
      const DialogAnswer colour(ColourTitle, Choose({0x1200, 0x3400, 0x5600}));
      Press(SwatchAt(editor, 7, 3), 1);
    }
    PressButton(" 設定 ")(editor);
  });
  EditColrData(nullptr, nullptr);
  EXPECT_EQ(PixelOf(shown.InDialog, 40, 10), 0x123456U);
}
