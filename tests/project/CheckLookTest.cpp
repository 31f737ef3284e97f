// Rules about the common look of a project's layouts.
#include <gmock/gmock.h>

#include "tests/project/CheckFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(CheckLookTest, LayoutThatFollowsTheLook) {
  CheckedProject project = PlainProject();
  project.Settings.Parm4[3] = 4;
  EXPECT_THAT(Found("look-differs", project), ElementsAre("Main - GridX"));
  project.Layouts[0].Header.Parm2[ViewSlot::GridX] = 4;
  EXPECT_THAT(Found("look-differs", project), IsEmpty());
}

TEST(CheckLookTest, ParentWindowAndItsLogo) {
  CheckedProject project = PlainProject();
  PTRNHEDR& header = project.Layouts[0].Header;
  header.Parm1[HedrSlot::Kind] = 0;
  project.Settings.Parm2[11] = White;
  std::strcpy(project.Settings.LogoName, "good.png");
  EXPECT_THAT(Found("look-differs", project),
              ElementsAre("Main - Width", "Main - Height", "Main - LogoName"));
  header.Parm1[HedrSlot::KeepAsIs] = 1;
  EXPECT_THAT(Found("look-differs", project), IsEmpty()) << "it does not follow";
}

}  // namespace
