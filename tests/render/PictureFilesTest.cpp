// A picture file is read once for each of its states, and what tells them apart is all that the
// system knows of a file.
#include <fcntl.h>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "render/pictures/PictureFiles.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"
#include "tests/render/OnePixelBitmap.h"

namespace {

using namespace std::string_literals;

const std::string Red = "\x00\x00\xff"s;
const std::string Green = "\x00\xff\x00"s;

class PictureFiles : public testing::Test {
 protected:
  // Overwrites the file in place and sets when that was.
  void Write(const std::string& pixel, time_t seconds, long nanoseconds,
             const std::string& behind = "", const std::string& name = "a.bmp") {
    folder_.Write(name, OnePixelBitmap(1, 1, pixel) + behind);
    const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    ASSERT_EQ(utimensat(AT_FDCWD, folder_.Path(name).c_str(), times, 0), 0);
  }
  // "r" or "g", "" when there is no picture.
  std::string Colour(const std::string& name = "a.bmp") {
    const FilePicture file = PictureFile(folder_.Path(name));
    if (file.Picture == nullptr) return "";
    const guchar* pixel = gdk_pixbuf_read_pixels(file.Picture);
    return pixel[0] == 255 ? "r" : pixel[1] == 255 ? "g" : "?";
  }
  guint64 Source(const std::string& name) { return PictureFile(folder_.Path(name)).Source; }

  TempFolder folder_;
};

TEST_F(PictureFiles, OverwrittenWithinTheSameSecond) {
  Write(Red, 1000, 1);
  EXPECT_EQ(Colour(), "r");
  Write(Green, 1000, 2);
  EXPECT_EQ(Colour(), "g");
}

TEST_F(PictureFiles, OverwrittenSecondsLater) {
  Write(Red, 1000, 1);
  EXPECT_EQ(Colour(), "r");
  Write(Green, 1001, 1);
  EXPECT_EQ(Colour(), "g");
}

TEST_F(PictureFiles, OverwrittenByOneOfAnotherSizeAtTheSameTime) {
  Write(Red, 1000, 1);
  EXPECT_EQ(Colour(), "r");
  Write(Green, 1000, 1, "more");
  EXPECT_EQ(Colour(), "g");
}

TEST_F(PictureFiles, ReplacedByOneOfTheSameSizeAndTime) {
  Write(Red, 1000, 1);
  EXPECT_EQ(Colour(), "r");
  Write(Green, 1000, 1, "", "b.bmp");
  std::filesystem::rename(folder_.Path("b.bmp"), folder_.Path("a.bmp"));
  EXPECT_EQ(Colour(), "g");
}

TEST_F(PictureFiles, OfTheSameStateUnderTwoNamesAreTwo) {
  Write(Red, 1000, 1);
  Write(Green, 1000, 1, "", "b.bmp");
  EXPECT_EQ(Colour("a.bmp"), "r");
  EXPECT_EQ(Colour("b.bmp"), "g");
  EXPECT_EQ(Colour("a.bmp"), "r");
}

TEST_F(PictureFiles, ThatGoAndComeBack) {
  Write(Red, 1000, 1);
  EXPECT_EQ(Colour(), "r");
  std::filesystem::remove(folder_.Path("a.bmp"));
  EXPECT_EQ(Colour(), "");
  EXPECT_EQ(Source("a.bmp"), 0u);
  EXPECT_FALSE(PictureFileState(folder_.Path("a.bmp")).has_value());
  Write(Green, 1000, 2);
  EXPECT_EQ(Colour(), "g");
}

TEST_F(PictureFiles, AFolderIsNone) {
  std::filesystem::create_directory(folder_.Path("a.bmp"));
  EXPECT_EQ(Colour(), "");
  EXPECT_FALSE(PictureFileState(folder_.Path("a.bmp")).has_value());
}

TEST_F(PictureFiles, AreReadOnceAsLongAsTheyStayTheSame) {
  Write(Red, 1000, 1);
  const FilePicture first = PictureFile(folder_.Path("a.bmp"));
  const FilePicture again = PictureFile(folder_.Path("a.bmp"));
  EXPECT_EQ(first.Picture, again.Picture);
  EXPECT_EQ(first.Source, again.Source);
  EXPECT_NE(first.Source, 0u);
  EXPECT_EQ(first.State, again.State);
}

// Nor is a file that holds no picture looked at again and again.
TEST_F(PictureFiles, WithoutAPictureAreReadOnce) {
  folder_.Write("a.bmp", "no picture");
  const guint64 first = Source("a.bmp");
  EXPECT_NE(first, 0u);
  EXPECT_EQ(Colour(), "");
  EXPECT_EQ(Source("a.bmp"), first);
}

TEST_F(PictureFiles, TheSixtyFourLatestAreKept) {
  const auto name = [](gint no) { return std::to_string(no) + ".bmp"; };
  std::vector<guint64> sources;
  for (gint no = 0; no < 65; ++no) Write(Red, 1000, no, "", name(no));
  for (gint no = 0; no < 64; ++no) sources.push_back(Source(name(no)));
  EXPECT_EQ(Source(name(0)), sources[0]) << "64 are kept, and this is the latest one now";
  Source(name(64));
  EXPECT_EQ(Source(name(0)), sources[0]);
  EXPECT_EQ(Source(name(2)), sources[2]);
  EXPECT_NE(Source(name(1)), sources[1]) << "the one not asked for longest has gone";
}

}  // namespace
