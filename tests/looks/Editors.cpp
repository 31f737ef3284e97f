#include <gtest/gtest.h>

#include "PtrnData.h"
#include "tests/looks/Looks.h"

namespace {

class Editors : public LooksTest {};

// The swatch of a number in a dialog of ten columns or rows.
GtkWidget* Swatch(const std::string& title, gint left, gint top) {
  GtkWidget* window = SeeWindow(title);
  return Look([=] {
    GtkWidget* grid = FindKind(window, GTK_TYPE_GRID);
    return gtk_grid_get_child_at(GTK_GRID(grid), left, top);
  });
}

TEST_F(Editors, Palette) {
  Play([] {
    ChooseMenu(MenuBar(), {"編集", "表示色設定"});
    Show("palette", "表示色設定");
    Click(Swatch("表示色設定", 2, 1));
    ShowAndLeave("palette-colour", "表示色作成");
    EscapeFrom("表示色設定");
  });
}

TEST_F(Editors, Marks) {
  Play([] {
    ChooseMenu(MenuBar(), {"編集", "マーク設定"});
    Show("marks", "マーク設定");
    Click(Swatch("マーク設定", 1, 0));
    Show("mark-editor", "マーク作成");
    Panel("マーク作成").Press("参照");
    ShowAndLeave("mark-source", "マーク選択");
    EscapeFrom("マーク作成");
    EscapeFrom("マーク設定");
  });
}

TEST_F(Editors, LargestMark) {
  Play([] {
    ChooseMenu(MenuBar(), {"編集", "マーク設定"});
    GtkWidget* swatch = Swatch("マーク設定", 0, 34);
    Look([swatch] {
      GtkAdjustment* place = gtk_scrolled_window_get_vadjustment(
          GTK_SCROLLED_WINDOW(gtk_widget_get_ancestor(swatch, GTK_TYPE_SCROLLED_WINDOW)));
      gtk_adjustment_set_value(place, gtk_adjustment_get_upper(place));
    });
    Settle(SeeWindow("マーク設定"));
    Click(swatch);
    ShowAndLeave("mark-editor-large", "マーク作成");
    EscapeFrom("マーク設定");
  });
}

TEST_F(Editors, Pickers) {
  Play([this] {
    OpenSamples();
    PickSample(13);
    const Panel panel("マーク");
    Click(panel.Control({"前景色", 1}, GTK_TYPE_DRAWING_AREA));
    ShowAndLeave("palette-picker", "表示色選択");
    Click(panel.Control({"マーク", 1}, GTK_TYPE_DRAWING_AREA));
    ShowAndLeave("mark-picker", "マーク選択");
  });
}

}  // namespace
