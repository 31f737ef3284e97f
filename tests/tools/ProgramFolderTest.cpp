// Filling the program folder by the build's scripts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/common/TempFolder.h"

namespace {

using testing::HasSubstr;
using testing::Not;

class ProgramFolder : public testing::Test {
 protected:
  std::string Command() const {
    return TEST_SOURCE_DIR "/data/fill-program-folder.sh --renew '" + folder_.Path("program") +
           "' '" + TEST_BUILD_DIR "/shipped' '" + folder_.Path("state") + "'";
  }
  void Fill() const { ASSERT_EQ(std::system(Command().c_str()), 0); }

  TempFolder folder_;
};

TEST_F(ProgramFolder, HoldsProfileTemplatesPicturesAndSample) {
  Fill();
  for (const char* file :
       {"VarnixMaster.ini", "VarnixMaster.bmp", "Orvalis.bmp", "VarnixMaster.png",
        "Sample/WaterWorks.prj", "Sample/PtrnColr", "Sample/PtrnMark", "Sample/PtrnCode",
        "Sample/PtrnText1", "Sample/PtrnText2", "Sample/PtrnText3", "Sample/Bitmap/logo.png",
        "Sample/Bitmap/plant.jpg", "Sample/Bitmap/water.bmp", "VarnixData/Bitmap/logo.png",
        // the start screen and the version window by their EUC-JP names
        "Sample/\xc1\xb4\xc2\xce\xb4\xc6\xbb\xeb.ptn",
        "VarnixData/Ptrn/\xa5\xd0\xa1\xbc\xa5\xb8\xa5\xe7\xa5\xf3\xbe\xf0\xca\xf3.ptn"}) {
    EXPECT_TRUE(folder_.Exists(std::string("program/") + file)) << file;
  }
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("program/SampleProgram")));
}

TEST_F(ProgramFolder, NamesItsOwnPathInProfileAndProject) {
  Fill();
  EXPECT_THAT(folder_.Read("program/VarnixMaster.ini"),
              HasSubstr("\nPROJECT=WaterWorks," + folder_.Path("program") + "/Sample\n"));
  const std::string project = folder_.Read("program/Sample/WaterWorks.prj");
  ASSERT_EQ(project.size(), 808U);
  EXPECT_STREQ(project.c_str() + 364, (folder_.Path("program") + "/SampleProgram").c_str());
}

TEST_F(ProgramFolder, KeepsWhatWasChangedThereAndRestoresWhatIsMissing) {
  Fill();
  folder_.Write("program/VarnixMaster.ini", "[PROJECT]\nWINDOW=640,480\n");
  folder_.Write("program/Sample/mine.ptn", "mine");
  std::filesystem::remove(folder_.Path("program/Orvalis.bmp"));
  Fill();
  EXPECT_EQ(folder_.Read("program/VarnixMaster.ini"), "[PROJECT]\nWINDOW=640,480\n");
  EXPECT_EQ(folder_.Read("program/Sample/mine.ptn"), "mine");
  EXPECT_TRUE(folder_.Exists("program/Orvalis.bmp"));
}

TEST_F(ProgramFolder, ReplacesWhatHasANewSourceAndDropsWhatHasNoneAnyMore) {
  Fill();
  // As if the last build had shipped another picture, and a layout that is gone from the sources.
  folder_.Write("state/shipped/Orvalis.bmp", "old");
  folder_.Write("program/Orvalis.bmp", "changed");
  folder_.Write("state/shipped/Sample/gone.ptn", "gone");
  folder_.Write("program/Sample/gone.ptn", "gone");
  folder_.Write("state/shipped/Sample/edited.ptn", "gone");
  folder_.Write("program/Sample/edited.ptn", "edited since");
  Fill();
  EXPECT_THAT(folder_.Read("program/Orvalis.bmp"), Not(testing::Eq("changed")));
  EXPECT_FALSE(folder_.Exists("program/Sample/gone.ptn"));
  EXPECT_TRUE(folder_.Exists("program/Sample/edited.ptn"));
}

TEST_F(ProgramFolder, CanBeFilledByTwoBuildsAtOnce) {
  const std::string both = Command() + " & first=$!; " + Command() + " && wait $first";
  EXPECT_EQ(std::system(both.c_str()), 0);
  EXPECT_EQ(folder_.Read("program/Sample/PtrnColr").size(), 1200U);
}

}  // namespace
