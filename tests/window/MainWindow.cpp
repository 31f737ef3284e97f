#include <gtest/gtest.h>
#include <unistd.h>

#include <climits>
#include <filesystem>

#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

class MainWindow : public WindowTest {};

SIZE Allocated(GtkWidget* widget) {
  return {gtk_widget_get_allocated_width(widget), gtk_widget_get_allocated_height(widget)};
}

std::string Title() {
  return gtk_window_get_title(GTK_WINDOW(PtrnWnd));
}

std::string ProfileWindow() {
  gint width = 0;
  gint height = 0;
  ProfileRead1("", "PROJECT", "WINDOW", "ii", &width, &height);
  return std::to_string(width) + "," + std::to_string(height);
}

// What the window manager sends when its close button is pressed.
void CloseByManager() {
  gtk_window_close(GTK_WINDOW(PtrnWnd));
  while (gtk_events_pending()) gtk_main_iteration();
}

TEST_F(MainWindow, OpensAt800By600WithoutASavedSize) {
  OpenWindow();
  EXPECT_EQ(gint{Allocated(PtrnWnd).cx}, 800);
  EXPECT_EQ(gint{Allocated(PtrnWnd).cy}, 600);
}

TEST_F(MainWindow, GivesEveryWindowTheProgramsIcon) {
  std::filesystem::copy(TEST_SOURCE_DIR "/data/artwork/icon/VarnixMaster.png", Program.Path());
  OpenWindow();
  GList* icons = gtk_window_get_default_icon_list();
  ASSERT_EQ(g_list_length(icons), 1U);
  EXPECT_EQ(gdk_pixbuf_get_width(GDK_PIXBUF(icons->data)), 128);
  g_list_free(icons);
  // A window without an icon of its own takes that one.
  Dlg_ToolBox(PtrnWnd, 2);
  for (GtkWidget* window : {PtrnWnd, ToolBox}) {
    EXPECT_EQ(gtk_window_get_icon(GTK_WINDOW(window)), nullptr);
  }
  gtk_window_set_default_icon_list(nullptr);
}

TEST_F(MainWindow, OpensInItsSavedSize) {
  WriteProfile("[PROJECT]\nWINDOW=1010,707\n");
  OpenWindow();
  EXPECT_EQ(gint{Allocated(PtrnWnd).cx}, 1010);
  EXPECT_EQ(gint{Allocated(PtrnWnd).cy}, 707);
}

TEST_F(MainWindow, ASavedSizeThatNoDisplayHasCountsAsMissing) {
  for (const char* size : {"0,700", "900,0", "900", "-5,700", "99999999,700"}) {
    WriteProfile("[PROJECT]\nWINDOW=" + std::string(size) + "\n");
    CreateMainWindow();
    gint width = 0;
    gint height = 0;
    gtk_window_get_default_size(GTK_WINDOW(PtrnWnd), &width, &height);
    EXPECT_EQ(width, 800) << size;
    EXPECT_EQ(height, 600) << size;
    gtk_widget_destroy(PtrnWnd);
  }
}

TEST_F(MainWindow, StandsInTheMiddleOfTheScreen) {
  OpenWindow();
  GdkRectangle frame{};
  gdk_window_get_frame_extents(gtk_widget_get_window(PtrnWnd), &frame);
  EXPECT_NEAR(frame.x + frame.width / 2, 1600 / 2, 20);
  EXPECT_NEAR(frame.y + frame.height / 2, 1200 / 2, 20);
}

TEST_F(MainWindow, HoldsTheMenuBarAboveTheCanvas) {
  OpenWindow();
  gint barY = -1;
  gint canvasY = -1;
  gint x = -1;
  gtk_widget_translate_coordinates(MenuBar(), PtrnWnd, 0, 0, &x, &barY);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(barY, 0);
  gtk_widget_translate_coordinates(PtrnDraw, PtrnWnd, 0, 0, &x, &canvasY);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(canvasY, gint{Allocated(MenuBar()).cy});
  EXPECT_EQ(gint{Allocated(PtrnDraw).cx}, 800);
  EXPECT_EQ(gint{Allocated(PtrnDraw).cy}, 600 - Allocated(MenuBar()).cy);
}

TEST_F(MainWindow, TitleNamesProjectAndLayout) {
  CreateMainWindow();
  EXPECT_EQ(Title(), "レイアウト作成");
  SetWindTitle("Plant", "");
  EXPECT_EQ(Title(), "レイアウト作成  [Plant]");
  SetWindTitle("Plant", "\xb4\xc6\xbb\xeb");
  EXPECT_EQ(Title(), "レイアウト作成  [Plant / 監視]");
  SetWindTitle("", "Main");
  EXPECT_EQ(Title(), "レイアウト作成");
}

TEST_F(MainWindow, TitleIsCutAt179BytesOfTheRecordsEncoding) {
  CreateMainWindow();
  // 14 + 3 + 81 + 3 leave 78 bytes: 39 characters of two bytes.
  std::string layout;
  std::string shown;
  for (int i = 0; i < 40; i++) {
    layout += "\xb4\xc6";
    if (i < 39) shown += "監";
  }
  SetWindTitle(std::string(81, 'p').c_str(), (layout + "x").c_str());
  EXPECT_EQ(Title(), "レイアウト作成  [" + std::string(81, 'p') + " / " + shown);
}

TEST_F(MainWindow, TitleShowsNamesThatAreNoText) {
  CreateMainWindow();
  SetWindTitle("a\xff", "");
  EXPECT_EQ(Title(), "レイアウト作成  [a\\xFF]");
}

TEST_F(MainWindow, SavesItsSizeAtTheEnd) {
  OpenWindow();
  gtk_window_resize(GTK_WINDOW(PtrnWnd), 900, 650);
  ASSERT_TRUE(WaitFor([] { return Allocated(PtrnWnd).cx == 900; }));
  ExitVarnixMaster();
  EXPECT_EQ(ProfileWindow(), "900,650");
}

TEST_F(MainWindow, SavesItsSizeAfterItIsGone) {
  WriteProfile("[PROJECT]\nWINDOW=640,480\n");
  OpenWindow();
  gtk_window_resize(GTK_WINDOW(PtrnWnd), 910, 660);
  ASSERT_TRUE(WaitFor([] { return Allocated(PtrnWnd).cx == 910; }));
  CloseByManager();
  ASSERT_TRUE(WaitFor([] { return PtrnWnd == nullptr; }));
  ExitVarnixMaster();
  EXPECT_EQ(ProfileWindow(), "910,660");
}

TEST_F(MainWindow, ClosingEndsTheMainLoop) {
  OpenWindow();
  MainLoop = g_main_loop_new(nullptr, FALSE);
  gtk_window_close(GTK_WINDOW(PtrnWnd));
  g_main_loop_run(MainLoop);
  EXPECT_EQ(PtrnWnd, nullptr);
  EXPECT_EQ(PtrnDraw, nullptr);
  g_main_loop_unref(MainLoop);
  MainLoop = nullptr;
}

TEST_F(MainWindow, AnOpenToolBoxRefusesTheClose) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  ASSERT_NE(ToolBox, nullptr);
  CloseByManager();
  EXPECT_NE(PtrnWnd, nullptr);
  EXPECT_NE(ToolBox, nullptr);
  EXPECT_EQ(Delete_Event(PtrnWnd, nullptr, nullptr), TRUE);
}

TEST_F(MainWindow, ARefusedCloseRaisesTheToolBox) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  ASSERT_TRUE(WaitFor([] { return gtk_window_is_active(GTK_WINDOW(PtrnWnd)) != FALSE; }));
  CloseByManager();
  EXPECT_TRUE(WaitFor([] { return gtk_window_is_active(GTK_WINDOW(ToolBox)) != FALSE; }));
  EXPECT_EQ(PtrnType, TypeRectangle);
}

TEST_F(MainWindow, ARefusedCloseBringsAMinimisedToolBoxBack) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  PtrnType = TypeRectangle;
  DispToolBox(0, TypeRectangle);
  const auto minimised = [] {
    GdkWindow* panel = gtk_widget_get_window(ToolBox);
    return (gdk_window_get_state(panel) & GDK_WINDOW_STATE_ICONIFIED) != 0;
  };
  ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
  gtk_window_iconify(GTK_WINDOW(ToolBox));
  ASSERT_TRUE(WaitFor(minimised));
  CloseByManager();
  EXPECT_TRUE(WaitFor([&] { return !minimised(); }));
}

TEST_F(MainWindow, DestroyingItTakesTheToolBoxAlong) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  DispToolBox(0, TypeLine);
  ASSERT_NE(ToolBox, nullptr);
  gtk_widget_destroy(PtrnWnd);
  EXPECT_EQ(ToolBox, nullptr);
  EXPECT_EQ(PtrnWnd, nullptr);
}

TEST_F(MainWindow, CancellingTheSaveQuestionKeepsTheWindow) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  PtrnFlag = 2;
  {
    const DialogAnswer answer("レイアウトデータ保存確認",
                              [](GtkWidget* box) { gtk_window_close(GTK_WINDOW(box)); });
    EXPECT_EQ(Delete_Event(PtrnWnd, nullptr, nullptr), TRUE);
  }
  EXPECT_NE(PtrnWnd, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
}

TEST_F(MainWindow, DiscardingTheChangesLetsItClose) {
  OpenWindow();
  ShowLayout(400, 300, 2);
  PtrnFlag = 2;
  const DialogAnswer answer("レイアウトデータ保存確認", PressButton(" いいえ "));
  EXPECT_EQ(Delete_Event(PtrnWnd, nullptr, nullptr), FALSE);
  EXPECT_EQ(PtrnFlag, 0);
}

TEST_F(MainWindow, ProgramFolderComesFromTheCommand) {
  SetProgramFolder("/opt/varnix/VarnixMaster");
  EXPECT_STREQ(PathName, "/opt/varnix");
  SetProgramFolder("./VarnixMaster");
  EXPECT_STREQ(PathName, ".");
}

TEST_F(MainWindow, WithoutASlashTheRunningExecutableTells) {
  gchar executable[PATH_MAX] = "";
  ASSERT_GT(readlink("/proc/self/exe", executable, sizeof executable - 1), 0);
  const std::string path = executable;
  SetProgramFolder("VarnixMaster");
  EXPECT_EQ(PathName, path.substr(0, path.rfind('/')));
  PathName[0] = '\0';
  SetProgramFolder(nullptr);
  EXPECT_EQ(PathName, path.substr(0, path.rfind('/')));
}

}  // namespace
