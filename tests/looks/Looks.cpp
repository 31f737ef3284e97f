#include "tests/looks/Looks.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "Constant.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "dialogs/ToolBox.h"
#include "support/Text.h"
#include "tests/looks/Rules.h"
#include "tests/tools/Tool.h"

namespace {

namespace fs = std::filesystem;

// Where a sample is picked, counted from its first point: on outlines beside the handles, inside
// texts.
constexpr POINT Grip[] = {{0, 0}, {24, 0}, {60, 24}, {24, 0}, {134, 11}, {24, 0}, {8, 8},  {8, 8},
                          {8, 8}, {24, 0}, {8, 8},   {8, 8},  {24, 0},   {8, 0},  {24, 0}, {8, 0}};

std::string ReadText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// What a user's folders hold: projects that are known and pictures.
void FillHome(const fs::path& home, const fs::path& program) {
  for (const char* name :
       {"Pictures", "Projects/Logic", "Projects/PumpStation", "Projects/WaterWorks"}) {
    fs::create_directories(home / name);
  }
  fs::copy_file(program / "Sample/WaterWorks.prj", home / "Projects/WaterWorks/WaterWorks.prj",
                fs::copy_options::overwrite_existing);
  fs::copy_file(program / "Sample/WaterWorks.prj",
                home / "Projects/PumpStation" / (EucFromUtf8("ポンプ場").value() + ".prj"),
                fs::copy_options::overwrite_existing);
  for (const auto& picture : fs::directory_iterator(program / "Sample/Bitmap")) {
    fs::copy_file(picture.path(), home / "Pictures" / picture.path().filename(),
                  fs::copy_options::overwrite_existing);
  }
}

// Pictures name no folder of the machine that makes them.
void NameFolders(const fs::path& home, const fs::path& program) {
  std::string text = ReadText(program / "VarnixMaster.ini");
  const auto replace = [&text](const std::string& key, const std::string& value) {
    const std::size_t at = text.find("\n" + key + "=") + 1;
    text.replace(at, text.find('\n', at) - at, key + "=" + value);
  };
  const std::string projects = (home / "Projects").string();
  replace("WINDOW", "900,720");
  replace("PROJNAME0", "WaterWorks," + projects + "/WaterWorks\nPROJNAME1=" +
                           EucFromUtf8("ポンプ場").value() + "," + projects + "/PumpStation");
  std::ofstream(program / "VarnixMaster.ini", std::ios::binary | std::ios::trunc) << text;
}

}  // namespace

LooksTest::LooksTest() {
  // Pictures show no half-way looks.
  g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
  const gchar* dpi = std::getenv("VARNIX_DPI");
  if (dpi != nullptr) {
    g_object_set(gtk_settings_get_default(), "gtk-xft-dpi", std::atoi(dpi) * 1024, nullptr);
  }
  if (!KeepsPictures()) setenv("HOME", home_.Path().c_str(), 1);
  const fs::path home = std::getenv("HOME");
  FillHome(home, Folder.Path());
  NameFolders(home, Folder.Path());
  const std::string samples = Folder.Path() + "/Sample/" + EucFromUtf8("見本").value() + ".ptn";
  const ToolRun build = RunTool({"build", TEST_SOURCE_DIR "/tests/looks/samples.json", samples});
  EXPECT_EQ(build.Code, 0) << build.Err;
  for (POINT& place : ToolBox_PointData) place = {0, 0};
}

void LooksTest::OpenLayout(const std::string& name) {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトを開く"});
  const Panel dialog("レイアウトを開く");
  ClickRow(dialog.Window(), name);
  dialog.Press(" 開く ");
  EXPECT_TRUE(See([&] {
    return PtrnFlag != 0 && DisplayText(PtrnName) == name &&
           gtk_widget_get_allocated_width(PtrnDraw) >= PtrnDraw_Size2.cx;
  })) << name;
  Settle();
}

GtkWidget* LooksTest::PickSample(gint type) {
  const POINT at = Look([type] {
    for (gint no = 0; no < GetPtrnCount(); ++no) {
      const PTRNDATA* item = ViewPtrnData(no);
      if (item->Type == type) {
        return POINT{item->Parm[ItemSlot::X1] + Grip[type].x,
                     item->Parm[ItemSlot::Y1] + Grip[type].y};
      }
    }
    return POINT{-1, -1};
  });
  ClickCanvas(at.x, at.y);
  GtkWidget* panel = SeeWindow(PtrnTypeList[type - 1]);
  EXPECT_NE(panel, nullptr) << PtrnTypeList[type - 1];
  return panel;
}
