// Rules about bitmaps and marks.
#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

PTRNDATA Bitmap(const char* name) {
  PTRNDATA item = CheckedItem(TypeBitmap, 10, 10, 50, 50);
  std::strcpy(item.Text1, name);
  return item;
}

TEST(CheckPictureTest, BitmapItems) {
  EXPECT_THAT(Found(ProjectWith({Bitmap("good.png")})), IsEmpty());
  EXPECT_THAT(Found(ProjectWith({Bitmap("none.png")})), ElementsAre("bitmap-missing Main 0 Text1"));
  EXPECT_THAT(Found(ProjectWith({Bitmap("")})), ElementsAre("bitmap-missing Main 0 Text1"));
  EXPECT_THAT(Found(ProjectWith({Bitmap("broken.png")})),
              ElementsAre("bitmap-unreadable Main 0 Text1"));
}

TEST(CheckPictureTest, PicturesOfTheLayout) {
  CheckedProject project = PlainProject();
  PTRNHEDR& header = project.Layouts[0].Header;
  std::strcpy(header.LogoName, "none.png");
  EXPECT_THAT(Found(project), IsEmpty()) << "a logo that is not shown";
  header.Parm1[HedrSlot::LogoShown] = 1;
  EXPECT_THAT(Found(project), ElementsAre("bitmap-missing Main - LogoName"));
  std::strcpy(header.LogoName, "good.png");
  std::strcpy(header.BmapName, "broken.png");
  EXPECT_THAT(Found(project), ElementsAre("bitmap-unreadable Main - BmapName"));
}

TEST(CheckPictureTest, MarksOfTheColourSystemsInUse) {
  EXPECT_THAT(Found(ProjectWith({Mark(7, 7, 0)})), IsEmpty()) << "two systems only";
  EXPECT_THAT(Found(ProjectWith({Mark(7, 8, 7)})), ElementsAre("mark-empty Main 0 Mark"));
  EXPECT_THAT(Found(ProjectWith({Mark(7, 350, 7)})), ElementsAre("mark-empty Main 0 Mark"));
  EXPECT_THAT(Found(ProjectWith({Mark(-1, 7, 7)})), ElementsAre("mark-empty Main 0 Mark"));
  CheckedProject project = ProjectWith({Mark(7, 7, 0)});
  project.Settings.Parm1[2] = 1;
  EXPECT_THAT(Found(project), ElementsAre("mark-empty Main 0 Mark")) << "told once per mark";
}

}  // namespace
