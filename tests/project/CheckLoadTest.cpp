// The files of a project as the rules see them.
#include <gmock/gmock.h>

#include "layout/ItemSlots.h"
#include "layout/Registry.h"
#include "project/check/Check.h"
#include "support/Resource.h"
#include "tests/project/ProjectFixture.h"

using testing::ElementsAre;

namespace {

class CheckLoadTest : public ProjectFixture {};

TEST_F(CheckLoadTest, ReadsWhatIsThereAndLeavesTheStoreEmpty) {
  PTRNHEDR header{};
  header.Parm1[HedrSlot::Width] = 321;
  WriteLayout("B", header, {{"FLOW", 3}, {"LEVEL", 0}});
  WriteLayout("A", header, {});
  folder_.Write("project/C.ptn", "short");
  folder_.Write("project/PtrnColr", Bytes().Ints({1, 2, 3}).Zeros(1188).Str());
  folder_.Write("project/PtrnMark",
                Bytes().Zeros(512 * 5 + 9).Raw("\x01").Zeros(512 * 345 - 10).Str());
  RegstPtrnCode("FLOW", 3);

  const CheckedProject project = LoadCheckedProject();
  EXPECT_EQ(project.Name, "Plant");
  ASSERT_EQ(project.Layouts.size(), 2u);
  EXPECT_EQ(project.Layouts[0].Name, "A");
  EXPECT_EQ(project.Layouts[0].Items.size(), 0u);
  EXPECT_EQ(project.Layouts[1].Name, "B");
  EXPECT_EQ(project.Layouts[1].Header.Parm1[HedrSlot::Width], 321);
  ASSERT_EQ(project.Layouts[1].Items.size(), 2u);
  EXPECT_STREQ(project.Layouts[1].Items[1].ID_Code, "LEVEL");
  EXPECT_THAT(project.Unreadable, ElementsAre("C"));
  ASSERT_EQ(project.Registry.size(), 2u);
  EXPECT_STREQ(project.Registry[1].ID_Code, "FLOW");
  EXPECT_EQ(project.Palette[0].blue, 3);
  EXPECT_TRUE(project.MarkDrawn[5]);
  EXPECT_FALSE(project.MarkDrawn[4]);

  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 0);
}

TEST_F(CheckLoadTest, CountsItemsOfUnknownType) {
  const Bytes file = Bytes().Int(1001).Zeros(450).Ints({1, 5, 0}).Int(16).Zeros(132).Zeros(5);
  folder_.Write("project/Odd.ptn", file.Str());
  const CheckedProject project = LoadCheckedProject();
  ASSERT_EQ(project.Layouts.size(), 1u);
  EXPECT_EQ(project.Layouts[0].Dropped, 1);
}

TEST_F(CheckLoadTest, MissingResourcesAreEmpty) {
  const CheckedProject project = LoadCheckedProject();
  EXPECT_EQ(project.Palette[99].red, 0);
  EXPECT_FALSE(project.MarkDrawn[0]);
  EXPECT_TRUE(project.Registry.empty());
  EXPECT_FALSE(folder_.Exists("project/PtrnCode"));
}

TEST_F(CheckLoadTest, PicturesOfTheBitmapFolder) {
  std::strcpy(BmapPath, (folder_.Path("project") + "/Bitmap").c_str());
  folder_.Write("project/Bitmap/bad.png", "no picture");
  folder_.Write("project/Bitmap/dot.xpm",
                "/* XPM */\nstatic char* dot[] = {\n\"1 1 1 1\",\n\"x c #ff0000\",\n\"x\"};\n");
  const CheckSurroundings surroundings = ProjectSurroundings();
  EXPECT_EQ(surroundings.Picture("none.png"), PictureState::Missing);
  EXPECT_EQ(surroundings.Picture("bad.png"), PictureState::Unreadable);
  EXPECT_EQ(surroundings.Picture("dot.xpm"), PictureState::Good);
  BmapPath[0] = '\0';
}

}  // namespace
