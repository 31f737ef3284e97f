#include "tests/road/ProjectHands.h"

#include <gtest/gtest.h>

#include "tests/road/User.h"
#include "tests/window/Widgets.h"

namespace {

constexpr const gchar* ColourTitle = "表示色作成";
constexpr const gchar* MakeFolderTitle = "フォルダー選択";
constexpr const gchar* ErrorTitle = "入力エラー";

bool IsTextEntry(GtkWidget* widget) {
  return GTK_IS_ENTRY(widget) && !GTK_IS_SPIN_BUTTON(widget) && gtk_widget_get_mapped(widget);
}

// Colours stand in columns of ten, marks in rows of ten.
constexpr gint Tens = 10;

GtkWidget* GridChild(GtkWidget* window, gint row, gint column) {
  GtkWidget* grid = FindKind(window, GTK_TYPE_GRID);
  return gtk_grid_get_child_at(GTK_GRID(grid), column, row);
}

GtkWidget* SeeTextEntry(GtkWidget* window) {
  EXPECT_TRUE(See([&] { return FindWidget(window, IsTextEntry) != nullptr; })) << "no entry";
  return Look([&] { return FindWidget(window, IsTextEntry); });
}

}  // namespace

void TypeNewFolder(const std::string& title, const std::string& path) {
  const Panel chooser(title);
  EnterText(SeeTextEntry(chooser.Window()), path);
  chooser.Press(" 選択 ");
  Panel(MakeFolderTitle).Press(" はい ");
  EXPECT_TRUE(SeeGone(title));
}

void PickFolder(const std::string& title, const std::string& folder) {
  const Panel chooser(title);
  ClickRow(chooser.Window(), folder);
  chooser.Press(" 選択 ");
  EXPECT_TRUE(SeeGone(title));
}

void PickFile(const std::string& title, const std::string& folder, const std::string& file) {
  PickFileIn(SeeWindow(title), folder, file);
  EXPECT_TRUE(SeeGone(title));
}

void PickFileIn(GtkWidget* chooser, const std::string& folder, const std::string& file) {
  ASSERT_NE(chooser, nullptr) << "no chooser";
  ClickRow(chooser, folder);
  ClickRow(chooser, file);
  GtkWidget* choose = Look([&] { return FindLabel(chooser, " 選択 "); });
  EXPECT_TRUE(See([&] { return gtk_widget_is_sensitive(choose) != FALSE; }));
  Click(choose);
}

GtkWidget* SeeOther(const std::string& title, GtkWidget* first) {
  const auto other = [&] {
    GtkWidget* found = nullptr;
    GList* windows = gtk_window_list_toplevels();
    for (GList* link = windows; link != nullptr; link = link->next) {
      if (link->data != first && gtk_widget_get_mapped(GTK_WIDGET(link->data)) &&
          g_strcmp0(gtk_window_get_title(GTK_WINDOW(link->data)), title.c_str()) == 0) {
        found = GTK_WIDGET(link->data);
      }
    }
    g_list_free(windows);
    return found;
  };
  EXPECT_TRUE(See([&] { return other() != nullptr; })) << title;
  return Look(other);
}

GtkWidget* SwatchOf(const Panel& palette, gint number) {
  return Look([&] { return GridChild(palette.Window(), number % Tens, number / Tens); });
}

GtkWidget* MarkSwatchOf(const Panel& marks, gint number) {
  return Look([&] { return GridChild(marks.Window(), number / Tens, number % Tens); });
}

void MakeColour(const Panel& palette, gint number, const std::string& colour) {
  Click(SwatchOf(palette, number));
  const Panel dialog(ColourTitle);
  EnterText(SeeTextEntry(dialog.Window()), colour);
  PressKey(GDK_KEY_Tab);
  ConfirmColour();
}

void ConfirmColour() {
  const Panel dialog(ColourTitle);
  Click(Look([&] {
    return gtk_dialog_get_widget_for_response(GTK_DIALOG(dialog.Window()), GTK_RESPONSE_OK);
  }));
  EXPECT_TRUE(SeeGone(ColourTitle));
}

GtkWidget* EnlargedMark(GtkWidget* editor, SIZE mark) {
  return FindWidget(editor, [=](GtkWidget* widget) {
    SIZE request{0, 0};
    gtk_widget_get_size_request(widget, &request.cx, &request.cy);
    return GTK_IS_DRAWING_AREA(widget) && request.cx == mark.cx * 8 + 2 &&
           request.cy == mark.cy * 8 + 2;
  });
}

void RefuseInput(const std::string& message) {
  const Panel box(ErrorTitle);
  EXPECT_NE(Look([&] { return FindLabel(box.Window(), message); }), nullptr) << message;
  box.Press(" 確認 ");
  EXPECT_TRUE(SeeGone(ErrorTitle));
}
