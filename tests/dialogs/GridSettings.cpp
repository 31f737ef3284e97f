// The grid settings dialog.
#include <gtest/gtest.h>

#include <cstring>

#include "PtrnData.h"
#include "PtrnMisc.h"
#include "dialogs/Editors.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/Screen.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* Title = "方眼設定";

GtkWidget* ComboAt(GtkWidget* dialog, gint line) {
  return ControlAt(FindGrid(dialog), line, 1, GTK_TYPE_COMBO_BOX_TEXT);
}

void ChangeAll(GtkWidget* dialog) {
  gtk_combo_box_set_active(GTK_COMBO_BOX(ComboAt(dialog, 0)), 3);
  gtk_combo_box_set_active(GTK_COMBO_BOX(ComboAt(dialog, 1)), 11);
  const DialogAnswer answer("表示色選択", [](GtkWidget* picker) {
    Press(ControlAt(FindGrid(picker), 2, 4, GTK_TYPE_DRAWING_AREA), 1);
  });
  Press(ControlAt(FindGrid(dialog), 2, 1, GTK_TYPE_DRAWING_AREA), 1);
}

}  // namespace

class GridSettings : public WindowTest {
 protected:
  GridSettings() {
    WriteProfile("");
    OpenWindow();
    PtrnHedr.Parm2[2] = 1;
    PtrnHedr.Parm2[3] = 2;
    PtrnHedr.Parm2[6] = 5;
    PtrnHedr.Parm1[1] = 640;
  }
};

TEST_F(GridSettings, ShowTheGridOfTheLayout) {
  const DialogAnswer answer(Title, [](GtkWidget* dialog) {
    GtkWidget* grid = FindGrid(dialog);
    EXPECT_EQ(LabelText(ControlAt(grid, 0, 0, GTK_TYPE_LABEL)), "横");
    EXPECT_EQ(LabelText(ControlAt(grid, 1, 0, GTK_TYPE_LABEL)), "縱");
    EXPECT_EQ(LabelText(ControlAt(grid, 2, 0, GTK_TYPE_LABEL)), "表示色");
    EXPECT_EQ(ComboText(ComboAt(dialog, 0)), "2");
    EXPECT_EQ(ComboText(ComboAt(dialog, 1)), "4");
    CloseByManager(dialog);
  });
  PtrnGridSet(nullptr, nullptr);
}

TEST_F(GridSettings, SetKeepsExactlyTheThreeFields) {
  PTRNHEDR expected = PtrnHedr;
  expected.Parm2[2] = 3;
  expected.Parm2[3] = 11;
  expected.Parm2[6] = 42;
  const gint flag = PtrnFlag;
  const DialogAnswer answer(Title, [](GtkWidget* dialog) {
    ChangeAll(dialog);
    PressButton(" 設定 ")(dialog);
  });
  PtrnGridSet(nullptr, nullptr);
  EXPECT_EQ(std::memcmp(&PtrnHedr, &expected, sizeof expected), 0);
  EXPECT_EQ(PtrnFlag, flag);
}

// Saved and unsaved alike.
TEST_F(GridSettings, AChangeIsNoChangeOfTheLayout) {
  ShowLayout(320, 240, 2);
  for (const gint flag : {1, 2}) {
    PtrnFlag = flag;
    const DialogAnswer answer(Title, [](GtkWidget* dialog) {
      ChangeAll(dialog);
      PressButton(" 設定 ")(dialog);
    });
    PtrnGridSet(nullptr, nullptr);
    EXPECT_EQ(PtrnFlag, flag);
  }
}

// At 100 %, with an interval of 40 dots and then of 12.
TEST_F(GridSettings, TheNewGridShowsAtOnce) {
  ShowLayout(320, 240, 2);
  PtrnHedr.Parm2[1] = 1;
  PtrnHedr.Parm2[2] = PtrnHedr.Parm2[3] = 11;
  DrawRequest(1);
  const guint32 before = PixelAt(CanvasShot().get(), 12, 12);
  const DialogAnswer answer(Title, [](GtkWidget* dialog) {
    gtk_combo_box_set_active(GTK_COMBO_BOX(ComboAt(dialog, 0)), 6);
    gtk_combo_box_set_active(GTK_COMBO_BOX(ComboAt(dialog, 1)), 6);
    PressButton(" 設定 ")(dialog);
  });
  PtrnGridSet(nullptr, nullptr);
  EXPECT_EQ(before, 0xF0F0E0U);
  // The window manager takes its time to take the dialog away from over it.
  EXPECT_TRUE(WaitFor([] { return PixelAt(CanvasShot().get(), 12, 12) == 0xC01030U; }));
}

TEST_F(GridSettings, CancelAndCloseChangeNothing) {
  const PTRNHEDR before = PtrnHedr;
  for (const std::function<void(GtkWidget*)>& leave :
       {PressButton(" 取消 "), std::function<void(GtkWidget*)>(CloseByManager)}) {
    const DialogAnswer answer(Title, [&leave](GtkWidget* dialog) {
      ChangeAll(dialog);
      leave(dialog);
    });
    PtrnGridSet(nullptr, nullptr);
    EXPECT_EQ(std::memcmp(&PtrnHedr, &before, sizeof before), 0);
  }
}

TEST_F(GridSettings, AnOddIntervalIsShownAsTheFirstAndKept) {
  PtrnHedr.Parm2[2] = 13;
  PtrnHedr.Parm2[3] = 12;
  const DialogAnswer answer(Title, [](GtkWidget* dialog) {
    EXPECT_EQ(ComboText(ComboAt(dialog, 0)), "1");
    EXPECT_EQ(ComboText(ComboAt(dialog, 1)), "");
    PressButton(" 設定 ")(dialog);
  });
  PtrnGridSet(nullptr, nullptr);
  EXPECT_EQ(PtrnHedr.Parm2[2], 13);
  EXPECT_EQ(PtrnHedr.Parm2[3], 12);
}

TEST_F(GridSettings, CloseTheToolBoxFirst) {
  Dlg_ToolBox(PtrnWnd, 2);
  const DialogAnswer answer(Title, CloseByManager);
  PtrnGridSet(nullptr, nullptr);
  EXPECT_EQ(ToolBox, nullptr);
}
