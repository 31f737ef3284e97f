// The dialogs of all marks and the pixel editor of one.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "dialogs/Editors.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/Screen.h"
#include "render/Surface.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* SetTitle = "マーク設定";
constexpr const gchar* PickTitle = "マーク選択";
constexpr const gchar* EditTitle = "マーク作成";
constexpr guint Left = GDK_BUTTON1_MASK;
constexpr guint Right = GDK_BUTTON3_MASK;

GtkWidget* SwatchOf(GtkWidget* dialog, gint mark) {
  return ControlAt(FindGrid(dialog), mark / 10, mark % 10, GTK_TYPE_DRAWING_AREA);
}

// The enlarged view of an editor for marks of this size.
GtkWidget* EnlargedOf(GtkWidget* editor, gint width, gint height) {
  return FindWidget(editor, [=](GtkWidget* widget) {
    gint x = 0;
    gint y = 0;
    gtk_widget_get_size_request(widget, &x, &y);
    return GTK_IS_DRAWING_AREA(widget) && x == width * 8 + 2 && y == height * 8 + 2;
  });
}

// The set pixels of a mark as "x,y x,y", row by row.
std::string PixelsOf(gint number, const MARKDATA& mark) {
  std::string pixels;
  for (gint y = 0; y < MarkDataSize[number / 50].cy; y++) {
    for (gint x = 0; x < MarkDataSize[number / 50].cx; x++) {
      if (MarkDataGet(number, &mark, x, y) != 0) {
        pixels += (pixels.empty() ? "" : " ") + std::to_string(x) + "," + std::to_string(y);
      }
    }
  }
  return pixels;
}

void DrawOnePixel(GtkWidget* editor) {
  Press(EnlargedOf(editor, 16, 32), 1, 8 * 4 + 3, 8 * 5 + 3);
  PressButton("設定")(editor);
}

}  // namespace

class Marks : public WindowTest {
 protected:
  Marks() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    for (MARKDATA& mark : MarkData) mark = {};
    SaveMarkFile();
  }
  ~Marks() override {
    for (MARKDATA& mark : MarkData) mark = {};
  }
  // Runs the editor of a mark; `draw` gets the enlarged view. The pixels it leaves.
  std::string Edit(gint number, const std::function<void(GtkWidget*)>& draw) {
    const SIZE size = MarkDataSize[number / 50];
    const DialogAnswer answer(EditTitle, [&](GtkWidget* editor) {
      GtkWidget* view = EnlargedOf(editor, size.cx, size.cy);
      ASSERT_NE(view, nullptr);
      draw(view);
      PressButton("設定")(editor);
    });
    EXPECT_EQ(MakeMarkData(PtrnWnd, number, Boxes.data()), 1);
    return PixelsOf(number, Boxes[static_cast<gsize>(number)].mark);
  }

  TempFolder Project;
  std::vector<MARKBOX> Boxes = std::vector<MARKBOX>(MarkCount);
};

TEST_F(Marks, AllAreShownInTheirRows) {
  const DialogAnswer answer(PickTitle, [](GtkWidget* picker) {
    EXPECT_EQ(CountOf(picker, GTK_TYPE_DRAWING_AREA), 350);
    gint width = 0;
    gint height = 0;
    gtk_widget_get_size_request(SwatchOf(picker, 349), &width, &height);
    EXPECT_EQ(width, 64 + 32);
    EXPECT_EQ(height, 64 + 8);
    Press(SwatchOf(picker, 273), 1);
  });
  EXPECT_EQ(Dlg_MarkSelect(PtrnWnd), 273);
}

TEST_F(Marks, AClosedPickerAnswersNothing) {
  const DialogAnswer pick(PickTitle, CloseByManager);
  EXPECT_EQ(Dlg_MarkSelect(PtrnWnd), -1);
  const DialogAnswer search(PickTitle, CloseByManager);
  EXPECT_EQ(Dlg_MarkSearch(PtrnWnd, Boxes.data()), -1);
}

TEST_F(Marks, ARightClickInThePickerIsSavedAtOnce) {
  const DialogAnswer answer(PickTitle, [this](GtkWidget* picker) {
    {
      const DialogAnswer editor(EditTitle, DrawOnePixel);
      Press(SwatchOf(picker, 7), 3);
    }
    EXPECT_EQ(PixelsOf(7, MarkData[7]), "4,5");
    // Bit 16 * 5 + 4 of mark 7.
    EXPECT_EQ(Project.Read("PtrnMark")[7 * 512 + 84 / 8], 1 << 84 % 8);
    EXPECT_EQ(FindWindow(PickTitle), picker);
    CloseByManager(picker);
  });
  EXPECT_EQ(Dlg_MarkSelect(PtrnWnd), -1);
}

TEST_F(Marks, ARightClickIsShownAtOnceInThePanelBeneath) {
  // Where no dialog in the middle of the screen hides it.
  ToolBox_PointFlag = 1;
  ToolBox_PointData[TypeMark - 1] = {20, 20};
  PtrnData.Parm[MarkSlot::Mark] = 7;
  Dlg_ToolBox(PtrnWnd, TypeMark);
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
  GtkWidget* swatch = ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA);
  EXPECT_EQ(PixelOf(swatch, 26 + 4, 1 + 5), 0xFFFFFFU);
  const DialogAnswer answer(PickTitle, [swatch](GtkWidget* picker) {
    {
      const DialogAnswer editor(EditTitle, DrawOnePixel);
      Press(SwatchOf(picker, 7), 3);
    }
    EXPECT_EQ(PixelOf(swatch, 26 + 4, 1 + 5), 0U);
    CloseByManager(picker);
  });
  Dlg_MarkSelect(PtrnWnd);
  ToolBox_PointData[TypeMark - 1] = {0, 0};
}

TEST_F(Marks, TheSettingsKeepTheirChangesOnlyWhenSet) {
  const std::string before = Project.Read("PtrnMark");
  for (const gchar* leave : {" 取消 ", " 設定 "}) {
    const DialogAnswer answer(SetTitle, [&](GtkWidget* settings) {
      {
        const DialogAnswer editor(EditTitle, DrawOnePixel);
        Press(SwatchOf(settings, 7), 1);
      }
      EXPECT_EQ(PixelsOf(7, MarkData[7]), "");
      EXPECT_EQ(Project.Read("PtrnMark"), before);
      PressButton(leave)(settings);
    });
    EditMarkData(nullptr, nullptr);
    EXPECT_EQ(PixelsOf(7, MarkData[7]) == "4,5", std::string(leave) == " 設定 ");
    EXPECT_EQ(Project.Read("PtrnMark") != before, std::string(leave) == " 設定 ");
  }
}

TEST_F(Marks, OtherButtonsOfTheSettingsEditNothing) {
  const DialogAnswer answer(SetTitle, [](GtkWidget* settings) {
    Press(SwatchOf(settings, 7), 3);
    Press(SwatchOf(settings, 7), 2);
    EXPECT_EQ(FindWindow(EditTitle), nullptr);
    CloseByManager(settings);
  });
  EditMarkData(nullptr, nullptr);
}

TEST_F(Marks, AnEditorLeftChangesNothing) {
  for (const std::function<void(GtkWidget*)>& leave :
       {PressButton("取消"), std::function<void(GtkWidget*)>(CloseByManager)}) {
    const DialogAnswer answer(EditTitle, [&leave](GtkWidget* editor) {
      Press(EnlargedOf(editor, 16, 32), 1, 3, 3);
      leave(editor);
    });
    EXPECT_EQ(MakeMarkData(PtrnWnd, 7, Boxes.data()), 0);
    EXPECT_EQ(PixelsOf(7, Boxes[7].mark), "");
  }
}

TEST_F(Marks, TheLeftButtonSetsAndTheRightClears) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 0, 0);
                   Press(view, 1, 15 * 8, 31 * 8);
                   Press(view, 1, 9, 9);
                   Press(view, 3, 14, 14);
                   Press(view, 2, 40, 40);
                 }),
            "0,0 15,31");
}

// Its ground is light in every theme.
TEST_F(Marks, TheEnlargedViewHasBlackLinesInADarkTheme) {
  GtkCssProvider* dark = gtk_css_provider_new();
  gtk_css_provider_load_from_data(dark, "* { color: #eeeeee; background: #303030; }", -1, nullptr);
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(dark),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  Edit(7, [](GtkWidget* view) {
    FinishFrame(view);
    const PixbufPtr shot(gdk_pixbuf_get_from_window(gtk_widget_get_window(view), 64, 3, 1, 1));
    const guint8* pixel = gdk_pixbuf_read_pixels(shot.get());
    EXPECT_EQ(pixel[0] << 16 | pixel[1] << 8 | pixel[2], 0);
  });
  gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(dark));
  g_object_unref(dark);
}

TEST_F(Marks, APressOnTheBorderAddressesNoPixel) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 16 * 8, 4);
                   Press(view, 1, 4, 32 * 8);
                   Press(view, 1, 16 * 8 + 1, 4);
                 }),
            "");
}

TEST_F(Marks, AFastDragLeavesNoGaps) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 2 * 8 + 4, 3 * 8 + 4);
                   Move(view, 7 * 8 + 4, 3 * 8 + 4, Left);
                   Move(view, 7 * 8 + 4, 6 * 8 + 4, Left);
                 }),
            "2,3 3,3 4,3 5,3 6,3 7,3 7,4 7,5 7,6");
}

TEST_F(Marks, ADragWithTheRightButtonClears) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Move(view, 5 * 8 + 4, 4, Left);
                   Press(view, 3, 2 * 8 + 4, 4);
                   Move(view, 4 * 8 + 4, 4, Right);
                 }),
            "0,0 1,0 5,0");
}

TEST_F(Marks, ADragWithBothButtonsSets) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 3, 4, 4);
                   Move(view, 2 * 8 + 4, 4, Left | Right);
                 }),
            "0,0 1,0 2,0");
}

TEST_F(Marks, AMotionWithoutAButtonDrawsNothing) {
  EXPECT_EQ(Edit(7, [](GtkWidget* view) { Move(view, 20, 20, 0); }), "");
}

TEST_F(Marks, AFastDragOverTheEdgeDrawsUpToIt) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 12 * 8 + 4, 4);
                   Move(view, 19 * 8 + 4, 4, Left);
                 }),
            "12,0 13,0 14,0 15,0");
}

TEST_F(Marks, ADragThatComesBackDrawsFromTheEdgeOn) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Move(view, -3 * 8 + 4, 4, Left);
                   Move(view, -3 * 8 + 4, 9 * 8 + 4, Left);
                   Move(view, 2 * 8 + 4, 9 * 8 + 4, Left);
                 }),
            "0,0 0,9 1,9 2,9");
}

TEST_F(Marks, AButtonLetGoOutsideEndsTheLine) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Move(view, 4, -20, Left);
                   Move(view, 4, 9 * 8 + 4, 0);
                   Move(view, 5 * 8 + 4, 9 * 8 + 4, Left);
                 }),
            "0,0 5,9");
}

TEST_F(Marks, APressOnTheBorderBeginsALineAtTheEdge) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 16 * 8, 4 * 8 + 4);
                   Move(view, 12 * 8 + 4, 4 * 8 + 4, Left);
                   Release(view, 1, Left);
                   Press(view, 1, 3 * 8 + 4, 32 * 8);
                   Move(view, 3 * 8 + 4, 29 * 8 + 4, Left);
                 }),
            "12,4 13,4 14,4 15,4 3,29 3,30 3,31");
}

TEST_F(Marks, ALineBeginsInItsOwnDrag) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Move(view, 4, 2 * 8 + 4, Left);
                   Release(view, 1, Left);
                   // Beside the view, which takes no such press.
                   Press(view, 1, 16 * 8 + 1, 9 * 8 + 4);
                   Move(view, 10 * 8 + 4, 9 * 8 + 4, Left);
                   Release(view, 1, Left);
                   // Pressed elsewhere.
                   Move(view, 3 * 8 + 4, 20 * 8 + 4, Left);
                 }),
            "0,0 0,1 0,2 10,9 3,20");
}

TEST_F(Marks, APressThatIsNotTakenBeginsAnewWithoutARelease) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Press(view, 1, 16 * 8 + 1, 9 * 8 + 4);
                   Move(view, 10 * 8 + 4, 9 * 8 + 4, Left);
                 }),
            "0,0 10,9");
}

TEST_F(Marks, ADragGoesOnWithTheButtonThatIsStillHeld) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Press(view, 3, 4, 4);
                   Move(view, 2 * 8 + 4, 4, Left | Right);
                   Release(view, 3, Left | Right);
                   Move(view, 5 * 8 + 4, 4, Left);
                 }),
            "0,0 1,0 2,0 3,0 4,0 5,0");
}

// The source is chosen by a press that may still be held when the editor is back.
TEST_F(Marks, NoLineReachesBackOverASource) {
  EXPECT_EQ(Edit(7,
                 [](GtkWidget* view) {
                   Press(view, 1, 4, 4);
                   Move(view, 4, 5 * 8 + 4, Left);
                   {
                     const DialogAnswer search(
                         PickTitle, [](GtkWidget* picker) { Press(SwatchOf(picker, 300), 1); });
                     PressButton("参照")(gtk_widget_get_toplevel(view));
                   }
                   Move(view, 9 * 8 + 4, 5 * 8 + 4, Left);
                 }),
            "9,5");
}

TEST_F(Marks, TheLastPixelOfTheLargestCanBeDrawn) {
  EXPECT_EQ(Edit(349, [](GtkWidget* view) { Press(view, 1, 63 * 8 + 4, 63 * 8 + 4); }), "63,63");
}

TEST_F(Marks, ALargerSourceIsCut) {
  for (gint x = 0; x < 64; x++) MarkDataSet(300, &Boxes[300].mark, x, x, 1);
  // Bytes past the 16 x 32 pixels.
  Boxes[7].mark.mark[100] = 0xAA;
  const DialogAnswer answer(EditTitle, [](GtkWidget* editor) {
    {
      const DialogAnswer search(PickTitle,
                                [](GtkWidget* picker) { Press(SwatchOf(picker, 300), 1); });
      PressButton("参照")(editor);
    }
    PressButton("設定")(editor);
  });
  EXPECT_EQ(MakeMarkData(PtrnWnd, 7, Boxes.data()), 1);
  EXPECT_EQ(PixelsOf(7, Boxes[7].mark),
            "0,0 1,1 2,2 3,3 4,4 5,5 6,6 7,7 8,8 9,9 10,10 11,11 12,12 13,13 14,14 15,15");
  EXPECT_EQ(Boxes[7].mark.mark[100], 0);
}

TEST_F(Marks, ASmallerSourceLeavesTheRestClear) {
  MarkDataSet(7, &Boxes[7].mark, 15, 31, 1);
  MarkDataSet(300, &Boxes[300].mark, 40, 40, 1);
  const DialogAnswer answer(EditTitle, [](GtkWidget* editor) {
    {
      const DialogAnswer search(PickTitle,
                                [](GtkWidget* picker) { Press(SwatchOf(picker, 7), 1); });
      PressButton("参照")(editor);
    }
    PressButton("設定")(editor);
  });
  EXPECT_EQ(MakeMarkData(PtrnWnd, 300, Boxes.data()), 1);
  EXPECT_EQ(PixelsOf(300, Boxes[300].mark), "15,31");
}

TEST_F(Marks, ASourceThatIsNotChosenChangesNothing) {
  MarkDataSet(7, &Boxes[7].mark, 1, 1, 1);
  const DialogAnswer answer(EditTitle, [](GtkWidget* editor) {
    {
      const DialogAnswer search(PickTitle, CloseByManager);
      PressButton("参照")(editor);
    }
    PressButton("設定")(editor);
  });
  EXPECT_EQ(MakeMarkData(PtrnWnd, 7, Boxes.data()), 1);
  EXPECT_EQ(PixelsOf(7, Boxes[7].mark), "1,1");
}

TEST_F(Marks, PixelEditsKeepTheRestOfTheRecord) {
  Boxes[7].mark.mark[100] = 0xAA;
  Edit(7, [](GtkWidget* view) { Press(view, 1, 4, 4); });
  EXPECT_EQ(Boxes[7].mark.mark[100], 0xAA);
}

TEST_F(Marks, TheEnlargedViewShowsEachPixelAsASquare) {
  Edit(7, [](GtkWidget* view) {
    Press(view, 1, 8 * 3 + 4, 8 * 2 + 4);
    FinishFrame(view);
    const PixbufPtr shot(
        gdk_pixbuf_get_from_window(gtk_widget_get_window(view), 0, 0, 16 * 8 + 2, 32 * 8 + 2));
    EXPECT_EQ(PixelAt(shot.get(), 8 * 3 + 1, 8 * 2 + 1), 0U);
    EXPECT_EQ(PixelAt(shot.get(), 8 * 3 + 6, 8 * 2 + 6), 0U);
    EXPECT_EQ(PixelAt(shot.get(), 8 * 4 + 1, 8 * 2 + 1), 0xFFFFFFU);
    // Every eighth line is solid.
    for (gint y = 0; y <= 32 * 8; y++) EXPECT_EQ(PixelAt(shot.get(), 64, y), 0U);
    for (gint x = 0; x <= 16 * 8; x++) EXPECT_EQ(PixelAt(shot.get(), x, 32 * 8), 0U);
  });
}

// Its picture begins at (26, 1).
TEST_F(Marks, TheActualSizeKeepsInStep) {
  const DialogAnswer answer(EditTitle, [](GtkWidget* editor) {
    GtkWidget* view = EnlargedOf(editor, 16, 32);
    GtkWidget* actual = FindWidget(editor, [](GtkWidget* widget) {
      SIZE size{0, 0};
      gtk_widget_get_size_request(widget, &size.cx, &size.cy);
      return GTK_IS_DRAWING_AREA(widget) && size.cx == 16 + 32 && size.cy == 32 + 8;
    });
    ASSERT_NE(actual, nullptr);
    const auto shown = [actual](gint x, gint y) {
      FinishFrame(actual);
      GdkRectangle place;
      gtk_widget_get_allocation(actual, &place);
      GdkWindow* window = gtk_widget_get_window(actual);
      const PixbufPtr shot(gdk_pixbuf_get_from_window(window, 0, 0, place.width, place.height));
      return PixelAt(shot.get(), 26 + x, 1 + y);
    };
    EXPECT_EQ(shown(3, 2), 0xFFFFFFU);
    Press(view, 1, 8 * 3 + 4, 8 * 2 + 4);
    EXPECT_EQ(shown(3, 2), 0U);
    Move(view, 8 * 9 + 4, 8 * 2 + 4, Left);
    EXPECT_EQ(shown(6, 2), 0U);
    EXPECT_EQ(shown(9, 2), 0U);
    Press(view, 3, 8 * 3 + 4, 8 * 2 + 4);
    EXPECT_EQ(shown(3, 2), 0xFFFFFFU);
    CloseByManager(editor);
  });
  MakeMarkData(PtrnWnd, 7, Boxes.data());
}

// An item of mark 7, all of it set and then all but nothing.
TEST_F(Marks, TheOpenLayoutShowsNewMarksAtOnce) {
  for (gint y = 0; y < 32; y++) {
    for (gint x = 0; x < 16; x++) MarkDataSet(7, &MarkData[7], x, y, 1);
  }
  SaveMarkFile();
  ShowLayout(320, 240, 2);
  PTRNDATA item{};
  item.Type = TypeMark;
  item.Parm[ItemSlot::X1] = 40;
  item.Parm[ItemSlot::Y1] = 40;
  item.Parm[ItemSlot::X2] = 40 + 16;
  item.Parm[ItemSlot::Y2] = 40 + 32;
  item.Point1 = {40, 40};
  item.Point2 = {40 + 16, 40 + 32};
  for (gint system = 0; system < 4; system++) {
    item.Parm[MarkSlot::Mark + system] = 7;
    item.Parm[MarkSlot::MarkColour + system] = 3;
  }
  AddPtrnData(&item);
  DrawRequest(1);
  EXPECT_EQ(PixelAt(CanvasShot().get(), 40 + 4, 40 + 5), 0xC01030U);
  const DialogAnswer answer(SetTitle, [](GtkWidget* settings) {
    {
      const DialogAnswer editor(EditTitle, [](GtkWidget* window) {
        Press(EnlargedOf(window, 16, 32), 3, 8 * 4 + 4, 8 * 5 + 4);
        PressButton("設定")(window);
      });
      Press(SwatchOf(settings, 7), 1);
    }
    PressButton(" 設定 ")(settings);
  });
  EditMarkData(nullptr, nullptr);
  // The window manager takes its time to take the dialog away from over it.
  EXPECT_TRUE(WaitFor([] { return PixelAt(CanvasShot().get(), 40 + 4, 40 + 5) == 0xF0F0E0U; }));
  EXPECT_EQ(PixelAt(CanvasShot().get(), 40 + 5, 40 + 5), 0xC01030U);
  EXPECT_EQ(PtrnFlag, 1);
}
