#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "tests/window/PopUps.h"
#include "tests/window/Program.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

namespace fs = std::filesystem;

const std::string ProjectTitle = "レイアウト作成  [WaterWorks]";

PixbufPtr ScreenShot() {
  GdkWindow* root = gdk_get_default_root_window();
  return PixbufPtr(gdk_pixbuf_get_from_window(root, 0, 0, gdk_window_get_width(root),
                                              gdk_window_get_height(root)));
}

// The first pixel that differs from the corner; few places of a screen have its colour.
POINT Landmark(const Drawable& picture) {
  for (gint y = 0; y < picture.Height(); y++) {
    for (gint x = 0; x < picture.Width(); x++) {
      if (picture.At(x, y) != picture.At(0, 0)) return {x, y};
    }
  }
  return {0, 0};
}

// Where the screen shows the picture, whole and exact.
std::optional<POINT> FindOnScreen(const Drawable& picture) {
  const PixbufPtr shot = ScreenShot();
  const POINT mark = Landmark(picture);
  const gint right = gdk_pixbuf_get_width(shot.get()) - picture.Width();
  const gint bottom = gdk_pixbuf_get_height(shot.get()) - picture.Height();
  for (gint y = 0; y <= bottom; y++) {
    for (gint x = 0; x <= right; x++) {
      if (PixelAt(shot.get(), x + mark.x, y + mark.y) == picture.At(mark.x, mark.y) &&
          Shows(shot.get(), x, y, picture)) {
        return POINT{x, y};
      }
    }
  }
  return std::nullopt;
}

bool ScreenShows(const Drawable& picture) {
  return FindOnScreen(picture).has_value();
}

// The layout in the records as the core renders it.
std::unique_ptr<Drawable> RenderedLayout() {
  auto picture =
      std::make_unique<Drawable>(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
  DrawGc gc;
  DrawWindow1(picture.get(), &gc);
  return picture;
}

void MovePointer(gint x, gint y) {
  XDoTool({"mousemove", "--sync", std::to_string(x), std::to_string(y)});
}

// Opens a pop-up menu at the pointer and chooses the entry that so many presses of "Down" or "Up"
// lead to from none. The way must not pass a submenu: GTK leaks what it notes for opening one when
// the next key comes before it has opened.
void ChooseFromPopUp(const std::string& key, std::size_t presses) {
  const int before = ShownPopUps();
  XDoTool({"click", "3"});
  ASSERT_TRUE(WaitFor([&] { return ShownPopUps() > before; }));
  PressKeys(std::vector<std::string>(presses, key));
  PressKeys({"Return"});
}

// The program in its own process, its folder and records read by the test, too.
class RealProgram : public WindowTest {
 protected:
  RealProgram() {
    CopyText(PathName, Folder.Path());
    InitDrawData();
    ProjDataInit();
  }

  // Leaves one layout in the project, without a clock and shown at 100 %; opens it in the records.
  void KeepOneLayout(const std::string& name) {
    const std::string record = EucFromUtf8(name).value();
    for (const fs::directory_entry& entry : fs::directory_iterator(ProjPath)) {
      if (entry.path().extension() == ".ptn" && entry.path().stem() != record) {
        fs::remove(entry.path());
      }
    }
    IntPtrnData();
    ASSERT_EQ(PtrnFileRead(ProjPath, record.c_str()), 1);
    PtrnHedr.Parm1[HedrSlot::DateFormat] = 0;
    PtrnFileWrite(ProjPath, record.c_str());
    gint zoom = 2;
    ProfileWrite1("", "PTRNDATA", "ZOOM", "i", &zoom);
  }

  // Opens the only layout through the menu key and the dialog.
  void OpenOnlyLayout() {
    PressKeys({"ctrl+o"});
    ASSERT_TRUE(WaitForTitle("レイアウトを開く"));
    OpenFirstOfList();
  }

  ProgramFolder Folder;
};

TEST_F(RealProgram, ReopensTheLastProjectAndEndsByItsMenuKey) {
  RunningProgram program(Folder);
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  PressKeys({"ctrl+q"});
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_NE(Folder.Profile().find("WINDOW=1120,900"), std::string::npos);
}

// The settings of a project leave the main window usable.
TEST_F(RealProgram, EndsByItsMenuKeyBesideTheProjectSettings) {
  RunningProgram program(Folder);
  const std::string main = "レイアウト作成  \\[WaterWorks\\]";
  ASSERT_TRUE(program.Activate(main));
  PressKeys({"ctrl+shift+e"});
  ASSERT_TRUE(program.Activate("プロジェクトの新規作成"));
  ASSERT_TRUE(program.Activate(main));
  PressKeys({"ctrl+q"});
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_EQ(program.Complaints(), "");
}

TEST_F(RealProgram, EndsWhenTheWindowManagerClosesIt) {
  RunningProgram program(Folder);
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  PressKeys({"alt+F4"});
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_NE(Folder.Profile().find("WINDOW=1120,900"), std::string::npos);
}

TEST_F(RealProgram, ShowsTheStartPicture) {
  RunningProgram program(Folder);
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  // 20 % of the canvas's height, which is a little less than the window's.
  Drawable logo(1120 * 70 / 100, 100);
  DrawGc gc;
  EXPECT_TRUE(WaitFor([&] {
    for (gint height = 880; height > 850; height--) {
      FillPixels(&logo, 0, 0, logo.Width(), logo.Height(), 0xffffff);
      DrawBmap(&logo, &gc, 0, 0, logo.Width(), height * 20 / 100, -1, PathName, "VarnixMaster.bmp");
      if (ScreenShows(logo)) return true;
    }
    return false;
  }));
}

TEST_F(RealProgram, ShowsALayoutAsTheCoreRendersIt) {
  KeepOneLayout("全体監視");
  RunningProgram program(Folder);
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  OpenOnlyLayout();
  ASSERT_TRUE(WaitForTitle("レイアウト作成  [WaterWorks / 全体監視]"));
  const std::unique_ptr<Drawable> picture = RenderedLayout();
  EXPECT_TRUE(WaitFor([&] { return ScreenShows(*picture); }));
  PressKeys({"ctrl+q"});
  EXPECT_EQ(program.Wait(), 0);
}

TEST_F(RealProgram, DrawsRegistersAndSavesAnItem) {
  const std::string name = EucFromUtf8("終了確認").value();
  const std::string title = "レイアウト作成  [WaterWorks / 終了確認]";
  KeepOneLayout("終了確認");
  IntPtrnData();
  PtrnHedr.Parm2[ViewSlot::GridShown] = 0;
  PtrnHedr.Parm2[ViewSlot::GridX] = PtrnHedr.Parm2[ViewSlot::GridY] = 0;
  PtrnFileWrite(ProjPath, name.c_str());

  RunningProgram program(Folder);
  ASSERT_TRUE(WaitForTitle(ProjectTitle));
  OpenOnlyLayout();
  ASSERT_TRUE(WaitForTitle(title));
  const std::unique_ptr<Drawable> empty = RenderedLayout();
  std::optional<POINT> origin;
  ASSERT_TRUE(WaitFor([&] {
    origin = FindOnScreen(*empty);
    return origin.has_value();
  }));

  MovePointer(origin->x + 40, origin->y + 60);
  constexpr std::size_t RectangleFromEnd = 13;
  ChooseFromPopUp("Up", RectangleFromEnd);
  ASSERT_TRUE(WaitFor([] {
    return !XDoTool({"search", "--onlyvisible", "--name", "^矩形$"}).empty();
  }));
  XDoTool({"mousedown", "1"});
  MovePointer(origin->x + 180, origin->y + 130);
  MovePointer(origin->x + 240, origin->y + 200);
  XDoTool({"mouseup", "1"});
  constexpr std::size_t RegisterFromStart = 1;
  ChooseFromPopUp("Down", RegisterFromStart);
  // The tool box takes the keyboard from nobody.
  ASSERT_TRUE(WaitForTitle(title));
  PressKeys({"ctrl+s", "ctrl+q"});
  EXPECT_EQ(program.Wait(), 0);

  IntPtrnData();
  PtrnFileRead(ProjPath, name.c_str());
  ASSERT_EQ(GetPtrnCount(), 1);
  PTRNDATA item{};
  GetPtrnData(0, &item);
  EXPECT_EQ(gint{item.Type}, TypeRectangle);
  EXPECT_EQ(gint{item.Parm[ItemSlot::X1]}, 40);
  EXPECT_EQ(gint{item.Parm[ItemSlot::Y1]}, 60);
  EXPECT_EQ(gint{item.Parm[ItemSlot::X2]}, 240);
  EXPECT_EQ(gint{item.Parm[ItemSlot::Y2]}, 200);
}

TEST_F(RealProgram, SaysInOneLineThatThereIsNoDisplay) {
  RunningProgram program(Folder, ":9999");
  EXPECT_EQ(program.Wait(), 3);
  const std::string complaint = program.Complaints();
  EXPECT_EQ(std::count(complaint.begin(), complaint.end(), '\n'), 1) << complaint;
}

}  // namespace
