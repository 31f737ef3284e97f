// Rules about bitmaps and marks.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

PTRNDATA Bitmap(const char* name) {
  PTRNDATA item = CheckedItem(TypeBitmap, 10, 10, 50, 50);
  std::strcpy(item.Text1, name);
  return item;
}

// The plain project with a logo and a background.
CheckedProject ProjectOfPictures(const char* logo, bool shown, const char* background) {
  CheckedProject project = PlainProject();
  PTRNHEDR& header = project.Layouts[0].Header;
  std::strcpy(header.LogoName, logo);
  header.Parm1[HedrSlot::LogoShown] = shown ? 1 : 0;
  std::strcpy(header.BmapName, background);
  return project;
}

TEST(CheckPictureTest, BitmapThatIsMissing) {
  for (const char* name : {"none.png", ""}) {
    EXPECT_THAT(Found("bitmap-missing", ProjectWith({Bitmap(name)})), ElementsAre("Main 0 Text1"))
        << name;
  }
  for (const char* name : {"good.png", "broken.png"}) {
    EXPECT_THAT(Found("bitmap-missing", ProjectWith({Bitmap(name)})), IsEmpty()) << name;
  }
  EXPECT_THAT(Found("bitmap-missing", ProjectOfPictures("none.png", false, "good.png")), IsEmpty())
      << "a logo that is not shown";
  EXPECT_THAT(Found("bitmap-missing", ProjectOfPictures("none.png", true, "broken.png")),
              ElementsAre("Main - LogoName"));
  EXPECT_THAT(Found("bitmap-missing", ProjectOfPictures("good.png", true, "none.png")),
              ElementsAre("Main - BmapName"));
}

TEST(CheckPictureTest, BitmapThatCannotBeRead) {
  EXPECT_THAT(Found("bitmap-unreadable", ProjectWith({Bitmap("broken.png")})),
              ElementsAre("Main 0 Text1"));
  for (const char* name : {"good.png", "none.png", ""}) {
    EXPECT_THAT(Found("bitmap-unreadable", ProjectWith({Bitmap(name)})), IsEmpty()) << name;
  }
  EXPECT_THAT(Found("bitmap-unreadable", ProjectOfPictures("broken.png", false, "none.png")),
              IsEmpty())
      << "a logo that is not shown";
  EXPECT_THAT(Found("bitmap-unreadable", ProjectOfPictures("broken.png", true, "none.png")),
              ElementsAre("Main - LogoName"));
  EXPECT_THAT(Found("bitmap-unreadable", ProjectOfPictures("none.png", true, "broken.png")),
              ElementsAre("Main - BmapName"));
}

TEST(CheckPictureTest, MarksOfTheColourSystemsInUse) {
  EXPECT_THAT(Found("mark-empty", ProjectWith({Mark(7, 7, 0)})), IsEmpty()) << "two systems only";
  EXPECT_THAT(Found("mark-empty", ProjectWith({Mark(7, 8, 7)})), ElementsAre("Main 0 Mark"));
  EXPECT_THAT(Found("mark-empty", ProjectWith({Mark(7, 350, 7)})), ElementsAre("Main 0 Mark"));
  EXPECT_THAT(Found("mark-empty", ProjectWith({Mark(-1, 7, 7)})), ElementsAre("Main 0 Mark"));
  CheckedProject project = ProjectWith({Mark(7, 7, 0)});
  project.Settings.Parm1[2] = 1;
  EXPECT_THAT(Found("mark-empty", project), ElementsAre("Main 0 Mark")) << "told once per mark";
}

}  // namespace
