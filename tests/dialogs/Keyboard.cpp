// Swatches, pickers and the mark editor without a mouse.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <vector>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "dialogs/Editors.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "dialogs/kit/RecentColours.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/LowScreen.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* ColourPicker = "表示色選択";
constexpr const gchar* MarkPicker = "マーク選択";
constexpr const gchar* ColourDialog = "表示色作成";
constexpr const gchar* MarkDialog = "マーク作成";

void WaitForKeyboard(GtkWidget* window) {
  gtk_window_present(GTK_WINDOW(window));
  ASSERT_TRUE(WaitFor([window] { return gtk_window_is_active(GTK_WINDOW(window)) != FALSE; }));
}

void PressKeys(GtkWidget* window, std::initializer_list<guint> keys) {
  WaitForKeyboard(window);
  for (const guint key : keys) PressKey(window, key);
}

GtkWidget* Focus(GtkWidget* window) {
  return gtk_window_get_focus(GTK_WINDOW(window));
}

CellPlace FocusedCell(GtkWidget* window) {
  return PlaceOf(FindGrid(window), Focus(window));
}

std::function<void(GtkWidget*)> Keys(std::initializer_list<guint> keys) {
  return [keys = std::vector<guint>(keys)](GtkWidget* dialog) {
    WaitForKeyboard(dialog);
    for (const guint key : keys) PressKey(dialog, key);
  };
}

void CancelColour(GtkWidget* dialog) {
  gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
}

}  // namespace

class Keyboard : public WindowTest {
 protected:
  Keyboard() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
  }
  // The swatch of the erase colour, with the keyboard on it.
  static void FocusEraseColour() {
    Dlg_ToolBox(PtrnWnd, 15);
    WaitForKeyboard(ToolBox);
    gtk_widget_grab_focus(ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA));
  }
  // Edits mark 7 with keys; what the editor leaves of pixel (x, y).
  gint DrawnWith(std::initializer_list<guint> keys, gint x, gint y) {
    const DialogAnswer answer(MarkDialog, [&](GtkWidget* editor) {
      PressKeys(editor, keys);
      PressButton("設定")(editor);
    });
    EXPECT_EQ(MakeMarkData(PtrnWnd, 7, Boxes.data()), 1);
    return MarkDataGet(7, &Boxes[7].mark, x, y);
  }

  TempFolder Project;
  std::vector<MARKBOX> Boxes = std::vector<MARKBOX>(MarkCount);
};

TEST_F(Keyboard, SpaceAndReturnChooseAColour) {
  for (const guint key : {GDK_KEY_space, GDK_KEY_Return}) {
    FocusEraseColour();
    PtrnData.Parm[29] = 0;
    // Colours run down the columns: 10 stands right of 0, 11 below 10.
    const DialogAnswer answer(ColourPicker, Keys({GDK_KEY_Right, GDK_KEY_Down, key}));
    PressKey(ToolBox, key);
    EXPECT_EQ(+PtrnData.Parm[29], 11);
  }
}

TEST_F(Keyboard, TheLatestColoursStandBelowThePaletteOneTabAway) {
  for (const gint number : {10, 11, 10}) {
    FocusEraseColour();
    PtrnData.Parm[29] = 0;
    const DialogAnswer answer(ColourPicker,
                              number == 10 ? Keys({GDK_KEY_Right, GDK_KEY_Return})
                                           : Keys({GDK_KEY_Right, GDK_KEY_Down, GDK_KEY_Return}));
    PressKey(ToolBox, GDK_KEY_space);
    EXPECT_EQ(+PtrnData.Parm[29], number);
  }
  // The latest first, the one used twice once.
  const auto recent = RecentColours();
  ASSERT_GE(recent.size(), 2U);
  EXPECT_EQ(recent[0], 10);
  EXPECT_EQ(recent[1], 11);
  EXPECT_EQ(std::count(recent.begin(), recent.end(), 10), 1);
  const DialogAnswer answer(ColourPicker, [](GtkWidget* picker) {
    EXPECT_NE(FindLabel(picker, "最近使った色"), nullptr);
    PressKeys(picker, {GDK_KEY_Tab, GDK_KEY_Right, GDK_KEY_Return});
  });
  PressKey(ToolBox, GDK_KEY_space);
  EXPECT_EQ(+PtrnData.Parm[29], 11);
}

TEST_F(Keyboard, ThePickerBeginsAtTheColourThatIsThere) {
  const DialogAnswer answer(ColourPicker, Keys({GDK_KEY_Return}));
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd, 37), 37);
}

// Whether all of the control with the keyboard is in view.
bool IsFocusShown(GtkWidget* picker) {
  GtkWidget* port = gtk_widget_get_ancestor(FindGrid(picker), GTK_TYPE_VIEWPORT);
  gint x = -1;
  gint y = -1;
  gtk_widget_translate_coordinates(Focus(picker), port, 0, 0, &x, &y);
  return x >= 0 && y >= 0 &&
         x + gtk_widget_get_allocated_width(Focus(picker)) <=
             gtk_widget_get_allocated_width(port) &&
         y + gtk_widget_get_allocated_height(Focus(picker)) <=
             gtk_widget_get_allocated_height(port);
}

TEST_F(Keyboard, TheMarkPickerBeginsAtTheMarkThatIsThere) {
  for (const gint number : {0, 237, 349}) {
    PtrnData.Parm[15] = number;
    Dlg_ToolBox(PtrnWnd, 13);
    WaitForKeyboard(ToolBox);
    gtk_widget_grab_focus(ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA));
    const DialogAnswer answer(MarkPicker, [number](GtkWidget* picker) {
      WaitForKeyboard(picker);
      EXPECT_EQ(FocusedCell(picker), (CellPlace{number / 10, number % 10, number % 10}));
      EXPECT_TRUE(WaitFor([picker] { return IsFocusShown(picker); })) << number;
      CloseByManager(picker);
    });
    PressKey(ToolBox, GDK_KEY_space);
  }
}

TEST_F(Keyboard, TheMarkPickerBeginsAtTheFirstMarkForOneThatIsNone) {
  for (const gint number : {-1, 350}) {
    const DialogAnswer answer(MarkPicker, [](GtkWidget* picker) {
      WaitForKeyboard(picker);
      EXPECT_EQ(FocusedCell(picker), (CellPlace{0, 0, 0}));
      CloseByManager(picker);
    });
    PtrnData.Parm[15] = number;
    Dlg_ToolBox(PtrnWnd, 13);
    WaitForKeyboard(ToolBox);
    gtk_widget_grab_focus(ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA));
    PressKey(ToolBox, GDK_KEY_space);
  }
}

// The list has the keyboard, nothing is selected yet, and the first arrow selects the first row.
void ExpectListFirst(GtkWidget* dialog) {
  WaitForKeyboard(dialog);
  GtkWidget* list = Focus(dialog);
  ASSERT_TRUE(GTK_IS_TREE_VIEW(list));
  ASSERT_TRUE(WaitFor([list] { return gtk_widget_has_focus(list) != FALSE; }));
  GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(list));
  EXPECT_EQ(gtk_tree_selection_count_selected_rows(selection), 0);
  EXPECT_FALSE(gtk_widget_get_sensitive(FindLabel(dialog, " 開く ")));
  PressKey(dialog, GDK_KEY_Down);
  GtkTreePath* first = gtk_tree_path_new_first();
  EXPECT_TRUE(gtk_tree_selection_path_is_selected(selection, first));
  gtk_tree_path_free(first);
  EXPECT_TRUE(gtk_widget_get_sensitive(FindLabel(dialog, " 開く ")));
  CloseByManager(dialog);
}

TEST_F(Keyboard, TheDialogsThatOpenBeginOnTheirList) {
  Project.Write("first.ptn", "x");
  Project.Write("second.ptn", "x");
  Project.Write("works.prj", "x");
  WriteProfile("[PROJNAME]\nPROJNAME1=works," + Project.Path() + "\n");
  {
    const DialogAnswer answer("レイアウトを開く", ExpectListFirst);
    EXPECT_EQ(PtrnFileOpen(PtrnWnd), 0);
  }
  const DialogAnswer answer("プロジェクトを開く", ExpectListFirst);
  EXPECT_EQ(ProjFileOpen(PtrnWnd), 0);
}

TEST_F(Keyboard, AnEmptyListHasTheKeyboardToo) {
  const DialogAnswer answer("レイアウトを開く", [](GtkWidget* dialog) {
    WaitForKeyboard(dialog);
    EXPECT_TRUE(GTK_IS_TREE_VIEW(Focus(dialog)));
    CloseByManager(dialog);
  });
  EXPECT_EQ(PtrnFileOpen(PtrnWnd), 0);
}

TEST_F(Keyboard, TheProjectsSettingsBeginAtTheName) {
  CopyText(EditName, "works");
  const DialogAnswer answer("題名", [](GtkWidget* dialog) {
    WaitForKeyboard(dialog);
    EXPECT_EQ(EntryText(Focus(dialog)), "works");
    CloseByManager(dialog);
  });
  EXPECT_EQ(EditProjData(PtrnWnd, "題名"), 0);
  EditName[0] = '\0';
}

TEST_F(Keyboard, TheKeysThatTurnPagesLeaveTheNumbersThere) {
  EditData.Parm2[0] = 40;
  EditData.Parm3[0] = 32;
  const DialogAnswer answer("題名", [](GtkWidget* dialog) {
    WaitForKeyboard(dialog);
    auto* notebook = GTK_NOTEBOOK(FindKind(dialog, GTK_TYPE_NOTEBOOK));
    for (gint page = 1; page < 4; page++) {
      PressKey(dialog, GDK_KEY_Page_Down, GDK_CONTROL_MASK);
      EXPECT_EQ(gtk_notebook_get_current_page(notebook), page);
    }
    for (gint page = 2; page >= 0; page--) {
      PressKey(dialog, GDK_KEY_Page_Up, GDK_CONTROL_MASK);
      EXPECT_EQ(gtk_notebook_get_current_page(notebook), page);
    }
    CloseByManager(dialog);
  });
  EXPECT_EQ(EditProjData(PtrnWnd, "題名"), 0);
  EXPECT_EQ(EditData.Parm2[0], 40);
  EXPECT_EQ(EditData.Parm3[0], 32);
}

TEST_F(Keyboard, TheSettingsOfALayoutBeginAtItsTitle) {
  constexpr const gchar* Titles[] = {"レイアウト情報の設定［親ウィンドウ］",
                                     "レイアウト情報の設定［子ウィンドウ］",
                                     "レイアウト情報の設定［その他］"};
  CopyText(EditHedr.PtrnName1, "layout");
  for (gint kind = 0; kind < 3; kind++) {
    EditHedr.Parm1[0] = kind;
    const DialogAnswer answer(Titles[kind], [](GtkWidget* dialog) {
      WaitForKeyboard(dialog);
      EXPECT_EQ(EntryText(Focus(dialog)), "layout");
      CloseByManager(dialog);
    });
    EXPECT_EQ(EditPtrnData(PtrnWnd), 0);
  }
}

// TOP stands beside the point, above all that makes the item.
TEST_F(Keyboard, APanelBeginsAtTheFirstFieldAfterTop) {
  constexpr gint FirstLines[] = {2, 2, 2, 2, 2, 1, 1, 1, 2, 1, 1, 2, 2, 2, 2};
  for (gint language = 0; language < 3; language++) {
    for (gint type = 1; type <= 15; type++) {
      SCOPED_TRACE(testing::Message() << "type " << type << ", language " << language);
      Language = language;
      Dlg_ToolBox(PtrnWnd, type);
      GtkWidget* grid = FindGrid(ToolBox);
      GtkWidget* focus = Focus(ToolBox);
      ASSERT_NE(focus, nullptr);
      while (gtk_widget_get_parent(focus) != grid) focus = gtk_widget_get_parent(focus);
      const CellPlace place = PlaceOf(grid, focus);
      EXPECT_EQ(place.Line, FirstLines[type - 1]);
      EXPECT_EQ(place.Culm1, 1);
    }
  }
}

TEST_F(Keyboard, F6GoesToThePanelsFirstField) {
  Dlg_ToolBox(PtrnWnd, 6);
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
  WaitForKeyboard(PtrnWnd);
  PressKey(PtrnWnd, GDK_KEY_F6);
  GtkWidget* entry = ControlAt(FindGrid(ToolBox), 1, 1, GTK_TYPE_ENTRY);
  EXPECT_TRUE(WaitFor([entry] { return gtk_widget_has_focus(entry) != FALSE; }));
}

TEST_F(Keyboard, F6GoesToTheToolBoxAndBack) {
  Dlg_ToolBox(PtrnWnd, 15);
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
  WaitForKeyboard(PtrnWnd);
  PressKey(PtrnWnd, GDK_KEY_F6);
  ASSERT_TRUE(WaitFor([] { return gtk_window_is_active(GTK_WINDOW(ToolBox)) != FALSE; }));
  PressKey(ToolBox, GDK_KEY_F6);
  EXPECT_TRUE(WaitFor([] { return gtk_window_is_active(GTK_WINDOW(PtrnWnd)) != FALSE; }));
}

TEST_F(Keyboard, TheMenuKeyEditsThePickersColour) {
  const DialogAnswer answer(ColourPicker, [](GtkWidget* picker) {
    WaitForKeyboard(picker);
    {
      const DialogAnswer colour(ColourDialog, CancelColour);
      PressKey(picker, GDK_KEY_Menu);
    }
    CloseByManager(picker);
  });
  EXPECT_EQ(Dlg_ColrSelect(PtrnWnd), -1);
}

TEST_F(Keyboard, TabLeavesTheColoursForTheButtonsAndComesBackToTheSameOne) {
  const DialogAnswer answer("表示色設定", [](GtkWidget* editor) {
    PressKeys(editor, {GDK_KEY_Down, GDK_KEY_Down, GDK_KEY_Right});
    EXPECT_EQ(FocusedCell(editor), (CellPlace{2, 1, 1}));
    PressKey(editor, GDK_KEY_Tab);
    EXPECT_EQ(Focus(editor), FindLabel(editor, " 設定 "));
    PressKey(editor, GDK_KEY_Tab);
    EXPECT_EQ(Focus(editor), FindLabel(editor, " 取消 "));
    PressKey(editor, GDK_KEY_Tab);
    EXPECT_EQ(FocusedCell(editor), (CellPlace{2, 1, 1}));
    CloseByManager(editor);
  });
  EditColrData(nullptr, nullptr);
}

TEST_F(Keyboard, TheArrowsScrollTheMarksToTheOneThatHasTheKeyboard) {
  const DialogAnswer answer(MarkPicker, [](GtkWidget* picker) {
    WaitForKeyboard(picker);
    for (gint row = 0; row < 30; row++) PressKey(picker, GDK_KEY_Down);
    EXPECT_EQ(FocusedCell(picker), (CellPlace{30, 0, 0}));
    GtkWidget* port = gtk_widget_get_ancestor(FindGrid(picker), GTK_TYPE_VIEWPORT);
    const auto shown = [&] {
      gint y = 0;
      gtk_widget_translate_coordinates(Focus(picker), port, 0, 0, nullptr, &y);
      return y >= 0 && y + gtk_widget_get_allocated_height(Focus(picker)) <=
                           gtk_widget_get_allocated_height(port);
    };
    EXPECT_TRUE(WaitFor(shown));
    PressKey(picker, GDK_KEY_Return);
  });
  EXPECT_EQ(Dlg_MarkSelect(PtrnWnd), 300);
}

TEST_F(Keyboard, TheArrowsAndSpaceDrawAMark) {
  EXPECT_EQ(DrawnWith({GDK_KEY_Right, GDK_KEY_Right, GDK_KEY_Down, GDK_KEY_space}, 2, 1), 1);
  EXPECT_EQ(DrawnWith({GDK_KEY_Right, GDK_KEY_Right, GDK_KEY_Down, GDK_KEY_space}, 2, 1), 0);
}

TEST_F(Keyboard, TheArrowsStayInTheMark) {
  EXPECT_EQ(DrawnWith({GDK_KEY_Left, GDK_KEY_Up, GDK_KEY_space}, 0, 0), 1);
  const DialogAnswer answer(MarkDialog, [](GtkWidget* editor) {
    WaitForKeyboard(editor);
    for (gint i = 0; i < 20; i++) PressKey(editor, GDK_KEY_Right);
    for (gint i = 0; i < 40; i++) PressKey(editor, GDK_KEY_Down);
    PressKey(editor, GDK_KEY_space);
    PressButton("設定")(editor);
  });
  EXPECT_EQ(MakeMarkData(PtrnWnd, 7, Boxes.data()), 1);
  EXPECT_EQ(MarkDataGet(7, &Boxes[7].mark, 15, 31), 1);
}

TEST_F(Keyboard, TheCursorOfALargeMarkIsScrolledIntoSight) {
  const LowScreen low(600);
  const DialogAnswer answer(MarkDialog, [](GtkWidget* editor) {
    WaitForKeyboard(editor);
    GtkWidget* view = Focus(editor);
    GtkWidget* port = gtk_widget_get_ancestor(view, GTK_TYPE_VIEWPORT);
    ASSERT_NE(port, nullptr) << "all of it has room";
    // Whether the pixel's place in the view, 8 dots for each, lies in the part that is seen.
    const auto seen = [&](gint pixel) {
      gint y = 0;
      gtk_widget_translate_coordinates(view, port, 0, pixel * 8, nullptr, &y);
      return y >= 0 && y + 8 <= gtk_widget_get_allocated_height(port);
    };
    EXPECT_TRUE(WaitFor([&] { return seen(0); }));
    EXPECT_FALSE(seen(63));
    for (gint i = 0; i < 63; i++) PressKey(editor, GDK_KEY_Down);
    EXPECT_TRUE(WaitFor([&] { return seen(63); }));
    // Looked for elsewhere, it comes back with the keyboard and with a key.
    GtkAdjustment* place = gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(port));
    gtk_adjustment_set_value(place, 0);
    EXPECT_FALSE(seen(63));
    PressKey(editor, GDK_KEY_Tab);
    gtk_widget_grab_focus(view);
    EXPECT_TRUE(WaitFor([&] { return seen(63); }));
    gtk_adjustment_set_value(place, 0);
    PressKey(editor, GDK_KEY_space);
    EXPECT_TRUE(WaitFor([&] { return seen(63); }));
    for (gint i = 0; i < 63; i++) PressKey(editor, GDK_KEY_Up);
    EXPECT_TRUE(WaitFor([&] { return seen(0); }));
    CloseByManager(editor);
  });
  MakeMarkData(PtrnWnd, 349, Boxes.data());
}
