// Two programs at once, in one program folder and on one project.
#include <gtest/gtest.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/window/Program.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

namespace fs = std::filesystem;

constexpr const gchar* ProjectTitle = "レイアウト作成  \\[WaterWorks\\]";
constexpr const gchar* ParentTitle = "レイアウト情報の設定［親ウィンドウ］";
constexpr const gchar* ChildTitle = "レイアウト情報の設定［子ウィンドウ］";

class TwoPrograms : public WindowTest {
 protected:
  TwoPrograms() {
    fs::create_directory(Kept);
    for (const fs::directory_entry& entry : fs::directory_iterator(Sample)) {
      if (entry.path().extension() == ".ptn") fs::rename(entry, Kept / entry.path().filename());
    }
  }
  fs::path LayoutFile(const std::string& name) const {
    return Sample / (EucFromUtf8(name).value() + ".ptn");
  }

  // Opens a layout of the project in a program, with the keyboard, while it is the only one there.
  void Open(const RunningProgram& program, const std::string& name) const {
    const fs::path file = LayoutFile(name);
    fs::rename(Kept / file.filename(), file);
    ASSERT_TRUE(program.Activate(ProjectTitle));
    PressKeys({"ctrl+o"});
    ASSERT_TRUE(program.Activate("レイアウトを開く"));
    OpenFirstOfList();
    ASSERT_TRUE(program.Activate(OpenTitle(name)));
    fs::rename(file, Kept / file.filename());
  }
  static std::string OpenTitle(const std::string& name) {
    return "レイアウト作成  \\[WaterWorks / " + name + "\\]";
  }
  // Types a number into the height of the title area, two controls before the title, where the
  // layout settings begin.
  static void SetTitleHeight(const RunningProgram& program, const std::string& name,
                             const gchar* settings, const std::vector<std::string>& digits) {
    ASSERT_TRUE(program.Activate(OpenTitle(name)));
    PressKeys({"ctrl+i"});
    ASSERT_TRUE(program.Activate(settings));
    PressKeys({"shift+Tab", "shift+Tab", "ctrl+a"});
    PressKeys(digits);
    PressKeys({"Return"});
    ASSERT_TRUE(program.Activate(OpenTitle(name)));
  }
  static PTRNHEDR Header(const fs::path& file) {
    PTRNHEDR header{};
    FileRead(file.parent_path().c_str(), file.filename().c_str(), "", &header, sizeof header, 0);
    return header;
  }
  fs::path Slot(const RunningProgram& program, gint number) const {
    return fs::path(Folder.Path()) / "save" /
           ("PtrnSave" + std::to_string(program.Process()) + "_" + std::to_string(number) + ".ptn");
  }

  ProgramFolder Folder;
  const fs::path Sample = fs::path(Folder.Path()) / "Sample";
  const fs::path Kept = fs::path(Folder.Path()) / "kept";
};

TEST_F(TwoPrograms, KeepTheirStepsBackAndTheProfileApart) {
  const std::string profile = Folder.Profile();
  RunningProgram first(Folder);
  ASSERT_TRUE(first.Activate(ProjectTitle));
  RunningProgram second(Folder);
  ASSERT_TRUE(second.Activate(ProjectTitle));
  Open(first, "全体監視");
  Open(second, "終了確認");

  SetTitleHeight(first, "全体監視", ParentTitle, {"3", "3"});
  SetTitleHeight(second, "終了確認", ChildTitle, {"4", "1"});
  SetTitleHeight(first, "全体監視", ParentTitle, {"3", "4"});
  ASSERT_TRUE(WaitFor([&] { return fs::exists(Slot(first, 1)); }));
  EXPECT_EQ(+Header(Slot(first, 0)).Parm1[8], 40);
  EXPECT_EQ(+Header(Slot(first, 1)).Parm1[8], 33);
  EXPECT_EQ(+Header(Slot(second, 0)).Parm1[8], 32);
  EXPECT_FALSE(fs::exists(Slot(second, 1)));

  // Saving ends the second's steps back, and only those.
  ASSERT_TRUE(second.Activate(OpenTitle("終了確認")));
  PressKeys({"ctrl+s"});
  ASSERT_TRUE(WaitFor([&] { return fs::exists(LayoutFile("終了確認")); }));
  ASSERT_TRUE(WaitFor([&] { return !fs::exists(Slot(second, 0)); }));
  EXPECT_EQ(+Header(LayoutFile("終了確認")).Parm1[8], 41);
  EXPECT_TRUE(fs::exists(Slot(first, 0)));
  EXPECT_TRUE(fs::exists(Slot(first, 1)));

  PressKeys({"ctrl+q"});
  EXPECT_EQ(second.Wait(), 0);
  ASSERT_TRUE(first.Activate(OpenTitle("全体監視")));
  PressKeys({"ctrl+z", "ctrl+s"});
  ASSERT_TRUE(WaitFor([&] { return fs::exists(LayoutFile("全体監視")); }));
  EXPECT_EQ(+Header(LayoutFile("全体監視")).Parm1[8], 33);
  PressKeys({"ctrl+q"});
  EXPECT_EQ(first.Wait(), 0);

  EXPECT_EQ(first.Complaints(), "");
  EXPECT_EQ(second.Complaints(), "");
  // Both opened the project that was current and left windows of the same size.
  EXPECT_EQ(Folder.Profile(), profile);
}

}  // namespace
